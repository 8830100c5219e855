#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/editor_fixture.h"

namespace morlek {
namespace {

struct NameCase {
  const char* name;
  int row;
  const char* text;
  std::vector<int> codes;  // and blanks up to nine
};

void PrintTo(const NameCase& name_case, std::ostream* out) { *out << name_case.name; }

// clang-format off
const std::vector<NameCase> kNameCases = {
    {"SmallLetters", 0, "j.smith", {0x14, 0x1D, 0x17, 0x13, 0x1E, 0x12}},
    {"AnythingForThePeriod", 3, "A1SM", {0x0B, 0x1D, 0x17}},
    {"InitialAlone", 24, "K", {0x15}},
    {"TenCharacters", 24, "W.ABCDEFGZ", {0x21, 0x0B, 0x0C, 0x0D, 0x0E, 0x0F, 0x10, 0x11, 0x24}},
    {"BlankInside", 3, " .A B", {0x00, 0x0B, 0x00, 0x0C}},
    {"SmallCIsACapital", 3, "c.cc", {0x0D, 0x0D, 0x0D}},
    {"UnknownRepeatsTheLetterBefore", 3, "J.SM1TH", {0x14, 0x1D, 0x17, 0x17, 0x1E, 0x12}},
    {"PeriodRepeatsTheLetterBefore", 3, "J.S.T", {0x14, 0x1D, 0x1D, 0x1E}},
    {"UnknownAfterAPeriodToo", 3, "J.S.1T", {0x14, 0x1D, 0x1D, 0x1D, 0x1E}},
    // The initials of all rows, up to Y of row 24, come before any surname.
    {"UnknownInitialRepeatsTheInitialBefore", 3, "?.X", {0x0D, 0x22}},
    {"PeriodAloneRepeatsTheInitialBefore", 3, ".", {0x0D}},
    {"FirstSurnameFollowsTheLastInitial", 0, "A..B", {0x0B, 0x23, 0x0C}},
    {"FirstInitialOfTheRunHasNoneBefore", 0, "1.A", {0x00, 0x0B}},
    {"FirstPeriodOfTheSaveHasNoneBefore", 0, ".", {}}};
// clang-format on

class TeamSaverName : public TeamTest, public ::testing::WithParamInterface<NameCase> {};

TEST_P(TeamSaverName, IsWritten) {
  Load("Braves");
  const int row = GetParam().row;
  Type({{row, 1, GetParam().text}});
  Save();
  std::vector<int> codes = GetParam().codes;
  codes.resize(9);
  for (int place = 0; const int code : codes) ExpectWritten({{row, place++, code}});
}

constexpr auto kName = [](const auto& info) { return std::string(info.param.name); };
INSTANTIATE_TEST_SUITE_P(Names, TeamSaverName, ::testing::ValuesIn(kNameCases), kName);

class TeamSaverMessages : public TeamTest {
 protected:
  TeamSaverMessages() { Load("Braves"); }

  using Texts = std::vector<std::string>;
};

TEST_F(TeamSaverMessages, TellOfEveryUnknownLetter) {
  Type({{3, 1, "J.1M2TH"}, {7, 1, "\xC9.-X"}});
  Save();
  const std::string unknown = kUnknownLetter;
  EXPECT_EQ(messages.Texts(), (Texts{unknown, unknown, unknown, unknown, kSaved}));
  EXPECT_EQ(messages.shown.back(), (Message{kSaved, "MORLEK EDITOR", Message::Icon::kNone}));
}

TEST_F(TeamSaverMessages, TellOfAnEmptyNameOnceAndSaveItAsBlanksUnwritten) {
  Type({{3, 1, "D.ABCDEFGH"}, {4, 1, ""}, {5, 1, "F.1A"}});
  Save();
  EXPECT_EQ(messages.Texts(), (Texts{kUnknownLetter, kUnknownLetter, kSaved}));
  // The unknown letter of row 5 repeats the last blank of row 4, not the H of row 3.
  ExpectWritten({{3, 8, 0x12}, {4, 0, kNotWritten}, {4, 1, kNotWritten}, {4, 8, kNotWritten}});
  ExpectWritten({{5, 0, 0x10}, {5, 1, 0x00}, {5, 2, 0x0B}});
}

TEST_F(TeamSaverMessages, TellOfANameThatIsTooLongAndEndTheSave) {
  Type({{2, 1, "Z.ZZ"}, {5, 1, "Q.ABCDEFGHI"}, {7, 1, "R.ABCDEFGHIJK"}, {9, 1, "?.X"}});
  Save();
  EXPECT_EQ(messages.Texts(), (Texts{kUnknownLetter, kNameTooLong}));
  EXPECT_EQ(messages.shown.back(), (Message{kNameTooLong, "MORLEK EDITOR", Message::Icon::kNone}));
  EXPECT_FALSE(channel.is_open());
  // All initials, and the rows before it in full.
  ExpectWritten({{2, 1, 0x24}, {4, 0, 0x0F}, {4, 16, 0x04}, {5, 0, 0x1B}, {7, 0, 0x1C}});
  ExpectWritten({{9, 0, 0x13}, {24, 0, 0x23}});
  EXPECT_EQ(disk.writes.size(), 25U + 5 * 20);
}

}  // namespace
}  // namespace morlek
