#include "team/team_loader.h"

#include "support/editor_fixture.h"

namespace morlek {
namespace {

using TeamLoaderTest = TeamTest;

TEST_F(TeamLoaderTest, BytesPastTheEndOfAShortImageShowAsZero) {
  file().resize(kBraves - 1 + 32 * 24 + 5);
  Load("Braves");
  ExpectShown({{23, 3, "24"}, {24, 1, "Y.BY"}, {24, 2, "P"}, {24, 3, "0"}, {24, 4, "R"}});
  ExpectShown({{24, 5, "1"}, {24, 7, "1"}, {24, 9, "2.80"}, {24, 11, "0"}, {24, 12, "0"}});
}

TEST_F(TeamLoaderTest, WithoutATeamNothingIsRead) {
  load = LoadTeam(image, location, codec_state, grid);
  EXPECT_EQ(load.outcome, LoadResult::Outcome::kEndedEarly);
  EXPECT_TRUE(disk.reads.empty());
  EXPECT_TRUE(channel.is_open());
}

/// Bytes of the Braves' record, and of the Orioles' where that team is loaded first.
struct LoaderCase {
  const char* name;
  std::vector<FieldByte> earlier;
  std::vector<FieldByte> bytes;
  std::vector<CellText> shown;
};

void PrintTo(const LoaderCase& loader_case, std::ostream* out) { *out << loader_case.name; }

class TeamLoaderCase : public TeamTest, public ::testing::WithParamInterface<LoaderCase> {};

TEST_P(TeamLoaderCase, Shows) {
  if (!GetParam().earlier.empty()) {
    Poke(GetParam().earlier, kOrioles);
    Load("Orioles");
  }
  Poke(GetParam().bytes);
  Load("Braves");
  ExpectShown(GetParam().shown);
}

/// A number that no row has in rows 0 to 15 of a field, and another byte.
std::vector<FieldByte> Unknown(int offset, const FieldByte& other) {
  std::vector<FieldByte> bytes = {other};
  for (int row = 0; row <= 15; ++row) bytes.push_back({row, offset, 201});
  return bytes;
}

// clang-format off
const std::vector<LoaderCase> kLoaderCases = {
    {"NineLetters", {}, Name(3, {0x24, 0x0B, 0x0C, 0x0D, 0x0E, 0x0F, 0x10, 0x11, 0x23}),
     {{3, 1, "Z.ABCDEFGY"}, {4, 1, "E.BE"}}},
    {"NothingIsAPeriod", {}, Name(3, {}), {{3, 1, "."}, {4, 1, "E.BE"}}},
    {"BlankInitialClosesUp", {}, Name(3, {0x00, 0x1D, 0x17}), {{3, 1, "S.M"}}},
    {"BlanksInsideCloseUp", {}, Name(3, {0x0B, 0x0A, 0x0C, 0x00, 0x0D}), {{3, 1, "A.BC"}}},
    {"SmallC", {}, Name(3, {0x17, 0x36}), {{3, 1, "M.c"}}},
    {"UnknownDoublesTheLetter", {}, Name(3, {0x1C, 0x25, 0x1D}), {{3, 1, "R.RS"}}},
    {"UnknownAfterABlankIsNothing", {}, Name(3, {0x1C, 0x0A, 0x25, 0x1D}), {{3, 1, "R.S"}}},
    {"FirstOfTheRunUnknown", {}, Name(0, {0xFF, 0x0C, 0x0D}), {{0, 1, "B.C"}}},
    {"UnknownAfterTheRowBefore", {}, {{3, 8, 0x24}, {4, 0, 0xFF}}, {{4, 1, "Z.BE"}}},
    {"UnknownAfterAnotherTeam", {{24, 8, 0x24}}, {{0, 0, 0xFF}}, {{0, 1, "Z.BA"}}},

    // What a codec keeps comes from the row before, from the last row of another team that was
    // loaded, and from rows of the other kind of player that the grid does not show.
    {"Position", {{24, 9, 0x16}}, {{0, 9, 0xFF}, {3, 9, 0x11}}, {{0, 2, "OF"}, {3, 2, "LF"}}},
    {"FirstPositionOfTheRun", {}, {{0, 9, 0x18}}, {{0, 2, ""}}},
    {"Side", {{14, 13, 0x11}, {24, 13, 0x20}}, {{0, 13, 1}}, {{0, 4, "L"}}},
    {"HandByTheHighDigit", {}, {{15, 21, 0x0F}, {16, 21, 0x10}, {17, 21, 0xFF}},
     {{15, 4, "RS>"}, {16, 4, "L<"}, {17, 4, "LS<"}}},
    {"MarksOfTheRowBefore", {}, {{16, 23, 0x22}, {17, 23, 0x03}}, {{17, 4, "LS<"}}},
    {"MarksOfABatter", {}, {{14, 23, 0x10}, {15, 23, 0x03}}, {{15, 4, "L>"}}},
    {"MarksOfAnotherTeam", {{24, 23, 0x21}}, {{15, 23, 0x03}}, {{15, 4, "LS<"}}},
    {"Ratings", {}, {{2, 11, 0x35}, {2, 12, 0x09}, {3, 11, 0x90}, {15, 12, 0x12}, {16, 12, 0x99}},
     {{2, 5, "4"}, {2, 6, "6"}, {2, 7, "1"}, {2, 8, "10"}, {3, 5, "10"}, {3, 6, "1"}, {15, 7, "13"},
      {15, 8, "105"}, {16, 7, "100"}}},
    {"Appearance", {}, {{0, 14, 5}, {15, 15, 0}, {24, 16, 0xAF}},
     {{0, 12, "5"}, {15, 13, "0"}, {24, 14, "AF"}}},
    {"BattingAverageOfAnotherTeamsPitcher", {{24, 24, 0x02}, {24, 25, 0x31}}, {{0, 25, 0x32}},
     {{0, 9, ".258"}}},
    {"EarnedRunAverageOfABatter", {}, {{14, 28, 0x00}, {14, 29, 0x21}, {15, 29, 0}},
      {{15, 9, "2.56"}}},
    {"EarnedRunAverageOfAnotherTeam", {{24, 28, 0x00}, {24, 29, 0x21}}, {{15, 29, 0}},
     {{15, 9, "2.56"}}},
    {"FirstEarnedRunAverageOfTheRun", {}, {{15, 29, 0}}, {{15, 9, "."}}},

    // One result serves all numbers, so the first unknown one of a pass shows the last of the pass
    // before it.
    {"FirstOfTheRun", {}, {{0, 10, 201}, {3, 10, 255}}, {{0, 3, ""}, {3, 3, "3"}}},
    {"UniformNumbersFollowAnotherTeam", {{24, 30, 76}}, {{0, 10, 201}}, {{0, 3, "76"}}},
    {"HomeRunsFollowUniformNumbers", {}, Unknown(26, {24, 10, 71}), {{0, 10, "71"}, {9, 10, "71"}}},
    {"RunsBattedInFollowHomeRuns", {}, Unknown(28, {24, 26, 72}), {{0, 11, "72"}}},
    {"WinsFollowRunsBattedIn", {}, Unknown(24, {24, 28, 73}), {{15, 8, "73"}}},
    {"LossesFollowWins", {}, Unknown(26, {24, 24, 74}), {{15, 10, "74"}}},
    {"SavesFollowLosses", {}, Unknown(30, {24, 26, 75}), {{15, 11, "75"}}},
    {"PitchersFollowTheBattersOfThePass", {}, {{14, 30, 78}, {15, 30, 201}}, {{15, 11, "78"}}}};
// clang-format on

INSTANTIATE_TEST_SUITE_P(All, TeamLoaderCase, ::testing::ValuesIn(kLoaderCases), kCaseName);

}  // namespace
}  // namespace morlek
