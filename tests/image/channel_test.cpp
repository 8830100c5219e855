#include "image/channel.h"

#include <gtest/gtest.h>

#include "image/failure.h"
#include "support/temp_dir.h"

namespace morlek {
namespace {

class ChannelTest : public ::testing::Test {
 protected:
  ChannelTest() { PutFile(path, "abc"); }

  TempDir dir;
  std::filesystem::path path = dir / "file";
  Channel channel;
};

TEST_F(ChannelTest, ReadsAndWritesBytesFromPositionOneAtOnce) {
  ASSERT_TRUE(channel.OpenBinary(path));
  EXPECT_EQ(channel.ReadByte(1), 'a');
  EXPECT_TRUE(channel.WriteByte(2, 0xFF));
  EXPECT_TRUE(channel.WriteByte(1, 0x0A));
  EXPECT_EQ(channel.ReadByte(2), 0xFF);
  EXPECT_EQ(GetFile(path), std::string("\n\xFF") + "c");
}

TEST_F(ChannelTest, ThereIsNoPositionBelowOneAndOnlyZerosPastTheEnd) {
  ASSERT_TRUE(channel.OpenBinary(path));
  for (const std::int64_t position : {0, -1, -988297}) {
    EXPECT_FALSE(channel.WriteByte(position, 'x')) << position;
    EXPECT_THROW((void)channel.ReadByte(position), OperationFailed) << position;
  }
  EXPECT_EQ(channel.ReadByte(4), 0);
  EXPECT_EQ(channel.ReadByte(988297), 0);
  EXPECT_EQ(channel.ReadByte(2), 'b');
  EXPECT_EQ(GetFile(path), "abc");
}

TEST_F(ChannelTest, ServesOneFileInOneModeAtATime) {
  const auto expect_opens_nothing_more = [this] {
    EXPECT_FALSE(channel.OpenBinary(path));
    EXPECT_FALSE(channel.OpenTextInput(path));
    EXPECT_FALSE(channel.OpenTextOutput(path));
    EXPECT_FALSE(channel.OpenTextOutput(dir / "new"));
    channel.Close();
    EXPECT_FALSE(channel.is_open());
    EXPECT_EQ(GetFile(path), "abc");
  };
  EXPECT_FALSE(channel.WriteByte(1, 'x'));
  EXPECT_THROW((void)channel.ReadByte(1), OperationFailed);
  ASSERT_TRUE(channel.OpenBinary(path));
  EXPECT_THROW((void)channel.PeekCharacter(), OperationFailed);
  EXPECT_THROW(channel.WriteLine("x"), OperationFailed);
  expect_opens_nothing_more();
  ASSERT_TRUE(channel.OpenTextInput(path));
  EXPECT_FALSE(channel.WriteByte(1, 'x'));
  EXPECT_THROW(channel.WriteLine("x"), OperationFailed);
  expect_opens_nothing_more();
  ASSERT_TRUE(channel.OpenTextOutput(dir / "output"));
  EXPECT_THROW((void)channel.ReadByte(1), OperationFailed);
  EXPECT_THROW((void)channel.ReadCharacter(), OperationFailed);
  expect_opens_nothing_more();
  EXPECT_FALSE(std::filesystem::exists(dir / "new"));
}

}  // namespace
}  // namespace morlek
