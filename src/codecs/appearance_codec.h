#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "codecs/skin_class.h"

namespace morlek {

/// Face, body and legs codes as they are written.
class AppearanceCodec {
 public:
  /// The code with a single digit "0" to "9" padded to two; any other text as it stands. Updates
  /// the skin class.
  [[nodiscard]] std::string NormalizeAppearanceCode(std::string_view text);

  [[nodiscard]] const SkinClass& skin_class() const { return skin_class_; }

 private:
  SkinClass skin_class_;
};

/// The byte that such a text stands for; nothing when it stands for none.
[[nodiscard]] std::optional<std::uint8_t> AppearanceByte(std::string_view text);

}  // namespace morlek
