#include "codecs/name_letter_codec.h"

#include "codecs/code_page.h"
#include "codecs/hex_text.h"

namespace morlek {
namespace {

constexpr std::string_view kAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr std::uint8_t kCodeOfA = 0x0B;
constexpr std::uint8_t kBlankCode = 0x00;
constexpr std::uint8_t kOtherBlankCode = 0x0A;
constexpr std::uint8_t kSmallCCode = 0x36;

}  // namespace

CodecAnswer NameLetterCodec::DecodeNameLetter(std::uint8_t code) {
  std::optional<std::string> letter;
  if (code == kBlankCode || code == kOtherBlankCode) {
    letter = "";
  } else if (code >= kCodeOfA && code < kCodeOfA + kAlphabet.size()) {
    letter = kAlphabet.substr(static_cast<std::size_t>(code - kCodeOfA), 1);
  } else if (code == kSmallCCode) {
    letter = "c";
  }
  return decoded_letter_.Answer(letter);
}

CodecAnswer NameLetterCodec::EncodeNameLetter(std::string_view character) {
  // A small "c" becomes a capital like every letter, so its own code is never written.
  const std::string capital = UpperCase(character);
  const std::size_t letter =
      capital.empty() ? std::string_view::npos : kAlphabet.find(capital.front());
  std::optional<std::string> code;
  if (letter != std::string_view::npos) {
    code = ByteToTwoDigits(static_cast<std::uint8_t>(kCodeOfA + letter));
  } else if (capital == ".") {
    code = "";
  } else if (capital == " ") {
    code = ByteToTwoDigits(kBlankCode);
  }
  return encoded_letter_code_.Answer(code);
}

}  // namespace morlek
