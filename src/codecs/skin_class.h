#pragma once

#include <string>
#include <string_view>

namespace morlek {

/// The skin class that goes with an appearance code. It follows every code that is normalised for
/// saving, but nothing in the program reads it.
class SkinClass {
 public:
  /// Takes the class of `code`; a code that belongs to none leaves the class as it was.
  void Follow(std::string_view code);

  /// "0", "3" or "5"; empty before the first code with a class.
  [[nodiscard]] const std::string& text() const { return text_; }

 private:
  std::string text_;
};

}  // namespace morlek
