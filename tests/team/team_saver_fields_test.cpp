#include "support/editor_fixture.h"

namespace morlek {
namespace {

/// The first save of a run, from the plain record with some cells changed, and what it writes.
struct SaverCase {
  const char* name;
  std::vector<CellText> cells;
  std::vector<FieldByte> bytes;
};

void PrintTo(const SaverCase& saver_case, std::ostream* out) { *out << saver_case.name; }

// clang-format off
const std::vector<SaverCase> kSaverCases = {
    {"SmallLetters", {{0, 1, "j.smith"}}, Name(0, {0x14, 0x1D, 0x17, 0x13, 0x1E, 0x12})},
    {"AnythingForThePeriod", {{3, 1, "A1SM"}}, Name(3, {0x0B, 0x1D, 0x17})},
    {"InitialAlone", {{24, 1, "K"}}, Name(24, {0x15})},
    {"TenCharacters", {{24, 1, "W.ABCDEFGZ"}},
     Name(24, {0x21, 0x0B, 0x0C, 0x0D, 0x0E, 0x0F, 0x10, 0x11, 0x24})},
    {"BlankInside", {{3, 1, " .A B"}}, Name(3, {0x00, 0x0B, 0x00, 0x0C})},
    {"SmallCIsACapital", {{3, 1, "c.cc"}}, Name(3, {0x0D, 0x0D, 0x0D})},
    {"UnknownRepeatsTheLetterBefore", {{3, 1, "J.SM1TH"}},
     Name(3, {0x14, 0x1D, 0x17, 0x17, 0x1E, 0x12})},
    {"UnknownAfterAPeriodToo", {{3, 1, "J.S.1T"}}, Name(3, {0x14, 0x1D, 0x1D, 0x1D, 0x1E})},
    // The initials of all rows, up to Y of row 24, come before any surname.
    {"UnknownInitialRepeatsTheInitialBefore", {{3, 1, "?.X"}}, Name(3, {0x0D, 0x22})},
    {"PeriodAloneRepeatsTheInitialBefore", {{3, 1, "."}}, Name(3, {0x0D})},
    {"FirstSurnameFollowsTheLastInitial", {{0, 1, "A..B"}}, Name(0, {0x0B, 0x23, 0x0C})},
    {"FirstInitialOfTheRunHasNoneBefore", {{0, 1, "1.A"}}, Name(0, {0x00, 0x0B})},
    {"FirstPeriodOfTheSaveHasNoneBefore", {{0, 1, "."}}, Name(0, {})},

    // A text that gives no byte repeats what its field had in the row before, or 0 in the first row.
    {"Position", {{0, 2, "x"}, {3, 2, "C"}, {4, 2, "SP"}, {5, 2, ""}, {6, 2, "LF "}},
     {{0, 9, 0}, {4, 9, 2}, {5, 9, kNotWritten}, {6, 9, 2}}},
    {"UniformNumber", {{2, 3, "07"}, {4, 3, "201"}, {6, 3, ""}, {7, 3, "7.0"}},
     {{2, 10, 2}, {4, 10, 4}, {6, 10, kNotWritten}, {7, 10, 6}}},
    {"NoUniformNumberYet", {{0, 3, "x"}, {1, 3, "y"}},
     {{0, 10, kNotWritten}, {1, 10, kNotWritten}, {2, 10, 3}}},
    {"FirstRatings", {{2, 5, "x"}, {4, 5, "0"}, {6, 6, "."}, {8, 6, " 1"}, {10, 5, "-1"}},
     {{2, 11, 0x11}, {4, 11, 0x33}, {6, 11, 0x55}, {8, 11, 0x77}, {10, 11, 0x90}}},
    {"NoFirstRatingsYet", {{0, 5, "x"}, {1, 5, "y"}, {2, 5, "0"}},
     {{0, 11, kNotWritten}, {1, 11, kNotWritten}, {2, 11, kNotWritten}, {3, 11, 0x33}}},
    {"FirstRatingsTooLarge", {{2, 5, "3"}, {2, 6, "10"}, {3, 5, "x"}, {4, 5, ""}, {5, 5, "x"}},
     {{2, 11, kNotWritten}, {3, 11, kNotWritten}, {5, 11, kNotWritten}, {6, 11, 0x66}}},
    {"FirstRatingsAreCheckedByTheFirstCell", {{2, 5, ""}, {2, 6, "25"}, {3, 5, "x"},
      {20, 5, "25"}, {20, 6, ""}},
     {{2, 11, kNotWritten}, {3, 11, 0x14}, {20, 11, 0x14}}},
    {"SecondRatingsOfBatters", {{0, 7, "x"}, {2, 7, "0"}, {3, 7, "4"}, {3, 8, "10"},
      {4, 7, "x"}, {5, 8, ""}},
     {{0, 12, 0}, {2, 12, 0x42}, {3, 12, kNotWritten}, {4, 12, kNotWritten}, {5, 12, kNotWritten}}},
    {"SecondRatingOfPitchers", {{15, 7, "x"}, {17, 7, "0"}, {18, 7, "-1"}, {20, 7, "101"},
      {21, 7, "x"}},
     {{15, 12, 0}, {17, 12, 1}, {18, 12, 1}, {20, 12, kNotWritten}, {21, 12, kNotWritten}}},
    {"BattingSide", {{0, 4, "X"}, {3, 4, "RL"}}, {{0, 13, 0}, {3, 13, 0x20}}},
    {"BattingAverage", {{0, 9, ".600"}, {2, 9, ".3"}, {3, 9, ".25"}, {4, 9, "1.000"}},
     {{0, 24, 0}, {0, 25, 0x31}, {2, 24, 0xFB}, {2, 25, 0x31}, {3, 24, 0xFB}, {3, 25, 0x30},
      {4, 24, 0xFB}, {4, 25, 0x31}}},
    {"EarnedRunAverage", {{15, 9, "."}, {17, 9, "2.6"}, {18, 9, "10.00"}, {19, 9, "5.12"}},
     {{15, 28, 0}, {15, 29, 0x20}, {17, 28, 0xD2}, {17, 29, 0x21}, {18, 28, 0xD2}, {18, 29, 0x20},
      {19, 28, 0xD2}, {19, 29, 0x21}}},
    {"Appearance", {{0, 12, "x"}, {2, 12, "-1"}, {0, 13, "G"}, {2, 13, "&H7"}, {0, 14, "."},
      {2, 14, " 7"}},
     {{0, 14, 0}, {2, 14, 0x21}, {0, 15, 0}, {2, 15, 0x41}, {0, 16, 0}, {2, 16, 1}}},
    {"AppearanceTooLarge", {{2, 12, "100"}, {3, 12, "x"}, {2, 13, "FFFF"}, {3, 13, "x"},
      {2, 14, "007"}},
     {{2, 14, kNotWritten}, {3, 14, kNotWritten}, {2, 15, kNotWritten}, {3, 15, kNotWritten},
      {2, 16, 7}}},
    {"EmptyIsCarriedOver", {{2, 13, ""}, {3, 13, "x"}, {4, 14, ""}, {5, 14, "x"}},
     {{3, 15, 0x41}, {5, 16, 0x03}}},

    {"SFlag", {{15, 4, "rs"}, {16, 4, "R<S"}, {17, 4, ""}, {18, 4, "S"}, {19, 4, "XS"}},
     {{15, 17, 1}, {16, 17, 0}, {17, 17, 0}, {18, 17, 0}, {19, 17, 1}}},
    {"HandAndFace", {{15, 4, "rs<"}, {15, 12, "7"}, {16, 4, "L>"}, {16, 12, "1A"},
      {17, 12, "A"}, {18, 12, "FF"}},
     {{15, 21, 0x00}, {15, 23, 0x21}, {16, 21, 0x11}, {16, 23, 0x10}, {17, 21, 0x1A},
      {18, 21, 0x0F}}},
    {"FollowTheFaceAndNotTheBody", {{15, 12, "45"}, {15, 13, "60"}, {15, 14, "1"}},
      {{15, 21, 0x14}}},
    {"AreWrittenByTheFacesCell", {{15, 12, ""}, {16, 4, ""}},
     {{15, 21, kNotWritten}, {15, 23, 0x11}, {16, 21, 0x01}, {16, 23, kNotWritten}}},
    {"Unknown", {{15, 4, "X"}, {16, 12, "45"}, {17, 4, "?S"}, {18, 4, ""}},
     {{15, 21, 0}, {16, 21, 0x04}, {17, 21, 0x04}, {18, 21, 0x04}}},
    // The hand takes the first character of whatever the face's text is.
    {"OfAFaceThatIsNoNumber", {{16, 12, "7 "}, {17, 12, "5x"}, {19, 12, "x5"}, {20, 4, "X"}},
     {{16, 14, 0x2F}, {16, 21, 0x07}, {17, 14, 0x2F}, {17, 21, 0x15}, {19, 14, 0x32},
      {19, 21, 0x03},
      {20, 14, 0x34}, {20, 21, 0x03}, {21, 21, 0x13}}},
    {"UnknownMarks", {{15, 4, "RX"}, {17, 4, "R<S"}, {18, 4, ""}, {19, 4, "<"}},
     {{15, 23, 0}, {17, 23, 0x20}, {18, 23, kNotWritten}, {19, 23, 0x20}}},

    {"Converted", {{2, 10, "045"}, {2, 11, "1e2"}, {16, 8, "2.5"}, {16, 10, "0.5"},
      {16, 11, "&H1F"}},
     {{2, 26, 45}, {2, 28, 100}, {16, 24, 2}, {16, 26, 0}, {16, 30, 31}}},
    // The row's buffer entry is what the count before it left: 32 home runs, 166 saves, 107 wins.
    // Before the first count of a row it is what the load left, a pitcher's saves.
    {"NotANumber", {{2, 11, "abc"}, {16, 8, "300"}, {17, 11, "-1"}, {18, 10, "x"}},
     {{2, 28, 32}, {16, 24, 166}, {17, 30, 107}, {18, 26, 168}}},
    {"WithoutCode", {{2, 10, "201"}, {3, 11, "255"}, {16, 8, "250"}, {17, 11, "222"}},
     {{2, 26, 61}, {3, 28, 33}, {16, 24, 166}, {17, 30, 107}}},
    {"WithoutCodeStaysInTheBuffer", {{2, 10, "201"}, {2, 11, "abc"}}, {{2, 26, 61}, {2, 28, 61}}},
    // The number text is then what the load showed last, 174 saves: no byte in hexadecimal.
    {"WithoutCodeInTheFirstRow", {{0, 10, "201"}, {0, 11, "202"}},
     {{0, 26, kNotWritten}, {0, 28, kNotWritten}, {1, 26, 31}}},
    {"AllOfARowAreEncoded", {{1, 11, ""}, {1, 8, "9"}, {2, 10, "201"}}, {{2, 26, 9}}}};
// clang-format on

class TeamSaverField : public TeamTest, public ::testing::WithParamInterface<SaverCase> {};

TEST_P(TeamSaverField, IsWritten) {
  Load("Braves");
  Type(GetParam().cells);
  Save();
  ExpectWritten(GetParam().bytes);
}

INSTANTIATE_TEST_SUITE_P(All, TeamSaverField, ::testing::ValuesIn(kSaverCases), kCaseName);

}  // namespace
}  // namespace morlek
