#pragma once

#include <functional>
#include <string>
#include <vector>

#include "editor/message_port.h"

namespace morlek {

inline constexpr char kUnknownLetter[] =
    "You've used a letter that is not recognized by MORLEK EDITOR, change the letter and save your "
    "edits again.";
inline constexpr char kNameTooLong[] =
    "You are only allowed 10 player letters per name counting the period.";
inline constexpr char kSaved[] = "Your changes have been saved.";

/// A person who reads every message and closes it.
class RecordingMessages : public MessagePort {
 public:
  void Show(const Message& message) override {
    shown.push_back(message);
    if (while_shown) while_shown();
  }

  /// The texts of the messages so far, in order.
  [[nodiscard]] std::vector<std::string> Texts() const {
    std::vector<std::string> texts;
    for (const Message& message : shown) texts.push_back(message.text);
    return texts;
  }

  std::vector<Message> shown;
  std::function<void()> while_shown;
};

}  // namespace morlek
