#include "team/rehearsal.h"

#include <random>

#include "codecs/code_page.h"
#include "editor/editor.h"
#include "image/team_directory.h"
#include "support/editor_fixture.h"

namespace morlek {
namespace {

using enum Column;
using Fate = Rehearsal::Fate;

/// A cell, what becomes of it at SAVE, and what a load shows then.
struct Outcome {
  CellText cell;
  Fate fate;
  std::string after;
};

/// A whole editor over the image in memory.
class RehearsalTest : public TeamTest {
 protected:
  RehearsalTest() {
    editor.OpenFirstImage(kImage, view);
    editor.LoadTeam("Braves", view);
  }

  void TypeInto(const CellText& text) { editor.document().Type(text.cell(), text.text); }

  void ExpectOutcomes(const std::vector<Outcome>& outcomes) {
    for (const Outcome& each : outcomes) TypeInto(each.cell);
    const Rehearsal rehearsal = editor.Rehearse();
    for (const Outcome& each : outcomes) {
      EXPECT_EQ(rehearsal.FateOf(each.cell.cell()), each.fate) << each.cell.text;
      EXPECT_EQ(rehearsal.TextAfter(each.cell.cell()), each.after) << each.cell.text;
    }
  }

  Editor editor{messages, disk.Opener()};
};

TEST_F(RehearsalTest, TellsWhatBecomesOfTextsThatTheGameCannotHold) {
  TypeInto({0, 2, "C"});
  ExpectOutcomes({{{1, 1, "J.SM1TH"}, Fate::kStored, "J.SMMTH"},
                  {{1, 2, "ZZ"}, Fate::kStored, "C"},
                  {{1, 3, "300"}, Fate::kStored, "1"},
                  {{1, 4, "X"}, Fate::kStored, "R"},
                  {{1, 5, "12"}, Fate::kSkipped, "2"},
                  {{1, 9, ".999"}, Fate::kStored, ".506"},
                  {{1, 10, ""}, Fate::kSkipped, "31"},
                  {{1, 12, "005"}, Fate::kStored, "5"},
                  {{20, 4, "lS"}, Fate::kStored, "LS"}});
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_TRUE(disk.writes.empty());
}

TEST_F(RehearsalTest, ANameThatIsTooLongEndsIt) {
  ExpectOutcomes({{{3, 3, "50"}, Fate::kStored, "50"},
                  {{4, 1, "X.ABCDEFGHI"}, Fate::kEndsSave, "X.BE"},
                  {{4, 3, "51"}, Fate::kNotReached, "5"},
                  {{9, 1, "Y.OUNG"}, Fate::kNotReached, "Y.BJ"}});
  EXPECT_EQ(editor.Rehearse().end_row(), 4);
}

TEST_F(RehearsalTest, EveryTeamOfTheSampleIsKeptAsShownAndSavedAsItWas) {
  const std::vector<std::uint8_t> before = file() = MakeSampleImage();
  for (const Team& team : kTeamDirectory) {
    editor.LoadTeam(team.key, view);
    EXPECT_EQ(editor.Rehearse().after(), editor.document().grid()) << team.key;
    editor.Save(view);
    ASSERT_TRUE(file() == before) << team.key;
    EXPECT_EQ(messages.Texts(), std::vector<std::string>{kSaved}) << team.key;
    messages.shown.clear();
  }
}

TEST_F(RehearsalTest, WhatAnUntouchedSaveChangesIsTold) {
  Poke({{3, 11, 0x09}, {5, 2, 0x36}});
  editor.LoadTeam("Braves", view);
  ExpectOutcomes({{{3, 5, "1"}, Fate::kStored, "10"}, {{5, 1, "F.Bc"}, Fate::kStored, "F.BC"}});
}

TEST_F(RehearsalTest, ACloseThatFailsLeavesTheMarks) {
  TypeInto({0, 3, "77"});
  EXPECT_EQ(editor.Marks().unsaved_count(), 1);
  disk.failing_access = 1000000;
  editor.Save(view);
  const int accesses = 1000000 - disk.failing_access;
  TypeInto({0, 3, "78"});
  disk.failing_access = accesses;  // the close
  editor.Save(view);
  EXPECT_EQ(disk.failed_closes, 1);
  EXPECT_EQ(editor.Marks().unsaved_count(), 1);
}

TEST_F(RehearsalTest, WhatTheDiskRefusesIsNotKnownToBeThere) {
  const Cell number{kText3, 0};
  const auto known = [&] { return editor.knowledge().texts().Text(number); };
  TypeInto({0, 3, "77"});
  const std::vector<std::uint8_t> content = file();
  disk.files.clear();
  editor.Save(view);
  EXPECT_EQ(known(), "1");
  disk.files[kImage] = content;
  editor.Save(view);
  EXPECT_EQ(known(), "77");
  EXPECT_EQ(editor.Rehearse().after(), editor.document().grid());
}

/// The texts of sessions: good ones, odd ones, empty and far too long ones.
std::string AnyText(std::mt19937& random) {
  constexpr std::array kTexts = {"",      "7",       "12",       "05",   "201",      "300", "R",
                                 "l",     "S",       "LS<",      "rs>",  "X",        "C",   "ss",
                                 "ZZ",    ".300",    ".9",       ".999", "3.45",     "2.6", "10.0",
                                 "A.B",   "J.SM1TH", "c.x",      ".",    "x",        "  ",  "1e2",
                                 " &H5 ", "-1",      "FFFF0003", "1F",   "O'NEIL.JR"};
  if (random() % 40 == 0) return "TOO.LONG.NAME";
  return kTexts.at(random() % kTexts.size());
}

TEST_F(RehearsalTest, AgreesWithARealSaveAndLoadInRandomSessions) {
  std::mt19937 random(11);
  for (int session = 0; session < 300; ++session) {
    const Team& team = kTeamDirectory.at(random() % 28);
    for (int byte = 0; byte < 20; ++byte) {
      // Bytes that no decoder knows, but for ratings, which would end the load.
      const int offset = static_cast<int>(random() % 32);
      if (offset == offset::kFirstRatings || offset == offset::kSecondRatings) continue;
      Poke({{static_cast<int>(random() % 25), offset, static_cast<int>(random() % 256)}},
           team.base);
    }
    editor.LoadTeam(team.key, view);
    for (int round = 0; round < 3; ++round) {
      for (auto edit = random() % 30; edit > 0; --edit) {
        editor.document().Type(kAllCells.at(random() % kCellCount), AnyText(random));
      }
      const Rehearsal rehearsal = editor.Rehearse();
      const GridMarks marks = editor.Marks();
      const RosterGrid saved = editor.document().grid();
      editor.Save(view);
      if (random() % 2 == 0) continue;
      editor.LoadTeam(team.key, view);
      for (const Cell cell : kAllCells) {
        ASSERT_EQ(editor.document().grid().Text(cell), rehearsal.TextAfter(cell))
            << "session " << session << " row " << cell.row;
        const CellMark& mark = marks.At(cell);
        if (mark.is_unkept) {
          ASSERT_EQ(mark.after, rehearsal.TextAfter(cell));
          ASSERT_NE(mark.after, saved.Text(cell));
        } else if (cell.column < kText12) {
          ASSERT_EQ(UpperCase(rehearsal.TextAfter(cell)), UpperCase(saved.Text(cell)));
        }
      }
    }
  }
}

}  // namespace
}  // namespace morlek
