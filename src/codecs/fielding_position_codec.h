#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace morlek {

/// The twelve fielding positions; the code of each is twice its place in the game's list. Both
/// directions keep their last result for the whole run, and give it again for what they do not
/// know.
class FieldingPositionCodec {
 public:
  /// The abbreviation of a code; the previous result for an odd code or one above 0x16.
  const std::string& DecodeFieldingPosition(std::uint8_t code);

  /// The byte text of an abbreviation in either case; the previous result for any other text.
  const std::string& EncodeFieldingPosition(std::string_view text);

  /// All abbreviations, parted by commas.
  [[nodiscard]] static std::string Abbreviations();

 private:
  std::string decoded_position_;
  std::string encoded_position_code_;
};

}  // namespace morlek
