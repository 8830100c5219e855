#pragma once

#include <QDir>
#include <QFileDialog>
#include <QPointer>
#include <QWidget>
#include <map>

#include "shell/user.h"

namespace morlek {

/// The real user, asked by the toolkit's dialogs, all modal. A file dialog opens in the folder that
/// was last used for files of its kind, else for any file, else in the working directory. Nothing
/// is kept between runs.
class DialogUser : public User {
 public:
  /// Affects the whole process, for good: QSettings stores nothing from now on (see
  /// KeepNoSettings).
  DialogUser();

  /// Sets the window over which dialogs open from now on; null for none. It may be destroyed first.
  void SetWindow(QWidget* window) { window_ = window; }

  [[nodiscard]] std::optional<QString> AskOpenPath(const FileQuestion& question) override {
    return Ask(QFileDialog::AcceptOpen, question);
  }
  [[nodiscard]] std::optional<QString> AskSavePath(const FileQuestion& question) override {
    return Ask(QFileDialog::AcceptSave, question);
  }
  [[nodiscard]] bool AskYesNo(const QString& text, const QString& title) override;
  void ShowMessage(const QString& text, const QString& title, Message::Icon icon) override;

 private:
  [[nodiscard]] std::optional<QString> Ask(QFileDialog::AcceptMode mode,
                                           const FileQuestion& question);

  QPointer<QWidget> window_;
  QString last_folder_ = QDir::currentPath();
  std::map<QString, QString> folders_;  // by the filter of the question
};

}  // namespace morlek
