#include <gtest/gtest.h>

#include <random>

#include "fuzz/season_import.h"
#include "image/team_directory.h"
#include "league/season_columns.h"
#include "sample_image.h"
#include "textfile/delimited_text.h"

namespace morlek {
namespace {

/// A text that the game holds in a column, mostly.
std::string AnyText(std::mt19937& random, Column column) {
  using enum Column;
  const auto number = [&random](unsigned most) { return std::to_string(random() % (most + 1)); };
  const auto one_of = [&random](std::initializer_list<const char*> texts) {
    return std::string(texts.begin()[random() % texts.size()]);
  };
  if (random() % 12 == 0) {
    return one_of({"X",     "201",  "999", ".512", "5.12", "J.SM1TH",  "A.VERYLONGNAME",
                   "JONES", "RS<>", "0",   "05",   "100",  "FFFF0003", "1e1",
                   "-1",    "\"",   ",",   "\xE9", " ",    "10"});
  }
  switch (column) {
    case kName:
      return one_of({"J.SMITH", "K.O", "A.B C", "q.quick", "Z.ZZZZZZZZ", "M."});
    case kPosition:
      return one_of({"C", "1b", "DH", "P"});
    case kBattingSide:
      return one_of({"R", "l", "S"});
    case kThrowingHand:
      return one_of({"R", "L", "rs<", "LS>", "R>", "L<", "RS"});
    case kBattingAverage:
      return one_of({".300", "0.25", ",4", ".511", "0", ".256"});
    case kEarnedRunAverage:
      return one_of({"3.5", "2,56", "0", "5.11", "2.55"});
    case kFatigue:
      return number(100);
    case kFace:
    case kBody:
    case kLegs:
      return one_of({"0", "1f", "007", "FF", "A", "57"});
    default:
      return number(column < kWins ? 10 : 201);
  }
}

TEST(ImportPropertyTest, ACellBecomesWhatSaveMakesOfItAndNothingElseChanges) {
  std::mt19937 random(20);
  std::vector<std::uint8_t> image = MakeSampleImage();
  int imported = 0;
  constexpr int kRounds = 60;
  for (int round = 0; round < kRounds; ++round) {
    // Bytes that no codec knows, among them ratings with which the editor cannot load the team.
    for (int byte = 0; byte < 200; ++byte) {
      const Team& team = kTeamDirectory.at(random() % kTeamDirectory.size());
      const std::size_t place = random() % 800;
      if (place % 32 != 11 || random() % 4 == 0) {
        image.at(static_cast<std::size_t>(team.base - 1) + place) =
            static_cast<std::uint8_t>(random());
      }
    }
    ASSERT_NO_THROW((void)fuzz::ExportSeason(image)) << round;
    const int row = static_cast<int>(random() % 25);
    std::vector<std::string> headers = {"Team", "Slot"};
    std::vector<std::string> fields = {
        std::string(kTeamDirectory.at(random() % kTeamDirectory.size()).key),
        std::to_string(row + 1)};
    for (const BlockColumn& each : BlockOf(row).columns) {
      if (random() % 4 != 0) continue;
      headers.emplace_back(HeaderOf(each.column));
      fields.push_back(AnyText(random, each.column));
    }
    const std::string table = JoinFields(headers, ';') + "\r\n" + JoinFields(fields, ';') + "\r\n";
    ASSERT_NO_THROW(imported += fuzz::ImportSeason(image, table) ? 1 : 0) << table;
  }
  EXPECT_GT(imported, kRounds / 4);
  EXPECT_LT(imported, kRounds);
}

}  // namespace
}  // namespace morlek
