#include <random>

#include "league/season_columns.h"
#include "support/league_fixture.h"
#include "team/column_bytes.h"
#include "textfile/average_form.h"
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

class ImportPropertyTest : public LeagueTest {
 protected:
  /// Bytes in the records of the image, among them such that no codec knows; ratings that are none
  /// only where the editor need not load the team.
  void Scramble(bool also_ratings) {
    for (const Team& team : kTeamDirectory) {
      for (int byte = 0; byte < 60; ++byte) {
        const int offset = static_cast<int>(random() % 32);
        if ((offset == 11 || offset == 12) && !also_ratings) continue;
        Poke({{static_cast<int>(random() % 25), offset, static_cast<int>(random() % 256)}},
             team.base);
      }
    }
  }

  std::mt19937 random{20};
};

TEST_F(ImportPropertyTest, AnExportThatIsImportedChangesNoByte) {
  for (int round = 0; round < 20; ++round) {
    Scramble(true);
    const std::vector<std::uint8_t> before = file();
    EXPECT_EQ(Import(Exported()), 0);
    EXPECT_TRUE(disk.writes.empty());
    ASSERT_TRUE(file() == before) << round;
  }
}

TEST_F(ImportPropertyTest, ACellBecomesWhatSaveMakesOfItAndNothingElseChanges) {
  int imported = 0;
  const int rounds = 60;
  for (int round = 0; round < rounds; ++round) {
    if (round % 10 == 0) Scramble(false);
    const std::vector<std::uint8_t> before = file();
    const std::string table_before = Exported();
    const Team& team = kTeamDirectory.at(random() % kTeamDirectory.size());
    const int row = static_cast<int>(random() % 25);
    std::vector<std::string> heads = {"Team", "Slot"};
    std::vector<std::string> fields = {std::string(team.key), std::to_string(row + 1)};
    std::vector<Cell> cells;
    for (const BlockColumn& each : BlockOf(row).columns) {
      if (random() % 4 != 0) continue;
      cells.push_back({each.column, row});
      heads.emplace_back(HeadOf(each.column));
      fields.push_back(AnyText(random, each.column));
    }
    const int status = Import(JoinFields(heads, ';') + "\r\n" + JoinFields(fields, ';') + "\r\n");
    const std::vector<std::uint8_t> after = file();
    if (status != 0) {
      ASSERT_EQ(status, 1) << messages_text;
      ASSERT_TRUE(after == before) << messages_text;
      continue;
    }
    ++imported;

    // The editor, newly started, with the same texts.
    file() = before;
    codec_state = {};
    Load(std::string(team.key).c_str());
    ASSERT_EQ(load.outcome, LoadResult::Outcome::kLoaded);
    std::vector<std::uint8_t> expected = before;
    for (std::size_t place = 0; place < cells.size(); ++place) {
      grid.SetText(cells[place], InAverageForm(cells[place].column, fields.at(place + 2)));
    }
    Save();
    for (const Cell cell : cells) {
      for (const int offset : WrittenBytesOf(cell)) {
        const auto index = static_cast<std::size_t>(FieldPosition(team.base, row, offset) - 1);
        expected[index] = file()[index];
      }
    }
    // An export shows the edits, and nothing else.
    file() = after;
    for (const ByteAccess& each : ChangesSince(before)) {
      ASSERT_EQ(each.byte, expected.at(static_cast<std::size_t>(each.position) - 1)) << round;
    }
    PutText("before.csv", table_before);
    Run({"diff", "before.csv", kImage});
    const std::string& player = fields[0] + " " + fields[1];
    std::istringstream lines(out);
    for (std::string line; std::getline(lines, line);) {
      ASSERT_TRUE(line.starts_with(player + " ") || line.starts_with(player + ":")) << line;
    }
    EXPECT_EQ(Import(JoinFields(heads, ';') + "\n" + JoinFields(fields, ';')), 0);
    EXPECT_EQ(out, "0 cells of 0 players changed\n") << "the edits are there";
    EXPECT_TRUE(file() == after);
  }
  EXPECT_GT(imported, rounds / 4);
  EXPECT_LT(imported, rounds);
}

}  // namespace
}  // namespace morlek
