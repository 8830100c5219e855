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

/// The person at the screen, as the program sees him: the one place where it stops and waits for an
/// answer. Every call returns when he has answered. The real one shows dialogs, a test's one
/// answers from a script.
class User : public MessagePort {
 public:
  /// The path of a file to open, or nothing when the dialog was cancelled. Whether it is there and
  /// can be read is for the caller to find out.
  [[nodiscard]] virtual std::optional<QString> AskOpenPath(const FileQuestion& question) = 0;

  /// The path of a file to write, or nothing when the dialog was cancelled. It is given as typed,
  /// without an extension added, and whoever writes replaces what is there.
  [[nodiscard]] virtual std::optional<QString> AskSavePath(const FileQuestion& question) = 0;

  /// True for Yes. No is the default, and what closing the box means.
  [[nodiscard]] virtual bool AskYesNo(const QString& text, const QString& title) = 0;

  /// A message with an OK button; the text is plain, whatever characters it holds.
  virtual void ShowMessage(const QString& text, const QString& title, Message::Icon icon) = 0;

  /// The same for a message of the core, whose texts are in the code page.
  void Show(const Message& message) final {
    ShowMessage(FromCodePage(message.text), FromCodePage(message.title), message.icon);
  }
};

}  // namespace morlek
