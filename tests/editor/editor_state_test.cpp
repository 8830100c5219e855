#include <functional>
#include <memory>

#include "editor/editor.h"
#include "support/editor_fixture.h"

namespace morlek {
namespace {

using enum Column;

/// What an observer was shown at one moment.
struct Shown {
  bool grid;
  const Team* ring;
  bool held;
  int modified;
  std::size_t messages;  // that had been shown before
  bool layout_set = false;

  friend bool operator==(const Shown&, const Shown&) = default;
};

/// Drives an editor without any view, and reads off its state what a window would show.
class EditorStateTest : public TeamTest {
 protected:
  EditorStateTest() {
    subscription = editor.Subscribe([this](const EditorState& state, const StateChange& change) {
      seen.push_back({state.scene.is_grid_shown, state.loaded, state.is_file_held,
                      state.marks.modified_count(), messages.shown.size(), change.layout_set});
      const auto* letter = std::get_if<UnknownLetter>(&state.note);
      if (letter != nullptr) notes.push_back(*letter);
    });
    editor.OpenFirstImage(kImage);
    editor.LoadTeam("Braves");
    seen.clear();
  }

  [[nodiscard]] const EditorState& state() const { return editor.state(); }

  Editor editor{messages, disk.Opener()};
  Editor::Subscription subscription;
  std::vector<Shown> seen;
  std::vector<UnknownLetter> notes;
};

constexpr Cell kNumber{kUniformNumber, 7};
const Team* const kBravesTeam = FindTeam("Braves");
const Team* const kOriolesTeam = FindTeam("Orioles");

TEST_F(EditorStateTest, BehindTheMessagesOfASaveStandTheLetterAndThenTheFreshMarks) {
  editor.Type(kNumber, "77");
  editor.Type({kName, 3}, "J.SM1TH");
  seen.clear();
  editor.Save();
  EXPECT_EQ(messages.shown,
            (std::vector<Message>{{kUnknownLetter, "MORLEK EDITOR"}, {kSaved, "MORLEK EDITOR"}}));
  EXPECT_EQ(seen, (std::vector<Shown>{{true, kBravesTeam, false, 2, 0},
                                      {true, kBravesTeam, false, 1, 1}}));
  EXPECT_EQ(std::get<SavedChanges>(state().note).stored, 1);
  EXPECT_EQ(notes.at(0).row, 3);
  EXPECT_EQ(notes.at(0).letter, "1");
}

TEST_F(EditorStateTest, ANameThatIsTooLongIsReportedBeforeTheFileIsClosedAndTheMarksFollow) {
  editor.Type({kUniformNumber, 0}, "77");
  editor.Type({kName, 4}, "TOO.LONG.NAME");
  seen.clear();
  editor.Save();
  EXPECT_EQ(messages.Texts(), std::vector<std::string>{kNameTooLong});
  EXPECT_EQ(seen, (std::vector<Shown>{{true, kBravesTeam, false, 1, 1}}))
      << "the row before it is saved";
  EXPECT_EQ(std::get<SaveResult>(state().outcome).end_row, 4);
}

TEST_F(EditorStateTest, ALoadThatFailsHidesTheGridOnlyAfterItsMessage) {
  Poke({{20, 12, 0xAB}}, kOrioles);
  editor.Type(kNumber, "77");
  editor.Visit({kFace, 0});
  seen.clear();
  EXPECT_EQ(editor.LoadTeam("Orioles").outcome, LoadResult::Outcome::kEndedEarly);
  EXPECT_EQ(state().scene.place.team, kOriolesTeam);
  EXPECT_EQ(seen, (std::vector<Shown>{{true, kBravesTeam, false, 0, 0, true},
                                      {false, nullptr, false, 0, 1}}))
      << "with what was read, and the ring where it was";
  EXPECT_EQ(state().layout, Layout::kNarrow);
  editor.LoadTeam("Braves");
  editor.Type(kNumber, "77");
  seen.clear();
  disk.files.clear();
  EXPECT_EQ(editor.LoadTeam("Orioles").outcome, LoadResult::Outcome::kNotOpened);
  EXPECT_EQ(seen, (std::vector<Shown>{{false, nullptr, false, 0, 2}}));
  EXPECT_EQ(state().grid.Text(kNumber), "77");
  EXPECT_EQ(state().picked, kOriolesTeam);
}

TEST_F(EditorStateTest, AFileThatIsHeldIsNoLongerReportedBehindTheMessageOfTheLoadThatClosesIt) {
  disk.files["short.txt"] = {'A', ',', '\r'};
  editor.ImportTeam("short.txt");
  EXPECT_TRUE(seen.back().held);
  seen.clear();
  editor.LoadTeam("Braves");
  ASSERT_EQ(seen.size(), 2U);
  EXPECT_TRUE(!seen[0].held && seen[0].messages == 0);
  EXPECT_FALSE(seen[1].grid);
  EXPECT_NE(messages.shown.at(0).text.find("a team file was still open"), std::string::npos);
  EXPECT_EQ(messages.shown[0].icon, Message::Icon::kCritical);
}

TEST_F(EditorStateTest, NotesTellWhatAStepHasLeftUnsavedAndWhatASaveHasStored) {
  for (int row = 0; row < 8; ++row) editor.Type({kUniformNumber, row}, "77");
  editor.LoadTeam("Orioles");
  EXPECT_EQ(std::get<LeftBehind>(state().note).changes, 8);
  EXPECT_EQ(std::get<LeftBehind>(state().note).place.team, kBravesTeam);
  editor.Undo();
  EXPECT_EQ(state().note.index(), 0U);
  EXPECT_EQ(state().picked, kBravesTeam);
  const Cell rating{kBatting, 3};
  editor.Type(rating, "3");
  editor.Save();
  EXPECT_EQ(std::get<SavedChanges>(state().note).stored, 9);
  editor.Type(rating, "12");
  EXPECT_EQ(state().marks.At(rating).after, "3") << "the image keeps what the save has stored";
  const Cell hand{kThrowingHand, 16};
  editor.Type(hand, "");
  EXPECT_EQ(state().marks.At(hand).fate, SavePreview::Fate::kStored) << "one byte of it is";
  disk.files.clear();
  messages.while_shown = [this] { editor.Type(kNumber, "an assistive tool"); };
  editor.LoadTeam("Orioles");
  EXPECT_EQ(state().grid.Text(kNumber), "an assistive tool");
}

TEST_F(EditorStateTest, AnUnknownKeyLoadsTheCurrentTeamAgain) {
  Poke({{7, 10, 99}});
  editor.LoadTeam("braves");
  EXPECT_EQ(state().grid.Text(kNumber), "99");
  EXPECT_EQ(state().scene.place.team, kBravesTeam);
}

TEST_F(EditorStateTest, ABlockLeavesWordOfWhatFoundNoPlaceUntilTheNextStep) {
  const auto without_place = [this] {
    const auto* result = std::get_if<PasteResult>(&state().outcome);
    return result == nullptr ? -1 : result->cells;
  };
  const Cell last{Column::kLegs, 24};
  editor.PasteBlock(last, "7\t8\n9");
  EXPECT_EQ(without_place(), 2);
  editor.PasteBlock(last, "7\t8");
  EXPECT_EQ(without_place(), 1) << "though no text changes";
  editor.PasteBlock(last, "3\t");
  EXPECT_EQ(without_place(), 0);
  editor.Type(last, "4");
  EXPECT_EQ(without_place(), -1);
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
