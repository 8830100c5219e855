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

const std::string& NameLetterCodec::DecodeNameLetter(std::uint8_t code) {
  if (code == kBlankCode || code == kOtherBlankCode) {
    decoded_letter_.clear();
  } else if (code >= kCodeOfA && code < kCodeOfA + kAlphabet.size()) {
    decoded_letter_ = kAlphabet[static_cast<std::size_t>(code - kCodeOfA)];
  } else if (code == kSmallCCode) {
    decoded_letter_ = 'c';
  }
  return decoded_letter_;
}

const std::string& NameLetterCodec::EncodeNameLetter(std::string_view character,
                                                     MessagePort& messages) {
  // A small "c" becomes a capital like every letter, so its own code is never written.
  const std::string capital = UpperCase(character);
  const std::size_t letter =
      capital.empty() ? std::string_view::npos : kAlphabet.find(capital.front());
  if (letter != std::string_view::npos) {
    encoded_letter_code_ = ByteToTwoDigits(static_cast<std::uint8_t>(kCodeOfA + letter));
  } else if (capital == ".") {
    encoded_letter_code_.clear();
  } else if (capital == " ") {
    encoded_letter_code_ = ByteToTwoDigits(kBlankCode);
  } else {
    messages.Show(
        {"You've used a letter that is not recognized by MORLEK EDITOR, change the letter and "
         "save your edits again."});
  }
  return encoded_letter_code_;
}

}  // namespace morlek
