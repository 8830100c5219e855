#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/editor_fixture.h"

namespace morlek {
namespace {

class TeamSaverFailure : public EditorTest {
 protected:
  void ExpectNothingButTheMessage() {
    Save();
    EXPECT_TRUE(disk.writes.empty());
    EXPECT_EQ(messages.Texts(), std::vector<std::string>{kSaved});
    EXPECT_FALSE(editor.channel.is_open());
  }
};

TEST_F(TeamSaverFailure, WritesInTheOrderOfTheSteps) {
  std::vector<std::int64_t> expected;
  for (int row = 0; row < 25; ++row) expected.push_back(kOrioles + 32 * row);
  for (int row = 0; row < 25; ++row) {
    const std::vector<int> offsets =
        row < 15 ? std::vector<int>{1,  2,  3,  4,  5,  6,  7,  8,  9,  10,
                                    13, 11, 12, 24, 25, 26, 28, 14, 15, 16}
                 : std::vector<int>{1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 17, 11,
                                    12, 28, 29, 26, 24, 30, 14, 21, 23, 15, 16};
    for (const int offset : offsets) expected.push_back(kOrioles + 32 * row + offset);
  }
  Load("Orioles");
  Save();
  std::vector<std::int64_t> positions;
  for (const ByteAccess& write : disk.writes) positions.push_back(write.position);
  EXPECT_EQ(positions, expected);
  EXPECT_FALSE(editor.channel.is_open());
}

TEST_F(TeamSaverFailure, AnyWriteMayFailAndTheOthersAreMade) {
  Load("Braves");
  Save();
  const std::vector<ByteAccess> all = disk.writes;
  for (std::size_t nth = 0; nth < all.size(); ++nth) {
    disk.failing_write = static_cast<int>(nth) + 1;
    Save();
    std::vector<ByteAccess> others = all;
    others.erase(others.begin() + static_cast<std::ptrdiff_t>(nth));
    ASSERT_EQ(disk.writes, others) << nth;
    ASSERT_EQ(messages.Texts(), std::vector<std::string>{kSaved});
    ASSERT_FALSE(editor.channel.is_open());
  }
}

TEST_F(TeamSaverFailure, WithoutATeamNothingIsWritten) {
  Type({{0, 1, "A.A"}, {0, 3, "7"}});
  for (int row = 1; row < 25; ++row) Type({{row, 1, "B.B"}});
  ExpectNothingButTheMessage();
}

TEST_F(TeamSaverFailure, AnImageThatIsGoneIsNotCreatedAgain) {
  Load("Braves");
  disk.files.clear();
  ExpectNothingButTheMessage();
  EXPECT_TRUE(disk.files.empty());
}

TEST_F(TeamSaverFailure, AStuckChannelIsClosedAndItsFileUntouched) {
  Load("Braves");
  disk.files["stuck"] = std::vector<std::uint8_t>(1573376, 0x77);
  ASSERT_TRUE(editor.channel.OpenTextInput("stuck"));
  ExpectNothingButTheMessage();
  ASSERT_TRUE(editor.channel.OpenTextOutput("text"));
  ExpectNothingButTheMessage();
  EXPECT_TRUE(disk.files.at("text").empty());
  ASSERT_TRUE(editor.channel.OpenBinary("stuck"));
  ExpectNothingButTheMessage();
  ASSERT_TRUE(editor.channel.OpenBinary(kImage));
  ExpectNothingButTheMessage();
  Save();
  EXPECT_EQ(disk.writes.size(), 25 + 15 * 20 + 10 * 23);
}

TEST_F(TeamSaverFailure, AStuckChannelIsClosedByANameThatIsTooLong) {
  Load("Braves");
  Type({{0, 1, "A.ABCDEFGHI"}});
  disk.files["stuck"] = {};
  ASSERT_TRUE(editor.channel.OpenTextInput("stuck"));
  Save();
  EXPECT_EQ(messages.Texts(), std::vector<std::string>{kNameTooLong});
  EXPECT_FALSE(editor.channel.is_open());
}

TEST_F(TeamSaverFailure, TheCodecsRunWhereNothingCanBeWritten) {
  Load("Braves");
  Type({{0, 3, "77"}, {24, 2, "SS"}, {3, 1, "?.X"}});
  disk.files["stuck"] = {};
  ASSERT_TRUE(editor.channel.OpenTextInput("stuck"));
  Save();
  EXPECT_EQ(messages.Texts(), (std::vector<std::string>{kUnknownLetter, kSaved}));
  Type({{0, 3, "x"}, {0, 2, "x"}});
  Save();
  ExpectWritten({{0, 10, 77}, {0, 9, 0x0C}});
}

TEST(TeamSaverWithoutImage, OnlySaysThatItHasSaved) {
  MemoryDisk disk;
  RecordingMessages messages;
  Editor editor(messages, disk.Opener());
  for (int row = 0; row < 25; ++row) editor.grid.SetText(Column::kText1, row, "A.A");
  editor.saver.Save();
  EXPECT_EQ(messages.Texts(), std::vector<std::string>{kSaved});
  EXPECT_TRUE(disk.files.empty());
}

}  // namespace
}  // namespace morlek
