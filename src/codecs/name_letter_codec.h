#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "codecs/message_port.h"

namespace morlek {

/// The game's letter codes: A to Z, a blank, and a lower-case "c" that is read but never written.
/// Both directions keep their last result for the whole run, and give it again for what they do
/// not know.
class NameLetterCodec {
 public:
  /// The character of a letter code: one character, or none for the blank codes 0x00 and 0x0A.
  /// An unknown code gives the previous result.
  const std::string& DecodeNameLetter(std::uint8_t code);

  /// The byte text of a character (a text of length 0 or 1, capitals and small letters alike); a
  /// period gives the empty text. For an unknown character, and for none, the person is told and
  /// the result is the previous one.
  const std::string& EncodeNameLetter(std::string_view character, MessagePort& messages);

 private:
  std::string decoded_letter_;
  std::string encoded_letter_code_;
};

}  // namespace morlek
