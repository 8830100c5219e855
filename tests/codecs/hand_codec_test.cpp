#include "codecs/hand_codec.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace morlek {
namespace {

// clang-format off
const std::map<std::string, std::string> kMarkCodes = {
    {"R", "00"}, {"RS", "01"}, {"RS<", "21"}, {"RS>", "11"}, {"R<", "20"}, {"R>", "10"},
    {"L", "00"}, {"LS", "01"}, {"LS<", "21"}, {"LS>", "11"}, {"L<", "20"}, {"L>", "10"},
    {"rs<", "21"}, {"lS", "01"}, {"l", "00"}};
// clang-format on

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
