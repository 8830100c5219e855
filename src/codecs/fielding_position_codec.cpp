#include "codecs/fielding_position_codec.h"

#include <algorithm>
#include <array>

#include "codecs/code_page.h"
#include "codecs/hex_text.h"

namespace morlek {
namespace {

constexpr std::array<std::string_view, 12> kPositions = {"P",  "C",  "LF", "CF", "RF", "3B",
                                                         "SS", "2B", "1B", "DH", "IF", "OF"};

}  // namespace

CodecAnswer FieldingPositionCodec::DecodeFieldingPosition(std::uint8_t code) {
  std::optional<std::string> position;
  const std::size_t place = code / 2U;
  if (code % 2 == 0 && place < kPositions.size()) position = kPositions.at(place);
  return decoded_position_.Answer(position);
}

CodecAnswer FieldingPositionCodec::EncodeFieldingPosition(std::string_view text) {
  std::optional<std::string> code;
  const auto found = std::ranges::find(kPositions, UpperCase(text));
  if (found != kPositions.end()) {
    code = ByteToTwoDigits(static_cast<std::uint8_t>(2 * (found - kPositions.begin())));
  }
  return encoded_position_code_.Answer(code);
}

}  // namespace morlek
