#pragma once

#include <QString>
#include <optional>

#include "codecs/message_port.h"

namespace morlek {

/// What a file dialog asks for. The filter has the form "Kind (*.ext)|*.ext".
struct FileQuestion {
  QString title;
  QString filter;
};

/// The person at the screen, as the program sees him: the one place where it stops and waits for an
/// answer. The real one shows dialogs, a test's one answers from a script.
class User : public MessagePort {
 public:
  /// An existing file to open, or nothing when the dialog was cancelled.
  [[nodiscard]] virtual std::optional<QString> AskOpenPath(const FileQuestion& question) = 0;

  /// A file to write, existing or not, or nothing when the dialog was cancelled.
  [[nodiscard]] virtual std::optional<QString> AskSavePath(const FileQuestion& question) = 0;

  /// Yes or No, No being the default.
  [[nodiscard]] virtual bool AskYesNo(const QString& text, const QString& title) = 0;

  /// A message with an OK button.
  virtual void ShowMessage(const QString& text, const QString& title, Message::Icon icon) = 0;

  void Show(const Message& message) final;
};

}  // namespace morlek
