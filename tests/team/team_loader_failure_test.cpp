#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "image/failure.h"
#include "support/editor_fixture.h"

namespace morlek {
namespace {

class TeamLoaderFailureTest : public TeamTest {
 protected:
  TeamLoaderFailureTest() { Load("Braves"); }

  /// Such a load changes nothing at all.
  void ExpectOpeningFails() {
    view.calls.clear();
    EXPECT_THROW(Load("Orioles"), OperationFailed);
    EXPECT_TRUE(view.calls.empty());
    EXPECT_EQ(image.team_base(), kBraves);
    EXPECT_TRUE(disk.reads.empty());
  }
};

TEST_F(TeamLoaderFailureTest, AnOpenChannelOrAMissingImageStopsItAtOnce) {
  disk.files["text"] = {'x'};
  ASSERT_TRUE(channel.OpenTextInput("text"));
  ExpectOpeningFails();
  EXPECT_EQ(channel.ReadCharacter(), 'x');
  channel.Close();
  ASSERT_TRUE(channel.OpenBinary(kImage));
  ExpectOpeningFails();
  EXPECT_TRUE(channel.is_open());
  channel.Close();
  disk.files.clear();
  ExpectOpeningFails();
  EXPECT_FALSE(channel.is_open());
  EXPECT_TRUE(disk.files.empty());
}

TEST_F(TeamLoaderFailureTest, AnUnknownKeyNeedsATeamToGoOnWith) {
  CartridgeImage fresh(channel);
  fresh.SetPath(kImage);
  EXPECT_THROW((TeamLoader{fresh, kept}.Load("Senators", grid, view)), OperationFailed);
  EXPECT_EQ(fresh.team_base(), std::nullopt);
  EXPECT_TRUE(channel.is_open());
}

TEST_F(TeamLoaderFailureTest, ARatingThatIsALetterEndsTheLoad) {
  const std::vector<FieldByte> letters = {{3, 11, 0x2A}, {3, 11, 0xA2},  {3, 12, 0x0F},
                                          {3, 12, 0xF0}, {20, 12, 0x1E}, {20, 12, 0xE1}};
  for (const FieldByte& letter : letters) {
    Poke({letter});
    try {
      Load("Braves");
      ADD_FAILURE() << letter;
    } catch (const OperationFailed& failure) {
      const std::string told = failure.what();
      EXPECT_NE(told.find(letter.row == 3 ? "slot 3 (batter 4)" : "slot 20 (pitcher 6)"),
                std::string::npos)
          << told;
      EXPECT_NE(told.find(std::to_string(letter.offset)), std::string::npos) << told;
    }
    EXPECT_EQ(disk.reads.back().position, kBraves + 32 * letter.row + letter.offset);
    EXPECT_TRUE(channel.is_open());
    channel.Close();
    Poke({{letter.row, letter.offset, 0x11}});
  }
}

}  // namespace
}  // namespace morlek
