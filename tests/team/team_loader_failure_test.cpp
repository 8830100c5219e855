#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "image/failure.h"
#include "support/editor_fixture.h"

namespace morlek {
namespace {

class TeamLoaderFailureTest : public EditorTest {
 protected:
  TeamLoaderFailureTest() { Load("Braves"); }

  /// Such a load changes nothing at all.
  void ExpectOpeningFails() {
    view.calls.clear();
    EXPECT_THROW(Load("Orioles"), OperationFailed);
    EXPECT_TRUE(view.calls.empty());
    EXPECT_EQ(editor.image.team_base(), kBraves);
    EXPECT_TRUE(disk.reads.empty());
  }
};

TEST_F(TeamLoaderFailureTest, AnOpenChannelOrAMissingImageStopsItAtOnce) {
  disk.files["text"] = {'x'};
  ASSERT_TRUE(editor.channel.OpenTextInput("text"));
  ExpectOpeningFails();
  EXPECT_EQ(editor.channel.ReadCharacter(), 'x');
  editor.channel.Close();
  ASSERT_TRUE(editor.channel.OpenBinary(kImage));
  ExpectOpeningFails();
  EXPECT_TRUE(editor.channel.is_open());
  editor.channel.Close();
  disk.files.clear();
  ExpectOpeningFails();
  EXPECT_FALSE(editor.channel.is_open());
  EXPECT_TRUE(disk.files.empty());
}

TEST_F(TeamLoaderFailureTest, AnUnknownKeyNeedsATeamToGoOnWith) {
  Editor fresh(messages, disk.Opener());
  ASSERT_EQ(fresh.OpenFirstImage(kImage), Editor::Opening::kAccepted);
  EXPECT_THROW(fresh.loader.Load("Senators", view), OperationFailed);
  EXPECT_EQ(fresh.image.team_base(), std::nullopt);
  EXPECT_TRUE(fresh.channel.is_open());
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
      EXPECT_NE(told.find(std::to_string(letter.row)), std::string::npos) << told;
      EXPECT_NE(told.find(std::to_string(letter.offset)), std::string::npos) << told;
    }
    EXPECT_EQ(disk.reads.back().position, kBraves + 32 * letter.row + letter.offset);
    EXPECT_TRUE(editor.channel.is_open());
    editor.channel.Close();
    Poke({{letter.row, letter.offset, 0x11}});
  }
}

}  // namespace
}  // namespace morlek
