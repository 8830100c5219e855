#include "team/save_preview.h"

#include <random>

#include "codecs/code_page.h"
#include "editor/editor.h"
#include "image/team_directory.h"
#include "support/editor_fixture.h"

namespace morlek {
namespace {

using enum Column;

/// A whole editor over the image in memory.
class SavePreviewTest : public TeamTest {
 protected:
  SavePreviewTest() {
    editor.OpenFirstImage(kImage);
    editor.LoadTeam("Braves");
  }

  void TypeInto(const CellText& text) { editor.Type(text.cell(), text.text); }

  Editor editor{messages, disk.Opener()};
};

TEST_F(SavePreviewTest, EveryTeamOfTheSampleIsKeptAsShownAndSavedAsItWas) {
  const std::vector<std::uint8_t> before = file() = MakeSampleImage();
  for (const Team& team : kTeamDirectory) {
    editor.LoadTeam(team.key);
    EXPECT_EQ(editor.Preview().after(), editor.state().grid) << team.key;
    editor.Save();
    ASSERT_TRUE(file() == before) << team.key;
    EXPECT_EQ(messages.Texts(), std::vector<std::string>{kSaved}) << team.key;
    messages.shown.clear();
  }
}

TEST_F(SavePreviewTest, ACloseThatFailsLeavesTheMarks) {
  TypeInto({0, 3, "77"});
  EXPECT_EQ(editor.state().marks.modified_count(), 1);
  disk.failing_access = 1000000;
  editor.Save();
  const int accesses = 1000000 - disk.failing_access;
  TypeInto({0, 3, "78"});
  disk.failing_access = accesses;  // the close
  editor.Save();
  EXPECT_EQ(disk.failed_closes, 1);
  EXPECT_EQ(editor.state().marks.modified_count(), 1);
}

TEST_F(SavePreviewTest, WhatTheDiskRefusesIsNotKnownToBeThere) {
  const Cell number{kUniformNumber, 0};
  const auto known = [&] { return editor.baseline()->texts().Text(number); };
  TypeInto({0, 3, "77"});
  const std::vector<std::uint8_t> content = file();
  disk.files.clear();
  editor.Save();
  EXPECT_EQ(known(), "1");
  disk.files[kImage] = content;
  editor.Save();
  EXPECT_EQ(known(), "77");
  EXPECT_EQ(editor.Preview().after(), editor.state().grid);
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

TEST_F(SavePreviewTest, AgreesWithARealSaveAndLoadInRandomSessions) {
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
    editor.LoadTeam(team.key);
    for (int round = 0; round < 3; ++round) {
      for (auto edit = random() % 30; edit > 0; --edit) {
        editor.Type(kAllCells.at(random() % kCellCount), AnyText(random));
      }
      const SavePreview preview = editor.Preview();
      const GridMarks marks = editor.state().marks;
      const RosterGrid typed = editor.state().grid;
      editor.Save();
      if (random() % 2 == 0) continue;
      editor.LoadTeam(team.key);
      for (const Cell cell : kAllCells) {
        ASSERT_EQ(editor.state().grid.Text(cell), preview.TextAfter(cell))
            << "session " << session << " row " << cell.row;
        const CellMark& mark = marks.At(cell);
        if (mark.is_lossy) {
          ASSERT_EQ(mark.after, preview.TextAfter(cell));
          ASSERT_NE(mark.after, typed.Text(cell));
        } else if (!IsFeature(cell.column)) {
          ASSERT_EQ(UpperCase(preview.TextAfter(cell)), UpperCase(typed.Text(cell)));
        }
      }
    }
  }
}

}  // namespace
}  // namespace morlek
