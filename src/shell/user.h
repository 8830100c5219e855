#pragma once

#include <QString>
#include <optional>

#include "editor/message_port.h"
#include "shell/code_page_text.h"

namespace morlek {

/// What a file dialog asks for. The filter has the form "Kind (*.ext)|*.ext".
struct FileQuestion {
  QString title;
  QString filter;
};

/// The person at the screen: the one interface at which the program stops and waits for an answer.
/// Every call returns once the answer is given. The real user is asked by dialogs, that of a test
/// answers from a script.
class User : public MessagePort {
 public:
  /// The path of a file to open, or nothing when the dialog was cancelled. The caller has to find
  /// out whether the file exists and can be read.
  [[nodiscard]] virtual std::optional<QString> AskOpenPath(const FileQuestion& question) = 0;

  /// The path of a file to write, or nothing when the dialog was cancelled. It is as typed, without
  /// an extension added. Writing replaces an existing file.
  [[nodiscard]] virtual std::optional<QString> AskSavePath(const FileQuestion& question) = 0;

  /// True for Yes. No is the default and the result of closing the box.
  [[nodiscard]] virtual bool AskYesNo(const QString& text, const QString& title) = 0;

  /// Shows a message with an OK button; the text is shown as plain text, never as markup.
  virtual void ShowMessage(const QString& text, const QString& title, Message::Icon icon) = 0;

  /// Shows a message of the core, whose texts are in the code page.
  void Show(const Message& message) final {
    ShowMessage(FromCodePage(message.text), FromCodePage(message.title), message.icon);
  }
};

}  // namespace morlek
