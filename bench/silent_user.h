#pragma once

#include <optional>
#include <utility>

#include "shell/user.h"

namespace morlek::bench {

/// Answers every open dialog with one path, or cancels it, and reads no message.
class SilentUser : public User {
 public:
  explicit SilentUser(std::optional<QString> path) : path_(std::move(path)) {}

  std::optional<QString> AskOpenPath(const FileQuestion& /*question*/) override { return path_; }
  std::optional<QString> AskSavePath(const FileQuestion& /*question*/) override {
    return std::nullopt;
  }
  bool AskYesNo(const QString& /*text*/, const QString& /*title*/) override { return true; }
  void ShowMessage(const QString& /*text*/, const QString& /*title*/,
                   Message::Icon /*icon*/) override {}

 private:
  std::optional<QString> path_;
};

}  // namespace morlek::bench
