#include "codecs/small_number_codec.h"

#include <gtest/gtest.h>

#include <iomanip>
#include <sstream>
#include <string>

namespace morlek {
namespace {

std::string TwoDigits(int number) {
  std::ostringstream text;
  text << std::uppercase << std::hex << std::setfill('0') << std::setw(2) << number;
  return text.str();
}

TEST(SmallNumberCodec, EncodesUniformNumbersAsShownAndKeepsEachSlotsOwn) {
  SmallNumberCodec codec;
  for (int number = 0; number <= 200; ++number) {
    EXPECT_EQ(codec.EncodeUniformNumber(number % 24, std::to_string(number)), TwoDigits(number));
  }
  for (const char* text : {"", "07", " 7", "7 ", "+7", "7.0", "-0", "201", "x", "00", "1e1"}) {
    EXPECT_EQ(codec.EncodeUniformNumber(3, text), "C3") << text;  // 195 was the slot's last
    EXPECT_EQ(codec.EncodeUniformNumber(24, text), "") << text;
  }
}

}  // namespace
}  // namespace morlek
