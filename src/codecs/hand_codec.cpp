#include "codecs/hand_codec.h"

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

void DecodeInto(std::string& result, std::span<const CodeText> table, std::uint8_t byte) {
  for (const CodeText& row : table) {
    if (row.byte == byte) result = row.text;
  }
}

void EncodeInto(std::string& result, std::span<const TextCode> table, std::string_view text) {
  for (const TextCode& row : table) {
    if (row.text == text) result = row.byte_text;
  }
}

std::string ListOf(std::span<const TextCode> table) {
  std::string list;
  for (const TextCode& row : table) {
    if (!list.empty()) list += &row == &table.back() ? " or " : ", ";
    list += row.text;
  }
  return list;
}

bool IsHand(char letter) { return letter == 'R' || letter == 'L'; }

}  // namespace

const std::string& BattingSideCodec::DecodeBattingSide(std::uint8_t byte) {
  DecodeInto(decoded_side_, kSides, byte);
  return decoded_side_;
}

const std::string& BattingSideCodec::EncodeBattingSide(int slot, std::string_view text) {
  std::string& encoded = encoded_sides_.at(static_cast<std::size_t>(slot));
  EncodeInto(encoded, kSideCodes, UpperCase(text));
  return encoded;
}

std::string BattingSideCodec::Letters() { return ListOf(kSideCodes); }

std::string PitcherMarks() { return ListOf(std::span(kMarkCodes).subspan(1)); }

const std::string& PitcherMarksCodec::DecodePitcherMarks(std::uint8_t byte) {
  DecodeInto(decoded_marks_, kMarks, byte);
  return decoded_marks_;
}

std::string DecodeThrowingHand(std::uint8_t byte) { return byte < 0x10 ? "R" : "L"; }

std::string EncodePitcherSFlag(std::string_view text) {
  return text.size() > 1 && UpperCase(text[1]) == 'S' ? "01" : "00";
}

const std::string& PitcherHandEncoder::EncodeHandAndFace(std::string_view text,
                                                         std::string_view face_code) {
  const char letter = text.empty() ? '\0' : UpperCase(text.front());
  if (IsHand(letter)) {
    hand_and_face_code_.assign(1, letter == 'R' ? '0' : '1');
    hand_and_face_code_ += face_code.substr(0, 1);
  }
  return hand_and_face_code_;
}

const std::string& PitcherHandEncoder::EncodeMarks(std::string_view text) {
  const std::string capitals = UpperCase(text);
  if (!capitals.empty() && IsHand(capitals.front())) {
    EncodeInto(marks_code_, kMarkCodes, std::string_view(capitals).substr(1));
  }
  return marks_code_;
}

}  // namespace morlek
