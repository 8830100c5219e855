#include "support/editor_fixture.h"
#include "textfile/team_export.h"
#include "textfile/team_import.h"

namespace morlek {
namespace {

constexpr char kFile[] = "team.txt";

class TeamDataFileTest : public TeamTest {
 protected:
  void Import(const std::string& text) {
    disk.files[kFile].assign(text.begin(), text.end());
    imported = ImportTeamData(channel, kFile, grid);
  }

  void FillGrid() {
    for (int row = 0; row < 25; ++row) {
      for (int column = 1; column <= 14; ++column) {
        Type({{row, column, std::to_string(row) + "." + std::to_string(column)}});
      }
    }
  }

  ImportResult imported;
};

std::string Lines(int count, const std::string& line) {
  std::string text;
  for (int row = 0; row < count; ++row) text += line;
  return text;
}

TEST_F(TeamDataFileTest, PitcherLinesHaveTheirAverageFifth) {
  FillGrid();
  EXPECT_EQ(ExportTeamData(channel, kFile, grid), ExportResult::kWritten);
  const std::string content(disk.files[kFile].begin(), disk.files[kFile].end());
  EXPECT_TRUE(
      content.starts_with("0.1,0.2,0.3,0.4,0.5,0.6,0.7,0.8,0.9,0.10,0.11,0.12,0.13,0.14,\r\n1.1,"));
  EXPECT_TRUE(content.ends_with(
      "\r\n24.1,24.2,24.3,24.4,24.9,24.5,24.6,24.7,24.8,24.10,24.11,24.12,24.13,24.14,\r\n"));
  EXPECT_NE(content.find("\r\n14.1,14.2,14.3,14.4,14.5,"), std::string::npos);
  EXPECT_NE(content.find("\r\n15.1,15.2,15.3,15.4,15.9,15.5,"), std::string::npos);
}

TEST_F(TeamDataFileTest, TheFieldsOfEveryLineGoIntoItsRow) {
  const std::string longest(kLongestText, 'x');
  struct Case {
    std::string file;
    std::vector<CellText> cells;
  };
  // clang-format off
  const std::vector<Case> cases = {
      // Too few and too many fields stay in their line; an empty line leaves its row empty.
      {"A,B,\r\n1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,\r\n\r\n" + Lines(22, "Z,\r\n"),
       {{0, 1, "A"}, {0, 2, "B"}, {0, 3, ""}, {1, 1, "1"}, {1, 14, "14"}, {2, 1, ""}, {3, 1, "Z"},
        {24, 1, "Z"}}},
      // Characters behind the last comma go to the next line, also past empty ones.
      {"A,left\r\nB,C,\r\n\r\nD\r\n\r\nE,F,\r" + Lines(18, "Z,\r") + "Y,dropped",
       {{0, 1, "A"}, {0, 2, ""}, {1, 1, "leftB"}, {1, 2, "C"}, {5, 1, "DE"}, {24, 1, "Y"},
        {24, 2, ""}}},
      // Only a carriage return ends a line.
      {"A\n,B\x1A,C" + std::string(1, '\0') + ",\n,\r" + Lines(24, ",\r\n"),
       {{0, 1, "A\n"}, {0, 2, "B\x1A"}, {0, 3, std::string("C\0", 2)}, {0, 4, "\n"}}},
      // The last line needs no end, and lines behind it are not read.
      {Lines(24, "A,\r\n") + "LAST,", {{24, 1, "LAST"}}},
      {Lines(25, "A,\r\n") + "MORE,MORE,", {{24, 1, "A"}, {24, 2, ""}}},
      // A field that is longer than a box is cut, and the next one is whole.
      {longest + "yz,NEXT," + longest + ",\r\n" + Lines(24, ",\r\n"),
       {{0, 1, longest}, {0, 2, "NEXT"}, {0, 3, longest}}}};
  // clang-format on
  for (const auto& [file, cells] : cases) {
    FillGrid();
    Import(file);
    EXPECT_EQ(imported.outcome, ImportResult::Outcome::kRead);
    EXPECT_EQ(imported.lines, 25);
    ExpectShown(cells);
  }
}

}  // namespace
}  // namespace morlek
