#include <gtest/gtest.h>

#include <vector>

#include "support/editor_fixture.h"

// What one save, or the load before it, leaves for the next.
namespace morlek {
namespace {

class TeamSaverCarry : public TeamTest {
 protected:
  TeamSaverCarry() { Load("Braves"); }

  void ExpectSaved(const std::vector<CellText>& cells, const std::vector<FieldByte>& bytes) {
    Type(cells);
    Save();
    ExpectWritten(bytes);
  }
};

TEST_F(TeamSaverCarry, LetterCodesLastBetweenSaves) {
  ExpectSaved({{24, 1, "Y.ABCDEFGZ"}}, {{24, 8, 0x24}});
  ExpectSaved({{0, 1, "1.A"}, {24, 1, "Y.ABCDEFG."}}, {{0, 0, 0x24}, {24, 8, 0x11}});
  // The last code is that of the period now, which is none; the number before it is forgotten.
  ExpectSaved({{0, 1, "1.A"}}, {{0, 0, 0x00}});
}

TEST_F(TeamSaverCarry, UniformNumbersAndPositionsLastBetweenTeams) {
  ExpectSaved({{0, 3, "21"}, {1, 3, "x"}, {24, 2, "SS"}}, {{0, 10, 21}, {1, 10, 21}});
  Load("Orioles");
  Type({{0, 3, "07"}, {1, 3, "07"}, {2, 3, "201"}, {0, 2, "SP"}});
  Save();
  // Slot 1 has no number of its own yet and repeats the row before.
  ExpectWritten({{0, 10, 21}, {1, 10, 21}, {2, 10, 3}, {0, 9, 0x0C}}, kOrioles);
}

TEST_F(TeamSaverCarry, TheLastUniformNumberAndFirstRatingsLast) {
  ExpectSaved({{0, 3, "x"}, {0, 5, "x"}}, {{0, 10, kNotWritten}, {0, 11, kNotWritten}});
  ExpectSaved({}, {{0, 10, 25}, {0, 11, 0x46}});
  ExpectSaved({{24, 5, "3"}, {24, 6, "10"}}, {{0, 11, 0x46}, {24, 11, kNotWritten}});
  ExpectSaved({}, {{0, 11, kNotWritten}});
}

TEST_F(TeamSaverCarry, OtherConvertedValuesHandsAndMarksStartAnew) {
  Save();
  ExpectSaved({{0, 7, "x"}, {15, 7, "x"}, {0, 12, "x"}, {0, 13, "x"}, {0, 14, "x"}, {15, 4, "X"}},
              {{0, 12, 0}, {15, 12, 0}, {0, 14, 0}, {0, 15, 0}, {0, 16, 0}, {15, 21, 0}});
  ExpectWritten({{15, 23, 0}, {16, 21, 0x03}});
}

TEST_F(TeamSaverCarry, SidesAveragesBufferAndNumberTextLast) {
  Save();
  ExpectSaved({{1, 4, "X"}, {2, 4, "B"}, {3, 4, "S"}, {4, 4, "?"}, {0, 9, ".600"}, {15, 9, "x"}},
              {{1, 13, 0x11}, {2, 13, 0x20}, {4, 13, 0x11}, {0, 24, 0x08}, {15, 28, 0x22}});
  // Row 2 passed its runs batted in last, row 16 its saves; the last number was 174.
  ExpectSaved({{0, 10, "201"}, {2, 10, "x"}, {16, 10, "x"}},
              {{0, 26, 174}, {2, 26, 62}, {16, 26, 166}});
}

TEST_F(TeamSaverCarry, CountsStartFromWhatTheLoadLeft) {
  Type({{2, 11, "99"}});
  Save();
  Poke({{2, 30, 33}, {24, 30, 45}, {3, 30, 201}});
  Load("Braves");
  ExpectSaved({{0, 10, "201"}, {2, 10, "abc"}, {3, 10, "abc"}},
              {{0, 26, 0x45}, {2, 26, 33}, {3, 26, 99}});
}

TEST_F(TeamSaverCarry, CountsWithoutAnyNumberBeforeAreZero) {
  disk.files["image"] = std::vector<std::uint8_t>(800, 0x77);
  kept = {};
  grid = {};
  image.SetPath("image");
  image.SetTeamBase(1);
  grid.SetText({Column::kText10, 0}, "201");
  grid.SetText({Column::kText11, 0}, "201");
  grid.SetText({Column::kText10, 1}, "x");
  Save();
  // No number text at all, then the untouched buffer, beside the flags of the ten pitchers.
  std::vector<ByteAccess> expected = {{1 + 26, 0}, {1 + 28, 0}, {33 + 26, 0}};
  for (int row = 15; row < 25; ++row) expected.push_back({1 + 32 * row + 17, 0});
  EXPECT_EQ(disk.writes, expected);
}

}  // namespace
}  // namespace morlek
