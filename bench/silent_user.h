#pragma once

#include <optional>
#include <utility>

#include "shell/user.h"

namespace morlek::bench {

/// Answers the first open dialog with an image, all later dialogs with a team file, and reads no
/// message.
class SilentUser : public User {
 public:
  explicit SilentUser(QString image, QString team_file = {})
      : open_path_(std::move(image)), team_file_(std::move(team_file)) {}

  std::optional<QString> AskOpenPath(const FileQuestion& /*question*/) override {
    return std::exchange(open_path_, team_file_);
  }
  std::optional<QString> AskSavePath(const FileQuestion& /*question*/) override {
    return team_file_;
  }
  bool AskYesNo(const QString& /*text*/, const QString& /*title*/) override { return true; }
  void ShowMessage(const QString& /*text*/, const QString& /*title*/,
                   Message::Icon /*icon*/) override {}

 private:
  QString open_path_;
  QString team_file_;
};

}  // namespace morlek::bench
