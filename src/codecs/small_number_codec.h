#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "codecs/codec_answer.h"
#include "image/record_layout.h"

namespace morlek {

/// The largest number that a field of this kind shows and takes.
inline constexpr std::uint8_t kLargestSmallNumber = 200;

/// Whole numbers from 0 to 200 in one byte: uniform numbers and counting statistics. Larger bytes
/// are unknown.
class SmallNumberCodec {
 public:
  /// The number byte buffer: the input of DecodeSmallNumber and EncodeSmallNumber, one byte a slot.
  /// Loader and saver share it, so a statistic that is no byte is saved as what it last held.
  std::array<std::uint8_t, kSlotCount> number_bytes{};

  /// The number in the buffer at `slot` (0 to 24) in decimal. It shares its last result with
  /// EncodeSmallNumber.
  CodecAnswer DecodeSmallNumber(int slot);

  /// The number in the buffer at `slot` as a byte text of two digits; shares its last result.
  CodecAnswer EncodeSmallNumber(int slot);

  /// The byte text of a uniform number that is written exactly as it is shown ("07" is not). Each
  /// slot has a last result of its own, whichever team it came from.
  CodecAnswer EncodeUniformNumber(int slot, std::string_view text);

 private:
  LastResult number_text_;
  std::array<LastResult, kSlotCount> encoded_uniform_numbers_;
};

}  // namespace morlek
