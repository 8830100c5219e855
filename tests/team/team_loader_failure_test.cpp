#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "image/failure.h"
#include "support/editor_fixture.h"

namespace morlek {
namespace {

class TeamLoaderFailureTest : public EditorTest {
 protected:
  /// Nothing but the channel may tell that such a load was tried.
  void ExpectOpeningFails() {
    view.calls.clear();
    const auto base = editor.image.team_base();
    EXPECT_THROW(Load("Orioles"), OperationFailed);
    EXPECT_TRUE(view.calls.empty());
    EXPECT_EQ(editor.image.team_base(), base);
    EXPECT_TRUE(disk.reads.empty());
  }

  std::string FailureOf(const char* key) {
    try {
      Load(key);
    } catch (const OperationFailed& failure) {
      return failure.what();
    }
    return "no failure";
  }
};

TEST_F(TeamLoaderFailureTest, AnImageThatIsGoneChangesNothing) {
  Load("Braves");
  Type({{0, 1, "EDITED"}});
  disk.files.clear();
  ExpectOpeningFails();
  ExpectShown({{0, 1, "EDITED"}, {24, 1, "Y.BY"}});
  EXPECT_FALSE(editor.channel.is_open());
  EXPECT_TRUE(disk.files.empty());
}

TEST_F(TeamLoaderFailureTest, AChannelThatIsOpenBlocksTheLoadAndStaysOpen) {
  disk.files["text"] = {'x'};
  ASSERT_TRUE(editor.channel.OpenTextInput("text"));
  ExpectOpeningFails();
  EXPECT_EQ(editor.channel.ReadCharacter(), 'x');
  editor.channel.Close();
  ASSERT_TRUE(editor.channel.OpenBinary(kImage));
  ExpectOpeningFails();
  EXPECT_TRUE(editor.channel.is_open());
}

TEST_F(TeamLoaderFailureTest, AnUnknownKeyNeedsATeamToGoOnWith) {
  EXPECT_THROW(Load("Senators"), OperationFailed);
  EXPECT_EQ(view.calls, std::vector<std::string>{"prepare"});
  EXPECT_EQ(editor.image.team_base(), std::nullopt);
  EXPECT_TRUE(editor.channel.is_open());
  EXPECT_THROW(Load("Braves"), OperationFailed);
}

TEST_F(TeamLoaderFailureTest, ARatingThatIsALetterEndsTheLoad) {
  // Offset and byte, all of which show no number in some digit; row 20 is a pitcher.
  const std::vector<FieldByte> bad_bytes = {{3, 11, 0x2A},  {3, 11, 0xA2},  {3, 12, 0x0F},
                                            {3, 12, 0xF0},  {20, 11, 0x2A}, {20, 12, 0x1E},
                                            {20, 12, 0xE1}, {20, 12, 0x0A}};
  for (const FieldByte& bad : bad_bytes) {
    Poke({bad}, kOrioles);
    const std::string failure = FailureOf("Orioles");
    EXPECT_NE(failure.find(std::to_string(bad.row)), std::string::npos) << bad << ": " << failure;
    EXPECT_NE(failure.find(std::to_string(bad.offset)), std::string::npos)
        << bad << ": " << failure;
    EXPECT_TRUE(editor.channel.is_open()) << bad;
    EXPECT_EQ(disk.reads.back().position, kOrioles + 32 * bad.row + bad.offset);
    editor.channel.Close();
    Poke({{bad.row, bad.offset, 0x11}}, kOrioles);
  }
}

TEST_F(TeamLoaderFailureTest, WhatStandsBeforeTheFailureIsShown) {
  Poke({{3, 11, 0x2B}}, kOrioles);
  Poke({{3, 10, 99}, {4, 10, 98}}, kOrioles);
  Load("Braves");
  Type({{3, 5, "old"}, {3, 6, "old"}, {4, 5, "old"}, {0, 7, "old"}, {0, 12, "old"}, {0, 9, "old"}});
  EXPECT_THROW(Load("Orioles"), OperationFailed);
  ExpectShown({{3, 3, "99"},
               {4, 3, "98"},
               {24, 4, "R"},
               {2, 5, "3"},
               {3, 5, "3"},
               {3, 6, "old"},
               {4, 5, "old"},
               {0, 7, "old"},
               {0, 12, "old"},
               {0, 9, "old"}});
  EXPECT_EQ(view.calls.back(), "prepare");
  EXPECT_EQ(editor.image.team_base(), kOrioles);
}

TEST_F(TeamLoaderFailureTest, AnyReadMayFail) {
  Load("Braves");
  const auto reads = static_cast<int>(disk.reads.size());
  ASSERT_EQ(reads, 25 * (9 + 3 + 1 + 5 + 4 + 5));
  for (int nth = 1; nth <= reads; ++nth) {
    disk.failing_read = nth;
    ASSERT_THROW(Load("Braves"), OperationFailed) << nth;
    ASSERT_EQ(disk.reads.size(), static_cast<std::size_t>(nth - 1));
    ASSERT_TRUE(editor.channel.is_open()) << nth;
    editor.channel.Close();
  }
  disk.failing_read = reads + 1;
  Load("Braves");
  EXPECT_FALSE(editor.channel.is_open());
  EXPECT_TRUE(disk.writes.empty());
}

TEST_F(TeamLoaderFailureTest, TheNextLoadWorksOnceTheChannelIsClosed) {
  disk.failing_read = 500;
  EXPECT_THROW(Load("Orioles"), OperationFailed);
  EXPECT_THROW(Load("Braves"), OperationFailed);
  editor.channel.Close();
  Load("Braves");
  ExpectShown({{0, 1, "A.BA"}, {24, 14, "18"}});
}

}  // namespace
}  // namespace morlek
