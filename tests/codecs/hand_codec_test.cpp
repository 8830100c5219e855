#include "codecs/hand_codec.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace morlek {
namespace {

// clang-format off
const std::map<int, std::string> kSides = {{0x00, "R"}, {0x11, "L"}, {0x20, "S"}};
const std::map<int, std::string> kMarks = {
    {0x00, ""}, {0x01, "S"}, {0x02, "S"}, {0x10, ">"}, {0x11, "S>"}, {0x12, "S>"}, {0x20, "<"},
    {0x21, "S<"}, {0x22, "S<"}};
const std::map<std::string, std::string> kMarkCodes = {
    {"R", "00"}, {"RS", "01"}, {"RS<", "21"}, {"RS>", "11"}, {"R<", "20"}, {"R>", "10"},
    {"L", "00"}, {"LS", "01"}, {"LS<", "21"}, {"LS>", "11"}, {"L<", "20"}, {"L>", "10"},
    {"rs<", "21"}, {"lS", "01"}, {"l", "00"}};
// clang-format on

template <typename Decode>
void ExpectDecodes(const std::map<int, std::string>& table, int kept, Decode decode) {
  for (int byte = 0; byte < 256; ++byte) {
    (void)decode(static_cast<std::uint8_t>(kept));
    const auto row = table.find(byte);
    EXPECT_EQ(decode(static_cast<std::uint8_t>(byte)),
              row == table.end() ? table.at(kept) : row->second);
  }
}

TEST(BattingSideCodec, DecodesEveryByte) {
  BattingSideCodec codec;
  EXPECT_EQ(codec.DecodeBattingSide(0x01), "");
  ExpectDecodes(kSides, 0x11, [&](std::uint8_t byte) { return codec.DecodeBattingSide(byte); });
}

TEST(BattingSideCodec, EncodesTheThreeLettersAndKeepsEachSlotsOwn) {
  BattingSideCodec codec;
  EXPECT_EQ(codec.EncodeBattingSide(0, "X"), "");
  EXPECT_EQ(codec.EncodeBattingSide(0, "R"), "0");
  EXPECT_EQ(codec.EncodeBattingSide(1, "l"), "11");
  EXPECT_EQ(codec.EncodeBattingSide(2, "s"), "20");
  for (const char* text : {"", " ", "RL", "B", "R ", " L"}) {
    EXPECT_EQ(codec.EncodeBattingSide(1, text), "11") << text;
    EXPECT_EQ(codec.EncodeBattingSide(3, text), "") << text;
  }
}

TEST(PitcherMarksCodec, DecodesEveryByte) {
  PitcherMarksCodec codec;
  EXPECT_EQ(codec.DecodePitcherMarks(0x03), "");
  ExpectDecodes(kMarks, 0x10, [&](std::uint8_t byte) { return codec.DecodePitcherMarks(byte); });
}

TEST(PitcherHandEncoder, EncodesTheTwelveMarkTextsAndRepeatsForOthers) {
  PitcherHandEncoder encoder;
  EXPECT_EQ(encoder.EncodeMarks("RX"), "");
  for (const auto& [text, code] : kMarkCodes) EXPECT_EQ(encoder.EncodeMarks(text), code) << text;
  (void)encoder.EncodeMarks("L>");
  for (const char* text : {"", "S", "RX", "R<S", "R ", " R", "R<>", "RS<>", "<", "X>"}) {
    EXPECT_EQ(encoder.EncodeMarks(text), "10") << text;
  }
}

}  // namespace
}  // namespace morlek
