#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace morlek {

/// Face, body and legs codes as they are written.
class AppearanceCodec {
 public:
  /// The code with a single digit "0" to "9" padded to two; any other text as it is. Updates the
  /// skin class.
  [[nodiscard]] std::string NormalizeAppearanceCode(std::string_view text);

  /// The skin class of the last code that has one, "0", "3" or "5"; empty before the first. Nothing
  /// in the program reads it.
  [[nodiscard]] const std::string& skin_class() const { return skin_class_; }

 private:
  std::string skin_class_;
};

/// The byte that such a text means; nothing when it means none.
[[nodiscard]] std::optional<std::uint8_t> AppearanceByte(std::string_view text);

}  // namespace morlek
