#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "codecs/codec_answer.h"
#include "image/record_layout.h"

namespace morlek {

/// The batting side of batters, "R", "L" or "S".
class BattingSideCodec {
 public:
  /// The letter of a byte.
  CodecAnswer DecodeBattingSide(std::uint8_t byte);

  /// The byte text of a letter in either case. Each slot, 0 to 24, has a last result of its own,
  /// whichever team it came from.
  CodecAnswer EncodeBattingSide(int slot, std::string_view text);

 private:
  LastResult decoded_side_;
  std::array<LastResult, kSlotCount> encoded_sides_;
};

/// The marks after a pitcher's throwing hand: "S", ">", "<", "S>", "S<" or none.
class PitcherMarksCodec {
 public:
  /// The marks of a byte.
  CodecAnswer DecodePitcherMarks(std::uint8_t byte);

 private:
  LastResult decoded_marks_;
};

/// "R" for a hand byte below 0x10, "L" from there on.
[[nodiscard]] std::string DecodeThrowingHand(std::uint8_t byte);

/// 1 when the second character of the shown text is an S of either case, else 0.
[[nodiscard]] std::uint8_t EncodePitcherSFlag(std::string_view text);

/// The writing side of pitchers' hands and marks; lives for one save, in which it answers an
/// unknown text with the code of the previous pitcher.
class PitcherHandEncoder {
 public:
  /// The hand digit of the shown text's first letter, then the first character of the face code.
  CodecAnswer EncodeHandAndFace(std::string_view text, std::string_view face_code);

  /// The byte text of the marks of the whole shown text ("RS<").
  CodecAnswer EncodeMarks(std::string_view text);

 private:
  LastResult hand_and_face_code_;
  LastResult marks_code_;
};

}  // namespace morlek
