#include <random>

#include "editor/editor.h"
#include "support/editor_fixture.h"

namespace morlek {
namespace {

constexpr char kOtherImage[] = "other.smc";
constexpr char kTeamFile[] = "team.txt";

/// Steps over several teams and two images.
class PlacesTest : public TeamTest {
 protected:
  PlacesTest() {
    disk.files[kOtherImage] = file();
    Poke({{3, 11, 0xAB}}, FindTeam("Mets")->base);  // a team that cannot be loaded to its end
    editor.OpenFirstImage(kImage);
    editor.LoadTeam("Braves");
  }

  [[nodiscard]] const EditorState& state() const { return editor.state(); }

  /// A step other than SAVE, drawn at random.
  void TakeStep(std::mt19937& random) {
    const auto any = [&random](unsigned count) { return random() % count; };
    const Cell cell = kAllCells.at(any(kCellCount));
    const std::vector<const char*> teams = {"Braves", "Orioles", "Cubs", "Mets"};
    switch (any(10)) {
      case 0:
      case 1:
        editor.EndVisit();
        editor.Type(cell, std::to_string(any(300)));
        break;
      case 2:
        editor.EndVisit();
        if (any(2) == 0) {
          editor.Leaf({kFeatures.at(any(3)), cell.row}, std::to_string(any(60)));
        } else {
          editor.Pick(kFeatures.at(any(3)), std::to_string(any(60)));
        }
        break;
      case 3:
        editor.PasteBlock(cell, "1\t2\n3");
        break;
      case 4:
        disk.files[kTeamFile] = {'A', ',', '\r'};
        editor.ImportTeam(kTeamFile);
        editor.CancelDialog();
        break;
      case 5: {
        // The image cannot be opened for a moment.
        const auto files = any(4) == 0 ? std::exchange(disk.files, {}) : disk.files;
        editor.LoadTeam(teams.at(any(4)));
        disk.files = files;
        break;
      }
      case 6:
        editor.LoadTeam(teams.at(any(4)));
        break;
      case 7:
        editor.PastePlayer(cell.row, PlayerAt(state().grid, static_cast<int>(any(25))));
        break;
      case 8:
        editor.MovePlayer(cell.row, any(2) == 0 ? -1 : +1);
        break;
      default:
        if (any(3) == 0) editor.OpenAnotherImage(any(2) == 0 ? kImage : kOtherImage);
    }
    messages.shown.clear();
  }

  /// Saves, when a grid is shown, into nothing but its own record.
  void SaveInPlace() {
    if (!state().scene.is_grid_shown) return;
    disk.opened.clear();
    disk.writes.clear();
    editor.Save();
    EXPECT_EQ(disk.opened, std::vector{state().scene.place.image});
    for (const ByteAccess& write : disk.writes) {
      const std::int64_t place = write.position - state().scene.place.team->base;
      EXPECT_TRUE(place >= 0 && place < 800) << place;
    }
  }

  /// The marks follow from the grid, what codecs keep and what the image is known to hold.
  void ExpectMarksOfTheMoment() {
    const bool is_loaded = state().scene.is_grid_shown;
    EXPECT_EQ(state().loaded, is_loaded ? state().scene.place.team : nullptr);
    const GridMarks marks =
        is_loaded ? GridMarks(state().grid, editor.Preview(), *editor.baseline()) : GridMarks();
    for (const Cell cell : kAllCells) EXPECT_EQ(state().marks.At(cell), marks.At(cell));
    EXPECT_EQ(state().marks.marked(), marks.marked());
    EXPECT_EQ(state().marks.modified_count(), marks.modified_count());
    EXPECT_EQ(state().marks.lossy_count(), marks.lossy_count());
  }

  Editor editor{messages, disk.Opener()};
};

TEST_F(PlacesTest, EveryStepCanBeTakenBackAndMadeAgainAcrossTeamsAndImages) {
  for (unsigned seed = 1; seed <= 12; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    while (state().can_undo) editor.Undo();
    std::vector<std::pair<Scene, RosterGrid>> passed = {{state().scene, state().grid}};
    std::vector<const Team*> picked = {state().picked};
    for (int step = 0; step < 60; ++step) {
      TakeStep(random);
      const std::pair now(state().scene, state().grid);
      if (now != passed.back()) {
        passed.push_back(now);
        picked.push_back(state().picked);
      }
      if (random() % 10 == 0) SaveInPlace();
    }
    const std::size_t files_opened = disk.opened.size();
    const auto expect_at = [&](std::size_t place) {
      ASSERT_EQ(state().scene, passed.at(place).first) << place;
      ASSERT_EQ(state().grid, passed.at(place).second) << place;
      ExpectMarksOfTheMoment();
    };
    for (std::size_t place = passed.size() - 1; place > 0; --place) {
      expect_at(place);
      editor.Undo();
    }
    expect_at(0);
    EXPECT_FALSE(state().can_undo);
    for (std::size_t place = 1; place < passed.size(); ++place) {
      editor.Redo();
      expect_at(place);
      if (passed.at(place).first != passed.at(place - 1).first) {
        EXPECT_EQ(state().picked, picked.at(place)) << place;
      }
    }
    EXPECT_FALSE(state().can_redo);
    EXPECT_EQ(disk.opened.size(), files_opened) << "undo and redo open no file";
    SaveInPlace();
  }
}

TEST_F(PlacesTest, AWrongBadgeTakenBackBringsTheEditsWithTheirMarksAndSaveWritesThemThere) {
  for (int row = 0; row < 8; ++row) editor.Type({Column::kUniformNumber, row}, "77");
  editor.LoadTeam("Orioles");
  EXPECT_EQ(std::get<LeftBehind>(state().note).changes, 8);
  EXPECT_EQ(std::get<LeftBehind>(state().note).place.team, FindTeam("Braves"));
  EXPECT_EQ(state().marks.modified_count(), 0);

  EXPECT_EQ(editor.Undo(), std::nullopt);
  EXPECT_EQ(state().scene, (Scene{{kImage, FindTeam("Braves")}, true}));
  EXPECT_EQ(state().picked, FindTeam("Braves"));
  EXPECT_EQ(state().marks.modified_count(), 8);
  EXPECT_EQ(state().note.index(), 0U);
  disk.writes.clear();
  editor.Save();
  EXPECT_EQ(std::get<SavedChanges>(state().note).stored, 8);
  EXPECT_EQ(disk.writes.front().position, kBraves);
  EXPECT_EQ(state().marks.modified_count(), 0);
  EXPECT_EQ(editor.Redo(), std::nullopt);
  EXPECT_EQ(state().scene.place.team, FindTeam("Orioles"));
  EXPECT_EQ(state().marks.modified_count(), 0);
}

TEST_F(PlacesTest, TheFirstTeamIsNoStepAndTheSameTeamIsOneOnlyWhenATextChanges) {
  EXPECT_FALSE(state().can_undo);
  editor.LoadTeam("Braves");
  EXPECT_FALSE(state().can_undo);
  editor.Type({Column::kUniformNumber, 3}, "77");
  editor.LoadTeam("Braves");
  EXPECT_EQ(editor.Undo(), (Cell{Column::kUniformNumber, 3}));
  EXPECT_EQ(state().grid.Text({Column::kUniformNumber, 3}), "77");
}

TEST_F(PlacesTest, WhatWasImportedBeforeTheFirstTeamIsNotLost) {
  Editor own(messages, disk.Opener());
  disk.files[kTeamFile] = {'A', ',', '\r'};
  own.ImportTeam(kTeamFile);
  own.CancelDialog();
  own.OpenFirstImage(kImage);
  own.LoadTeam("Braves");
  own.Undo();
  EXPECT_FALSE(own.state().scene.is_grid_shown);
  EXPECT_EQ(own.state().grid.Text({Column::kName, 0}), "A");
}

}  // namespace
}  // namespace morlek
