#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "support/editor_fixture.h"

namespace morlek {
namespace {

class TeamSaverFailure : public TeamTest {
 protected:
  void ExpectNothingButTheMessage() {
    Save();
    EXPECT_TRUE(disk.writes.empty());
    EXPECT_EQ(messages.Texts(), std::vector<std::string>{kSaved});
    EXPECT_FALSE(channel.is_open());
  }

  void FillAll(const std::string& name, const std::string& text) {
    for (int row = 0; row < 25; ++row) {
      for (int column = 1; column <= 14; ++column) Type({{row, column, column == 1 ? name : text}});
    }
  }
};

TEST_F(TeamSaverFailure, WhateverTheTextsAreOnlyFieldsAreWritten) {
  Load("Braves");
  Save();
  std::set<std::int64_t> fields;
  for (const ByteAccess& write : disk.writes) fields.insert(write.position);
  for (const std::string text : {" ", ".", "&H", "&H8000", "1e999", "-5", "256", "FFFFFFFF", "nan",
                                 "\x80\xFF", "a\r\nb\x1A", "99999999999999999999"}) {
    FillAll(text.substr(0, 10), text);
    Save();
    EXPECT_EQ(messages.shown.back().text, kSaved);
    for (const ByteAccess& write : disk.writes) {
      EXPECT_TRUE(fields.contains(write.position)) << text;
    }
  }
}

TEST_F(TeamSaverFailure, EmptyTextsWriteTheSFlagsAlone) {
  Load("Braves");
  FillAll("", "");
  Save();
  std::vector<ByteAccess> expected;
  for (int row = 15; row < 25; ++row) {
    expected.push_back({kBraves + std::int64_t{32} * row + 17, 0});
  }
  EXPECT_EQ(disk.writes, expected);
  EXPECT_EQ(messages.shown.size(), 26U);  // an unknown letter a name, and the end
}

TEST_F(TeamSaverFailure, WritesInTheOrderOfTheSteps) {
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

TEST_F(TeamSaverFailure, NothingIsWrittenWithoutATeamOrAnImage) {
  for (int row = 0; row < 25; ++row) Type({{row, 1, "A.B"}, {row, 3, "7"}});
  ExpectNothingButTheMessage();
  Load("Braves");
  image.SetPath("");
  ExpectNothingButTheMessage();
  image.SetPath(kImage);
  disk.files.clear();
  ExpectNothingButTheMessage();
  EXPECT_TRUE(disk.files.empty());
}

TEST_F(TeamSaverFailure, AStuckChannelIsClosedAndItsFileUntouched) {
  Load("Braves");
  disk.files["stuck"] = file();
  ASSERT_TRUE(channel.OpenBinary("stuck"));
  EXPECT_FALSE(image.WriteField(0, 0, 1));
  ExpectNothingButTheMessage();
  ASSERT_TRUE(channel.OpenTextInput("stuck"));
  ExpectNothingButTheMessage();
  ASSERT_TRUE(channel.OpenTextOutput("text"));
  ExpectNothingButTheMessage();
  ASSERT_TRUE(channel.OpenBinary(kImage));
  ExpectNothingButTheMessage();
}

TEST_F(TeamSaverFailure, TheCodecsRunWhereNothingCanBeWritten) {
  Load("Braves");
  Type({{0, 3, "77"}, {24, 2, "SS"}, {3, 1, "?.X"}});
  ASSERT_TRUE(channel.OpenTextInput(kImage));
  Save();
  EXPECT_EQ(messages.Texts(), (std::vector<std::string>{kUnknownLetter, kSaved}));
  Type({{0, 3, "x"}, {0, 2, "x"}});
  Save();
  ExpectWritten({{0, 10, 77}, {0, 9, 0x0C}});
}

}  // namespace
}  // namespace morlek
