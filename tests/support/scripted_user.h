#pragma once

#include <QString>
#include <deque>
#include <functional>
#include <optional>
#include <vector>

#include "shell/user.h"

namespace morlek {

/// A user who answers from a script and notes what he was asked and told. Where the script ends he
/// cancels a dialog and says No. A test may look round while he is told something.
class ScriptedUser : public User {
 public:
  struct Told {
    QString text;
    QString title;
    Message::Icon icon;
  };

  std::deque<std::optional<QString>> paths;
  std::deque<bool> answers;
  std::function<void()> while_told;

  std::vector<FileQuestion> open_questions;
  std::vector<FileQuestion> save_questions;
  std::vector<Told> yes_no_questions;
  std::vector<Told> messages;

  std::optional<QString> AskOpenPath(const FileQuestion& question) override {
    open_questions.push_back(question);
    return Take(paths, std::optional<QString>());
  }

  std::optional<QString> AskSavePath(const FileQuestion& question) override {
    save_questions.push_back(question);
    return Take(paths, std::optional<QString>());
  }

  bool AskYesNo(const QString& text, const QString& title) override {
    yes_no_questions.push_back({text, title, Message::Icon::kNone});
    return Take(answers, false);
  }

  void ShowMessage(const QString& text, const QString& title, Message::Icon icon) override {
    messages.push_back({text, title, icon});
    if (while_told) while_told();
  }

 private:
  template <typename Answer>
  static Answer Take(std::deque<Answer>& script, Answer otherwise) {
    if (script.empty()) return otherwise;
    Answer answer = script.front();
    script.pop_front();
    return answer;
  }
};

}  // namespace morlek
