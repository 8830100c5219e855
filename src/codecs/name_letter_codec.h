#pragma once

#include <cstdint>
#include <string_view>

#include "codecs/codec_answer.h"

namespace morlek {

/// The game's letter codes: A to Z, a blank, and a lower-case "c" that is read but never written.
class NameLetterCodec {
 public:
  /// The character of a letter code: one character, or none for the blank codes 0x00 and 0x0A.
  CodecAnswer DecodeNameLetter(std::uint8_t code);

  /// The byte text of a character (a text of length 0 or 1, capitals and small letters alike); a
  /// period gives the empty text. The empty text is an unknown character.
  CodecAnswer EncodeNameLetter(std::string_view character);

 private:
  LastResult decoded_letter_;
  LastResult encoded_letter_code_;
};

}  // namespace morlek
