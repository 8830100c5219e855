#include "image/cartridge_image.h"

#include <gtest/gtest.h>

#include <vector>

#include "image/failure.h"
#include "support/memory_disk.h"

namespace morlek {
namespace {

class CartridgeImageTest : public ::testing::Test {
 protected:
  CartridgeImageTest() {
    disk.files["image"] = std::vector<std::uint8_t>(2000, 0x77);
    disk.files["other"] = std::vector<std::uint8_t>(988297, 0x3C);
    image.SetPath("image");
  }

  MemoryDisk disk;
  Channel channel{disk.Opener()};
  CartridgeImage image{channel};
};

TEST_F(CartridgeImageTest, FieldsLieAtBasePlus32TimesSlotPlusOffset) {
  image.SetTeamBase(1001);
  ASSERT_TRUE(image.Open());
  disk.files["image"][1000 + 32 * 24 + 31] = 0x12;
  EXPECT_EQ(image.ReadField(24, 31), 0x12);
  EXPECT_TRUE(image.WriteField(0, 0, 0x34));
  EXPECT_TRUE(image.WriteField(3, 5, 0x56));
  EXPECT_EQ(disk.writes, (std::vector<ByteAccess>{{1001, 0x34}, {1001 + 96 + 5, 0x56}}));
  image.Close();
  EXPECT_FALSE(channel.is_open());
}

TEST_F(CartridgeImageTest, NoFieldIsReachedWithoutATeam) {
  ASSERT_TRUE(image.Open());
  EXPECT_THROW((void)image.ReadField(0, 0), OperationFailed);
  EXPECT_FALSE(image.WriteField(0, 0, 1));
  EXPECT_TRUE(disk.writes.empty());
}

TEST_F(CartridgeImageTest, NeverWritesIntoAFileThatAnotherOperationLeftOpen) {
  image.SetTeamBase(1001);
  for (const bool opened_before : {false, true}) {
    EXPECT_EQ(opened_before && image.Open(), opened_before);
    image.Close();
    ASSERT_TRUE(channel.OpenBinary("other"));
    EXPECT_FALSE(image.WriteField(0, 0, 1));
    EXPECT_FALSE(image.Open());
    EXPECT_FALSE(image.WriteField(0, 0, 1));
    EXPECT_TRUE(disk.writes.empty());
    image.Close();
    EXPECT_FALSE(channel.is_open());
  }
}

TEST_F(CartridgeImageTest, IdentityByteNeedNotComeFromTheCurrentImage) {
  EXPECT_EQ(image.ReadIdentityByte("other"), 0x3C);
  EXPECT_EQ(disk.reads, (std::vector<ByteAccess>{{988297, 0x3C}}));
  EXPECT_FALSE(channel.is_open());
  EXPECT_EQ(image.path(), "image");
  EXPECT_EQ(image.ReadIdentityByte("image"), 0);
}

}  // namespace
}  // namespace morlek
