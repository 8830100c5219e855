#pragma once

#include <string>

namespace morlek {

/// The title of most of the program's message boxes.
inline constexpr const char* kProgramTitle = "MORLEK EDITOR";

/// One message for the person at the screen: a modal box with an OK button. Its texts are in the
/// code page of the grid.
struct Message {
  enum class Icon { kNone, kCritical };

  std::string text;
  std::string title = kProgramTitle;
  Icon icon = Icon::kNone;

  friend bool operator==(const Message&, const Message&) = default;
};

/// The way from the core to the person at the screen.
class MessagePort {
 public:
  virtual ~MessagePort() = default;

  /// Shows a message and returns when the person has closed it.
  virtual void Show(const Message& message) = 0;
};

}  // namespace morlek
