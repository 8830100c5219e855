#include "codecs/hand_codec.h"

#include <algorithm>
#include <optional>
#include <span>

#include "codecs/code_page.h"

namespace morlek {
namespace {

struct CodeText {
  std::uint8_t byte;
  std::string_view text;
};

struct TextCode {
  std::string_view text;
  std::string_view byte_text;
};

constexpr std::array<CodeText, 3> kSides = {{{0x00, "R"}, {0x11, "L"}, {0x20, "S"}}};
constexpr std::array<TextCode, 3> kSideCodes = {{{"R", "0"}, {"L", "11"}, {"S", "20"}}};

// The S is read from 1 and 2 and written as 1.
constexpr std::array<CodeText, 9> kMarks = {{{0x00, ""},
                                             {0x01, "S"},
                                             {0x02, "S"},
                                             {0x10, ">"},
                                             {0x11, "S>"},
                                             {0x12, "S>"},
                                             {0x20, "<"},
                                             {0x21, "S<"},
                                             {0x22, "S<"}}};
constexpr std::array<TextCode, 6> kMarkCodes = {
    {{"", "00"}, {"S", "01"}, {"S<", "21"}, {"S>", "11"}, {"<", "20"}, {">", "10"}}};

std::optional<std::string> TextOf(std::uint8_t byte, std::span<const CodeText> table) {
  const auto found = std::ranges::find(table, byte, &CodeText::byte);
  if (found == table.end()) return std::nullopt;
  return std::string(found->text);
}

std::optional<std::string> ByteTextOf(std::string_view text, std::span<const TextCode> table) {
  const auto found = std::ranges::find(table, text, &TextCode::text);
  if (found == table.end()) return std::nullopt;
  return std::string(found->byte_text);
}

bool IsHand(char letter) { return letter == 'R' || letter == 'L'; }

}  // namespace

CodecAnswer BattingSideCodec::DecodeBattingSide(std::uint8_t byte) {
  return decoded_side_.Answer(TextOf(byte, kSides));
}

CodecAnswer BattingSideCodec::EncodeBattingSide(int slot, std::string_view text) {
  LastResult& encoded = encoded_sides_.at(static_cast<std::size_t>(slot));
  return encoded.Answer(ByteTextOf(UpperCase(text), kSideCodes));
}

CodecAnswer PitcherMarksCodec::DecodePitcherMarks(std::uint8_t byte) {
  return decoded_marks_.Answer(TextOf(byte, kMarks));
}

std::string DecodeThrowingHand(std::uint8_t byte) { return byte < 0x10 ? "R" : "L"; }

std::uint8_t EncodePitcherSFlag(std::string_view text) {
  return text.size() > 1 && UpperCase(text[1]) == 'S' ? 1 : 0;
}

CodecAnswer PitcherHandEncoder::EncodeHandAndFace(std::string_view text,
                                                  std::string_view face_code) {
  std::optional<std::string> code;
  const char letter = text.empty() ? '\0' : UpperCase(text.front());
  if (IsHand(letter)) code = std::string(letter == 'R' ? "0" : "1").append(face_code.substr(0, 1));
  return hand_and_face_code_.Answer(code);
}

CodecAnswer PitcherHandEncoder::EncodeMarks(std::string_view text) {
  std::optional<std::string> code;
  const std::string capitals = UpperCase(text);
  if (!capitals.empty() && IsHand(capitals.front())) {
    code = ByteTextOf(std::string_view(capitals).substr(1), kMarkCodes);
  }
  return marks_code_.Answer(code);
}

}  // namespace morlek
