#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "image/record_layout.h"

namespace morlek {

/// The batting side of batters, "R", "L" or "S". Results are kept for the whole run.
class BattingSideCodec {
 public:
  /// The letter of a byte; the previous result for an unknown byte.
  const std::string& DecodeBattingSide(std::uint8_t byte);

  /// The byte text of a letter in either case; for any other text what this slot (0 to 24) encoded
  /// last, whichever team that was.
  const std::string& EncodeBattingSide(int slot, std::string_view text);

  /// All letters, in words: "R, L or S".
  [[nodiscard]] static std::string Letters();

 private:
  std::string decoded_side_;
  std::array<std::string, kSlotCount> encoded_sides_;
};

/// The marks that may stand behind a pitcher's throwing hand, in words: "S, S<, ... or >".
[[nodiscard]] std::string PitcherMarks();

/// The marks behind a pitcher's throwing hand: "S", ">", "<", "S>", "S<" or none.
class PitcherMarksCodec {
 public:
  /// The marks of a byte; the previous result of the run for an unknown byte.
  const std::string& DecodePitcherMarks(std::uint8_t byte);

 private:
  std::string decoded_marks_;
};

/// "R" for a hand byte below 0x10, "L" from there on.
[[nodiscard]] std::string DecodeThrowingHand(std::uint8_t byte);

/// "01" when the second character of the shown text is an S of either case, else "00".
[[nodiscard]] std::string EncodePitcherSFlag(std::string_view text);

/// The writing side of pitchers' hands and marks; lives for one save, in which an unknown text
/// gives the code of the pitcher before.
class PitcherHandEncoder {
 public:
  /// The hand digit of the shown text's first letter, then the first character of the face code.
  const std::string& EncodeHandAndFace(std::string_view text, std::string_view face_code);

  /// The byte text of the marks of the whole shown text ("RS<").
  const std::string& EncodeMarks(std::string_view text);

 private:
  std::string hand_and_face_code_;
  std::string marks_code_;
};

}  // namespace morlek
