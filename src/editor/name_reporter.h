#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "editor/editor_state.h"
#include "editor/message_port.h"
#include "team/record_encoder.h"

namespace morlek {

/// Reports what of a name cannot be saved in a message box, which keeps the save waiting.
class NameReporter : public EncodingListener {
 public:
  /// `note` is called before each message, with the unknown letter that it is about or with
  /// nothing.
  NameReporter(MessagePort& messages, std::function<void(StepNote)> note)
      : messages_(messages), note_(std::move(note)) {}

  void UnknownLetter(int row, std::string_view letter) override {
    note_(morlek::UnknownLetter{row, std::string(letter)});
    messages_.Show(
        {"You've used a letter that is not recognized by MORLEK EDITOR, change the letter and "
         "save your edits again."});
  }
  void NameTooLong(int /*row*/) override {
    note_({});
    messages_.Show({"You are only allowed 10 player letters per name counting the period."});
  }

 private:
  MessagePort& messages_;
  std::function<void(StepNote)> note_;
};

}  // namespace morlek
