#include "support/editor_fixture.h"

namespace morlek {
namespace {

/// What a whole save does, and what it or the load before it leaves for the next.
class TeamSaverTest : public TeamTest {
 protected:
  TeamSaverTest() { Load("Braves"); }

  void ExpectSaved(const std::vector<CellText>& cells, const std::vector<FieldByte>& bytes) {
    Type(cells);
    Save();
    ExpectWritten(bytes);
  }

  void ExpectNothingWritten() {
    Save();
    EXPECT_TRUE(disk.writes.empty());
    EXPECT_EQ(saved.taken, RecordBytes());
    EXPECT_EQ(saved.end_row, std::nullopt);
    EXPECT_FALSE(channel.is_open());
  }

  using Reports = std::vector<RecordingListener::Report>;
};

TEST_F(TeamSaverTest, WritesInTheOrderOfTheSteps) {
  std::vector<std::int64_t> expected;
  const auto add = [&](int row, const std::vector<int>& offsets) {
    for (const int offset : offsets) expected.push_back(kOrioles + 32 * row + offset);
  };
  for (int row = 0; row < 25; ++row) add(row, {0});
  for (int row = 0; row < 25; ++row) {
    add(row, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
    if (row < 15) {
      add(row, {13, 11, 12, 24, 25, 26, 28, 14, 15, 16});
    } else {
      add(row, {17, 11, 12, 28, 29, 26, 24, 30, 14, 21, 23, 15, 16});
    }
  }
  Load("Orioles");
  Save();
  std::vector<std::int64_t> positions;
  for (const ByteAccess& write : disk.writes) positions.push_back(write.position);
  EXPECT_EQ(positions, expected);
  EXPECT_FALSE(channel.is_open());
}

TEST_F(TeamSaverTest, EmptyTextsWriteTheSFlagsAlone) {
  grid = {};
  Save();
  std::vector<ByteAccess> flags;
  for (int row = 15; row < 25; ++row) flags.push_back({kBraves + 32 * row + 17, 0});
  EXPECT_EQ(disk.writes, flags);
  EXPECT_EQ(listener.heard.size(), 25U) << "an unknown letter a name";
}

TEST_F(TeamSaverTest, AStuckChannelIsClosedAndItsFileUntouched) {
  Type({{0, 3, "77"}, {24, 2, "SS"}});
  disk.files["stuck"] = file();
  for (const char* path : {"stuck", kImage}) {
    ASSERT_TRUE(channel.OpenBinary(path));
    ExpectNothingWritten();
    ASSERT_TRUE(channel.OpenTextInput(path));
    ExpectNothingWritten();
  }
  ASSERT_TRUE(channel.OpenTextOutput("text"));
  ExpectNothingWritten();
  // The codecs have run all the same.
  ExpectSaved({{0, 3, "x"}, {0, 2, "x"}}, {{0, 10, 77}, {0, 9, 0x0C}});
}

TEST_F(TeamSaverTest, AnEmptyNameIsReportedOnceAndSavedAsBlanksUnwritten) {
  Type({{3, 1, "D.ABCDEFGH"}, {4, 1, ""}, {5, 1, "F.1A"}});
  Save();
  EXPECT_EQ(listener.heard, (Reports{{4, ""}, {5, "1"}}));
  // The unknown letter of row 5 repeats the last blank of row 4, not the H of row 3.
  ExpectWritten({{3, 8, 0x12}, {4, 0, kNotWritten}, {4, 1, kNotWritten}, {4, 8, kNotWritten}});
  ExpectWritten({{5, 0, 0x10}, {5, 1, 0x00}, {5, 2, 0x0B}});
}

TEST_F(TeamSaverTest, ANameThatIsTooLongIsReportedAndEndsTheSave) {
  Type({{2, 1, "Z.ZZ"}, {5, 1, "Q.ABCDEFGHI"}, {7, 1, "R.ABCDEFGHIJK"}, {9, 1, "?.X"}});
  Save();
  EXPECT_EQ(listener.heard, (Reports{{9, "?"}, {5, "too long"}}));
  EXPECT_EQ(saved.end_row, 5);
  EXPECT_FALSE(channel.is_open());
  // All initials, and the rows before it in full.
  ExpectWritten({{2, 1, 0x24}, {4, 0, 0x0F}, {4, 16, 0x04}, {5, 0, 0x1B}, {7, 0, 0x1C}});
  ExpectWritten({{9, 0, 0x13}, {24, 0, 0x23}});
  EXPECT_EQ(disk.writes.size(), 25U + 5 * 20);
}

TEST_F(TeamSaverTest, LetterCodesLastBetweenSaves) {
  ExpectSaved({{24, 1, "Y.ABCDEFGZ"}}, {{24, 8, 0x24}});
  ExpectSaved({{0, 1, "1.A"}, {24, 1, "Y.ABCDEFG."}}, {{0, 0, 0x24}, {24, 8, 0x11}});
  // The last code is that of the period now, which is none; the number before it is forgotten.
  ExpectSaved({{0, 1, "1.A"}}, {{0, 0, 0x00}});
}

TEST_F(TeamSaverTest, UniformNumbersAndPositionsLastBetweenTeams) {
  ExpectSaved({{0, 3, "21"}, {1, 3, "x"}, {24, 2, "SS"}}, {{0, 10, 21}, {1, 10, 21}});
  Load("Orioles");
  Type({{0, 3, "07"}, {1, 3, "07"}, {2, 3, "201"}, {0, 2, "SP"}});
  Save();
  // Slot 1 has no number of its own yet and repeats the row before.
  ExpectWritten({{0, 10, 21}, {1, 10, 21}, {2, 10, 3}, {0, 9, 0x0C}}, kOrioles);
}

TEST_F(TeamSaverTest, TheLastUniformNumberAndFirstRatingsLast) {
  ExpectSaved({{0, 3, "x"}, {0, 5, "x"}}, {{0, 10, kNotWritten}, {0, 11, kNotWritten}});
  ExpectSaved({}, {{0, 10, 25}, {0, 11, 0x46}});
  ExpectSaved({{24, 5, "3"}, {24, 6, "10"}}, {{0, 11, 0x46}, {24, 11, kNotWritten}});
  ExpectSaved({}, {{0, 11, kNotWritten}});
}

TEST_F(TeamSaverTest, OtherConvertedValuesHandsAndMarksStartAnew) {
  Save();
  ExpectSaved({{0, 7, "x"}, {15, 7, "x"}, {0, 12, "x"}, {0, 13, "x"}, {0, 14, "x"}, {15, 4, "X"}},
              {{0, 12, 0}, {15, 12, 0}, {0, 14, 0}, {0, 15, 0}, {0, 16, 0}, {15, 21, 0}});
  ExpectWritten({{15, 23, 0}, {16, 21, 0x03}});
}

TEST_F(TeamSaverTest, SidesAveragesBufferAndNumberTextLast) {
  Save();
  ExpectSaved({{1, 4, "X"}, {2, 4, "B"}, {3, 4, "S"}, {4, 4, "?"}, {0, 9, ".600"}, {15, 9, "x"}},
              {{1, 13, 0x11}, {2, 13, 0x20}, {4, 13, 0x11}, {0, 24, 0x08}, {15, 28, 0x22}});
  // Row 2 passed its runs batted in last, row 16 its saves; the last number was 174.
  ExpectSaved({{0, 10, "201"}, {2, 10, "x"}, {16, 10, "x"}},
              {{0, 26, 174}, {2, 26, 62}, {16, 26, 166}});
}

TEST_F(TeamSaverTest, CountsStartFromWhatTheLoadLeft) {
  ExpectSaved({{2, 11, "99"}}, {});
  Poke({{2, 30, 33}, {24, 30, 45}, {3, 30, 201}});
  Load("Braves");
  ExpectSaved({{0, 10, "201"}, {2, 10, "abc"}, {3, 10, "abc"}},
              {{0, 26, 0x45}, {2, 26, 33}, {3, 26, 99}});
}

TEST_F(TeamSaverTest, CountsWithoutAnyNumberBeforeAreZero) {
  codec_state = {};
  grid = {};
  for (int row = 0; row <= 15; ++row) Type({{row, 10, "201"}, {row, 11, "201"}});
  Type({{15, 8, "201"}, {16, 10, "x"}});
  Save();
  // No number text at all, then the untouched buffer.
  ExpectWritten({{0, 26, 0}, {0, 28, 0}, {15, 24, 0}, {15, 30, 0}, {16, 26, 0}});
}

}  // namespace
}  // namespace morlek
