#include <gtest/gtest.h>

#include <string>

#include "image/failure.h"
#include "support/memory_disk.h"
#include "textfile/team_export.h"
#include "textfile/team_import.h"

namespace morlek {
namespace {

constexpr char kFile[] = "team.txt";

class TeamDataFileTest : public ::testing::Test {
 protected:
  void Put(const std::string& text) { disk.files[kFile].assign(text.begin(), text.end()); }
  [[nodiscard]] std::string Content() const {
    return {disk.files.at(kFile).begin(), disk.files.at(kFile).end()};
  }

  void Export() { ExportTeamData(channel, kFile, grid); }
  void Import() { ImportTeamData(channel, kFile, grid); }

  [[nodiscard]] const std::string& Text(int column, int row) const {
    return grid.Text({static_cast<Column>(column), row});
  }

  void FillGrid() {
    for (int row = 0; row < 25; ++row) {
      for (int column = 1; column <= 14; ++column) {
        grid.SetText({static_cast<Column>(column), row},
                     std::to_string(row) + "." + std::to_string(column));
      }
    }
  }

  static std::string Lines(int count, const std::string& line) {
    std::string text;
    for (int row = 0; row < count; ++row) text += line;
    return text;
  }

  MemoryDisk disk;
  Channel channel{disk.Opener()};
  RosterGrid grid;
};

TEST_F(TeamDataFileTest, PitcherLinesHaveTheirAverageFifth) {
  FillGrid();
  Export();
  const std::string content = Content();
  EXPECT_TRUE(
      content.starts_with("0.1,0.2,0.3,0.4,0.5,0.6,0.7,0.8,0.9,0.10,0.11,0.12,0.13,0.14,\r\n1.1,"));
  EXPECT_TRUE(content.ends_with(
      "\r\n24.1,24.2,24.3,24.4,24.9,24.5,24.6,24.7,24.8,24.10,24.11,24.12,24.13,24.14,\r\n"));
  EXPECT_NE(content.find("\r\n14.1,14.2,14.3,14.4,14.5,"), std::string::npos);
  EXPECT_NE(content.find("\r\n15.1,15.2,15.3,15.4,15.9,15.5,"), std::string::npos);
}

TEST_F(TeamDataFileTest, TooFewAndTooManyFieldsStayInTheirLine) {
  FillGrid();
  Put("A,B,\r\n" + std::string("1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,\r\n") + "\r\n" +
      Lines(22, "Z,\r\n"));
  Import();
  EXPECT_EQ(Text(1, 0), "A");
  EXPECT_EQ(Text(2, 0), "B");
  EXPECT_EQ(Text(3, 0), "");
  EXPECT_EQ(Text(1, 1), "1");
  EXPECT_EQ(Text(14, 1), "14");
  EXPECT_EQ(Text(1, 2), "") << "an empty line leaves its row empty";
  EXPECT_EQ(Text(1, 3), "Z");
  EXPECT_EQ(Text(1, 24), "Z");
}

TEST_F(TeamDataFileTest, CharactersBehindTheLastCommaGoToTheNextLine) {
  Put("A,left\r\nB,C,\r\n\r\nD\r\n\r\nE,F,\r" + Lines(18, "Z,\r") + "Y,dropped");
  Import();
  EXPECT_EQ(Text(1, 0), "A");
  EXPECT_EQ(Text(2, 0), "");
  EXPECT_EQ(Text(1, 1), "leftB");
  EXPECT_EQ(Text(2, 1), "C");
  EXPECT_EQ(Text(1, 5), "DE") << "empty lines in between keep it";
  EXPECT_EQ(Text(1, 24), "Y");
  EXPECT_EQ(Text(2, 24), "");
}

TEST_F(TeamDataFileTest, OnlyACarriageReturnEndsALine) {
  Put("A\n,B\x1A,C" + std::string(1, '\0') + ",\n,\r" + Lines(24, ",\r\n"));
  Import();
  EXPECT_EQ(Text(1, 0), "A\n");
  EXPECT_EQ(Text(2, 0), "B\x1A");
  EXPECT_EQ(Text(3, 0), std::string("C\0", 2));
  EXPECT_EQ(Text(4, 0), "\n");
}

TEST_F(TeamDataFileTest, LastLineNeedsNoEndAndLinesBehindItAreNotRead) {
  Put(Lines(24, "A,\r\n") + "LAST,");
  Import();
  EXPECT_EQ(Text(1, 24), "LAST");
  Put(Lines(25, "A,\r\n") + "MORE,MORE,");
  Import();
  EXPECT_EQ(Text(1, 24), "A");
  EXPECT_EQ(Text(2, 24), "");
}

TEST_F(TeamDataFileTest, ShortFileFillsWhatItHasAndLeavesTheChannelOpen) {
  for (const std::string end : {"", "\r", "\r\n"}) {
    FillGrid();
    Put("A,\r\nB," + end);
    EXPECT_THROW(Import(), OperationFailed);
    EXPECT_EQ(Text(1, 1), "B");
    EXPECT_EQ(Text(2, 1), "");
    EXPECT_EQ(Text(1, 2), "");
    EXPECT_EQ(Text(14, 24), "");
    EXPECT_TRUE(channel.is_open());
    channel.Close();
  }
}

TEST_F(TeamDataFileTest, FieldLongerThanABoxIsCutAndTheNextOneIsWhole) {
  const std::string longest(32767, 'x');
  Put(longest + "yz,NEXT," + longest + ",\r\n" + Lines(24, ",\r\n"));
  Import();
  EXPECT_EQ(Text(1, 0), longest);
  EXPECT_EQ(Text(2, 0), "NEXT");
  EXPECT_EQ(Text(3, 0), longest);
}

}  // namespace
}  // namespace morlek
