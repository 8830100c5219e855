#include <memory>

#include "editor/editor.h"
#include "support/editor_fixture.h"

namespace morlek {
namespace {

using enum Column;

/// What an observer was shown at one moment: all that a window would show then.
struct Shown {
  const Team* named;
  std::string identity;
  bool grid, ring;
  Layout layout;
  int modified, lossy;
  bool undo, redo, held;
  std::size_t changed_texts;
  std::size_t messages;  // that had been shown before

  friend bool operator==(const Shown&, const Shown&) = default;
};

/// Drives an editor without any view, and reads off its state what a window would show.
class EditorStateTest : public TeamTest {
 protected:
  EditorStateTest() {
    subscription = editor.Subscribe([this](const EditorState& state, const StateChange& change) {
      seen.push_back({state.scene.place.team, state.identity, state.scene.is_grid_shown,
                      state.is_loaded, state.layout, state.marks.modified_count(),
                      state.marks.lossy_count(), state.can_undo, state.can_redo, state.is_file_held,
                      change.texts.size(), messages.shown.size()});
      layouts_set += change.layout_set ? 1 : 0;
      loads += change.loaded ? 1 : 0;
      picked_into = change.picked_into;
      const auto* letter = std::get_if<UnknownLetter>(&state.note);
      if (letter != nullptr) notes.push_back(*letter);
    });
  }

  void Start() {
    editor.OpenFirstImage(kImage);
    editor.LoadTeam("Braves");
    messages.shown.clear();
    seen.clear();
    layouts_set = 0;
    loads = 0;
  }

  [[nodiscard]] const EditorState& state() const { return editor.state(); }

  Editor editor{messages, disk.Opener()};
  Editor::Subscription subscription;
  std::vector<Shown> seen;
  int layouts_set = 0;
  int loads = 0;
  std::optional<Cell> picked_into;
  std::vector<UnknownLetter> notes;
};

constexpr Cell kNumber{kUniformNumber, 7};
const Team* const kBravesTeam = FindTeam("Braves");
const Team* const kOriolesTeam = FindTeam("Orioles");

TEST_F(EditorStateTest, ASessionCanBeReadOffTheState) {
  EXPECT_EQ(state().scene.place, Place());
  editor.OpenFirstImage(kImage);
  EXPECT_EQ(state().scene.place.image, kImage);
  EXPECT_EQ(std::get<OpenResult>(state().outcome), OpenResult::kOpened);
  EXPECT_FALSE(state().scene.is_grid_shown);
  editor.LoadTeam("Braves");
  EXPECT_EQ(seen.back(), (Shown{kBravesTeam, "3C", true, true, Layout::kNarrow, 0, 0, false, false,
                                false, 350, 0}));
  EXPECT_EQ(loads, 1);
  EXPECT_EQ(std::get<LoadResult>(state().outcome).outcome, LoadResult::Outcome::kLoaded);

  editor.Type(kNumber, "300");
  EXPECT_EQ(seen.back(), (Shown{kBravesTeam, "3C", true, true, Layout::kNarrow, 1, 1, true, false,
                                false, 1, 0}));
  EXPECT_EQ(editor.Undo(), kNumber);
  EXPECT_EQ(seen.back(), (Shown{kBravesTeam, "3C", true, true, Layout::kNarrow, 0, 0, false, true,
                                false, 1, 0}));
  EXPECT_EQ(editor.Redo(), kNumber);
  editor.Visit({kBody, 20});
  EXPECT_EQ(state().stance_row, 20);
  EXPECT_EQ(state().chooser, kBody);
  EXPECT_EQ(state().layout, Layout::kWide);
  editor.Pick(kFace, "57");
  EXPECT_EQ(picked_into, (Cell{kFace, 20}));
  EXPECT_EQ(state().grid.Text({kFace, 20}), "57");
  EXPECT_EQ(state().marks.modified_count(), 2);
  editor.Minimize();
  EXPECT_EQ(state().layout, Layout::kNarrow);
  EXPECT_EQ(state().chooser, kBody);
  editor.Visit({kName, 3});
  EXPECT_EQ(state().stance_row, 20) << "only the features move it";

  editor.OpenAnotherImage(kImage);
  EXPECT_EQ(seen.back(), (Shown{kBravesTeam, "3C", false, false, Layout::kNarrow, 0, 0, true, false,
                                false, 0, 0}));
  EXPECT_EQ(state().grid.Text(kNumber), "300");
}

TEST_F(EditorStateTest, EachStepIsShownOnceAndNothingTwice) {
  Start();
  const auto shown_by = [this](const auto& step) {
    seen.clear();
    step();
    return seen.size();
  };
  EXPECT_EQ(shown_by([&] { editor.LoadTeam("Orioles"); }), 1U);
  EXPECT_EQ(shown_by([&] { editor.Type(kNumber, "9"); }), 1U);
  EXPECT_EQ(shown_by([&] { editor.Type(kNumber, "9"); }), 0U);
  EXPECT_EQ(shown_by([&] { editor.PasteBlock(kNumber, "1\t2"); }), 1U);
  EXPECT_EQ(shown_by([&] { editor.PasteBlock(kNumber, "1\t2"); }), 0U);
  EXPECT_EQ(shown_by([&] { editor.Save(); }), 1U);
  EXPECT_EQ(shown_by([&] { editor.Undo(); }), 1U);
  EXPECT_EQ(shown_by([&] { editor.EndVisit(); }), 0U);
  EXPECT_EQ(shown_by([&] { editor.Visit({kName, 0}); }), 0U);
  EXPECT_EQ(shown_by([&] { editor.Pick(kFace, "0"); }), 1U);
  EXPECT_EQ(shown_by([&] { editor.ExportTeam("team.txt"); }), 1U);
  EXPECT_EQ(shown_by([&] { editor.ImportTeam("team.txt"); }), 1U);
}

TEST_F(EditorStateTest, BehindTheMessageOfASaveTheMarksAreFresh) {
  Start();
  editor.Type(kNumber, "77");
  editor.Type({kName, 3}, "J.SM1TH");
  seen.clear();
  editor.Save();
  EXPECT_EQ(messages.shown,
            (std::vector<Message>{{kUnknownLetter, "MORLEK EDITOR"}, {kSaved, "MORLEK EDITOR"}}));
  ASSERT_EQ(seen.size(), 2U);
  EXPECT_EQ(notes.at(0).row, 3);
  EXPECT_EQ(notes.at(0).letter, "1");
  EXPECT_EQ(seen[0].messages, 0U) << "before the letter's message";
  EXPECT_EQ(seen[1].messages, 1U) << "after it, before the message of the save";
  EXPECT_EQ(seen[1].modified, 1) << "the letter that the game lacks";
}

TEST_F(EditorStateTest, ANameThatIsTooLongIsReportedBeforeTheFileIsClosedAndTheMarksFollow) {
  Start();
  editor.Type({kUniformNumber, 0}, "77");
  editor.Type({kName, 4}, "TOO.LONG.NAME");
  seen.clear();
  editor.Save();
  EXPECT_EQ(messages.Texts(), std::vector<std::string>{kNameTooLong});
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].messages, 1U);
  EXPECT_EQ(seen[0].modified, 1) << "the row before it is saved";
  EXPECT_EQ(std::get<SaveResult>(state().outcome).end_row, 4);
}

TEST_F(EditorStateTest, AnImageThatCannotBeOpenedHidesTheGridOnlyAfterItsMessage) {
  Start();
  editor.Type(kNumber, "77");
  seen.clear();
  disk.files.clear();
  EXPECT_EQ(editor.LoadTeam("Orioles").outcome, LoadResult::Outcome::kNotOpened);
  EXPECT_EQ(seen, (std::vector<Shown>{{kBravesTeam, "3C", false, false, Layout::kNarrow, 0, 0, true,
                                       false, false, 0, 1}}));
  EXPECT_EQ(state().grid.Text(kNumber), "77");
  EXPECT_EQ(state().picked, kOriolesTeam);
  EXPECT_EQ(layouts_set, 0);
}

TEST_F(EditorStateTest, ALoadThatEndsEarlyShowsWhatWasReadBehindItsMessage) {
  Start();
  Poke({{20, 12, 0xAB}}, kOrioles);
  EXPECT_EQ(editor.LoadTeam("Orioles").outcome, LoadResult::Outcome::kEndedEarly);
  ASSERT_EQ(seen.size(), 2U);
  EXPECT_EQ(seen[0].messages, 0U);
  EXPECT_TRUE(seen[0].grid && !seen[0].ring);
  EXPECT_EQ(seen[0].named, kOriolesTeam);
  EXPECT_FALSE(seen[0].held) << "the load closes what it has opened";
  EXPECT_EQ(seen[1].messages, 1U);
  EXPECT_FALSE(seen[1].grid);
  EXPECT_EQ(loads, 0);
  EXPECT_EQ(layouts_set, 1);
}

TEST_F(EditorStateTest, AFileThatIsHeldIsNoLongerReportedBehindTheMessageOfTheLoadThatClosesIt) {
  Start();
  disk.files["short.txt"] = {'A', ',', '\r'};
  editor.ImportTeam("short.txt");
  EXPECT_TRUE(seen.back().held);
  seen.clear();
  editor.LoadTeam("Braves");
  ASSERT_EQ(seen.size(), 2U);
  EXPECT_TRUE(!seen[0].held && seen[0].messages == 0);
  EXPECT_FALSE(seen[1].grid);
}

TEST_F(EditorStateTest, NextAndPreviousTeamGoRound) {
  editor.OpenFirstImage(kImage);
  editor.LoadTeamBeside(-1);
  EXPECT_EQ(state().scene.place.team, nullptr);
  for (const auto& [places, key] :
       {std::pair(+1, "Braves"), {-1, "Blue Jays"}, {+1, "Braves"}, {+1, "Orioles"}}) {
    editor.LoadTeamBeside(places);
    EXPECT_EQ(state().scene.place.team, FindTeam(key));
  }
  editor.OpenAnotherImage(kImage);
  editor.LoadTeamBeside(+1);
  EXPECT_EQ(state().scene.place.team, kBravesTeam) << "each image starts anew";
}

TEST_F(EditorStateTest, AnUnknownKeyLoadsTheCurrentTeamAgain) {
  Start();
  Poke({{7, 10, 99}});
  editor.LoadTeam("braves");
  EXPECT_EQ(state().grid.Text(kNumber), "99");
  EXPECT_EQ(state().scene.place.team, kBravesTeam);
}

TEST_F(EditorStateTest, TypedTextsAreTruncated) {
  Start();
  editor.Type(kNumber, std::string(40000, '7'));
  EXPECT_EQ(state().grid.Text(kNumber).size(), 32767U);
}

TEST_F(EditorStateTest, ADroppedFileIsImportedOrOpenedByItsEnding) {
  Start();
  for (const char* name : {"team.txt", "team.TXT"}) {
    disk.files[name] = {'A', ',', '\r'};
    editor.TakeFile(name);
    EXPECT_EQ(std::get<ImportResult>(state().outcome).lines, 1) << name;
    editor.CancelDialog();
  }
  editor.TakeFile(kImage);
  EXPECT_EQ(std::get<OpenResult>(state().outcome), OpenResult::kOpened);
}

TEST_F(EditorStateTest, ObserversMayEndASubscriptionWhileTheyAreCalledAndOutliveTheEditor) {
  auto own = std::make_unique<Editor>(messages, disk.Opener());
  int others = 0;
  int all = 0;
  Editor::Subscription other = own->Subscribe([&](const auto&, const auto&) { ++others; });
  Editor::Subscription passing;
  passing = own->Subscribe([&](const auto&, const auto&) {
    other.reset();
    passing.reset();
  });
  const auto last = own->Subscribe([&](const auto&, const auto&) { ++all; });
  own->Type(kNumber, "1");
  own->Type(kNumber, "2");
  EXPECT_EQ(others, 1);
  EXPECT_EQ(all, 2);
  own.reset();
}

}  // namespace
}  // namespace morlek
