#include "codecs/name_letter_codec.h"

#include <gtest/gtest.h>

#include <string>

#include "support/recording_messages.h"

namespace morlek {
namespace {

class NameLetterCodecTest : public ::testing::Test {
 protected:
  RecordingMessages messages;
  NameLetterCodec codec;
};

TEST_F(NameLetterCodecTest, EncodesLettersBlankAndPeriod) {
  const std::string codes = "0B0C0D0E0F101112131415161718191A1B1C1D1E1F2021222324";
  for (std::size_t place = 0; place < 26; ++place) {
    const std::string code = codes.substr(2 * place, 2);
    EXPECT_EQ(codec.EncodeNameLetter(std::string(1, static_cast<char>('A' + place)), messages),
              code);
    EXPECT_EQ(codec.EncodeNameLetter(std::string(1, static_cast<char>('a' + place)), messages),
              code);
  }
  EXPECT_EQ(codec.EncodeNameLetter(" ", messages), "00");
  EXPECT_EQ(codec.EncodeNameLetter(".", messages), "");
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(NameLetterCodecTest, TellsOfEveryOtherCharacterAndRepeatsTheResult) {
  const std::string known = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz .";
  (void)codec.EncodeNameLetter("Q", messages);
  for (int code = -1; code < 256; ++code) {
    const std::string character = code < 0 ? "" : std::string(1, static_cast<char>(code));
    if (code >= 0 && known.find(character) != std::string::npos) continue;
    messages.shown.clear();
    EXPECT_EQ(codec.EncodeNameLetter(character, messages), "1B");
    ASSERT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(messages.shown[0], (Message{kUnknownLetter, "MORLEK EDITOR", Message::Icon::kNone}));
  }
}

}  // namespace
}  // namespace morlek
