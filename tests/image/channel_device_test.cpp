#include <gtest/gtest.h>
#include <sys/stat.h>

#include "image/channel.h"
#include "image/failure.h"
#include "support/temp_dir.h"

namespace morlek {
namespace {

TEST(ChannelDevice, PipesAreRefusedWithoutWaiting) {
  const TempDir dir;
  ASSERT_EQ(mkfifo((dir / "pipe").c_str(), 0600), 0);
  Channel channel;
  EXPECT_FALSE(channel.OpenBinary(dir / "pipe"));
  EXPECT_FALSE(channel.OpenTextInput(dir / "pipe"));
  EXPECT_FALSE(channel.OpenTextOutput(dir / "pipe"));
}

TEST(ChannelDevice, AFileThatCannotBeWrittenOpensForReadingTextAlone) {
  // Nobody may write into the file of a running program, whatever their rights.
  Channel channel;
  EXPECT_FALSE(channel.OpenBinary("/proc/self/exe"));
  EXPECT_FALSE(channel.OpenTextOutput("/proc/self/exe"));
  EXPECT_TRUE(channel.OpenTextInput("/proc/self/exe"));
}

TEST(ChannelDevice, AFullDiskFailsTheLineThatDoesNotFit) {
  Channel channel;
  ASSERT_TRUE(channel.OpenTextOutput("/dev/full"));
  EXPECT_THROW(channel.WriteLine("one line"), OperationFailed);
  EXPECT_TRUE(channel.is_open());
}

TEST(ChannelDevice, BytesThatTheSystemCannotReadOrWriteFail) {
  // The lowest addresses of a process are never mapped: the system fails each access to them.
  Channel channel;
  ASSERT_TRUE(channel.OpenBinary("/proc/self/mem"));
  EXPECT_THROW((void)channel.ReadByte(2), OperationFailed);
  EXPECT_FALSE(channel.WriteByte(2, 0));
  EXPECT_TRUE(channel.is_open());
}

}  // namespace
}  // namespace morlek
