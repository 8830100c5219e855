#pragma once

#include <QDir>
#include <QPointer>
#include <QWidget>
#include <map>

#include "shell/user.h"

class QFileDialog;

namespace morlek {

/// The real user, asked by the toolkit's dialogs, all modal. A file dialog opens in the folder
/// that was used last for files of its kind, else for any, the first one in the working directory;
/// nothing of it is kept between runs.
class DialogUser : public User {
 public:
  /// From now on QSettings keeps nothing anywhere in this process (see KeepNoSettings).
  DialogUser();

  /// The window over which dialogs stand from now on; null, or a window that is gone, is none.
  void SetWindow(QWidget* window) { window_ = window; }

  [[nodiscard]] std::optional<QString> AskOpenPath(const FileQuestion& question) override;
  [[nodiscard]] std::optional<QString> AskSavePath(const FileQuestion& question) override;
  [[nodiscard]] bool AskYesNo(const QString& text, const QString& title) override;
  void ShowMessage(const QString& text, const QString& title, Message::Icon icon) override;

 private:
  [[nodiscard]] std::optional<QString> Ask(QFileDialog& dialog, const FileQuestion& question);

  QPointer<QWidget> window_;
  QString last_folder_ = QDir::currentPath();
  std::map<QString, QString> folders_;  // by the filter of the question
};

}  // namespace morlek
