#include "codecs/small_number_codec.h"

#include <charconv>
#include <optional>

#include "codecs/hex_text.h"

namespace morlek {
namespace {

/// The number from 0 to 200 that is shown as exactly this text, or nothing.
std::optional<std::uint8_t> ShownNumber(std::string_view text) {
  std::uint8_t number = 0;
  const auto parsed = std::from_chars(text.data(), text.data() + text.size(), number);
  if (parsed.ec != std::errc() || number > kLargestSmallNumber) return std::nullopt;
  if (std::to_string(number) != text) return std::nullopt;
  return number;
}

}  // namespace

CodecAnswer SmallNumberCodec::DecodeSmallNumber(int slot) {
  std::optional<std::string> text;
  const std::uint8_t number = number_bytes.at(static_cast<std::size_t>(slot));
  if (number <= kLargestSmallNumber) text = std::to_string(number);
  return number_text_.Answer(text);
}

CodecAnswer SmallNumberCodec::EncodeSmallNumber(int slot) {
  std::optional<std::string> text;
  const std::uint8_t number = number_bytes.at(static_cast<std::size_t>(slot));
  if (number <= kLargestSmallNumber) text = ByteToTwoDigits(number);
  return number_text_.Answer(text);
}

CodecAnswer SmallNumberCodec::EncodeUniformNumber(int slot, std::string_view text) {
  std::optional<std::string> byte_text;
  if (const auto number = ShownNumber(text)) byte_text = ByteToTwoDigits(*number);
  return encoded_uniform_numbers_.at(static_cast<std::size_t>(slot)).Answer(byte_text);
}

}  // namespace morlek
