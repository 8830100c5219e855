#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "codecs/codec_answer.h"

namespace morlek {

/// The twelve fielding positions; the code of each is twice its place in the game's list.
class FieldingPositionCodec {
 public:
  /// The abbreviation of a code: an even one up to 0x16.
  CodecAnswer DecodeFieldingPosition(std::uint8_t code);

  /// The byte text of an abbreviation in either case.
  CodecAnswer EncodeFieldingPosition(std::string_view text);

 private:
  LastResult decoded_position_;
  LastResult encoded_position_code_;
};

}  // namespace morlek
