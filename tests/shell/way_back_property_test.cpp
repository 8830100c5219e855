#include "shell/way_back.h"

namespace morlek {

void WayBack::TakeRandomStep() {
  if (!states[now].is_shown) return GoElsewhereAtRandom();
  // Often the same box again: what comes next to each other is what could be merged.
  const bool stays = FocusedBox() != nullptr && !dice.OneIn(3);
  const int place = stays ? FocusedPlace() : RandomPlace();
  Note("in " + boxes[place]->objectName());
  Enter(place);
  if (dice.OneIn(2)) TypeAtRandom();
  const int feature = IsFeature(place) ? place : RowOf(place) * kColumns + 11 + dice.Below(3);
  switch (dice.Below(15)) {
    case 0:
    case 1: {
      Enter(feature);
      Texts texts = states[now].texts;
      if (dice.OneIn(2)) Choose("mnuMini");
      texts[feature] = PickInto(feature);
      EXPECT_EQ(window->width(), 666) << "a click on its box brings the chooser into view again";
      EXPECT_EQ(boxes[feature]->selectedText(), texts[feature]);
      EXPECT_EQ(FocusedPlace(), feature);
      AddStep(texts);
      break;
    }
    case 2:
    case 3:
      PasteRandomBlock(place);
      copied.reset();
      AddStep(Shown());
      break;
    case 4: {
      if (!dice.OneIn(3)) break;
      const bool is_open = ImportRandomFile();
      AddStep(Shown());
      ExpectState();
      // So that the file is not in the way of a load.
      if (is_open) ChooseWith("mnuOpen", std::nullopt);
      break;
    }
    case 5:
      Note("SAVE");
      // What stands behind its message is up to date already.
      user.while_told = [this] {
        if (user.messages.back().text == "Your changes have been saved.") ExpectTruth();
      };
      Press(Qt::Key_S, Qt::ControlModifier);
      user.while_told = {};
      break;
    case 6:
      Note("away and back");
      Enter(RandomPlace());
      Enter(place);
      break;
    case 7:
      GoBackAndForth(1 + dice.Below(3), dice.OneIn(2));
      break;
    case 8:
    case 13:
      if (!dice.OneIn(4)) Enter(feature);
      LeafAtRandom(FocusedPlace());
      break;
    case 9:
    case 10:
    case 11:
      CommandPlayer(place);
      break;
    case 12:
      WalkByKeys();
      break;
    default:
      TryTheOtherCell();
      break;
  }
  if (FocusedBox() != nullptr && dice.OneIn(2)) TypeAtRandom();
}

void WayBack::ExpectFocusOfTheStep(std::size_t from, const QWidget* before) {
  const bool is_shown = states[from].is_shown && states[now].is_shown;
  if (!is_shown || states[from].team != states[now].team ||
      states[from].image != states[now].image) {
    EXPECT_TRUE(!is_shown || QApplication::focusWidget() == before) << "as after a click on a team";
    entry_text = FocusedText();
    return;
  }
  const auto first = std::ranges::mismatch(states[from].texts, states[now].texts).in1;
  const int place = static_cast<int>(first - states[from].texts.begin());
  ASSERT_EQ(Focused(), boxes[place]->objectName());
  EXPECT_EQ(boxes[place]->selectedText(), boxes[place]->text());
  if (FocusedBox() != before) entry_text = FocusedText();
}

void WayBack::GoBackAndForth(int most, bool backwards) {
  for (; most > 0 && !HasFailure(); --most) {
    const std::size_t from = now;
    if (backwards && now > 0) --now;
    if (!backwards && now + 1 < states.size()) ++now;
    const QWidget* before = QApplication::focusWidget();
    Note(backwards ? "undo" : "redo");
    if (backwards) Press(Qt::Key_Z, Qt::ControlModifier);
    if (!backwards) {
      const bool is_short_key = dice.OneIn(2);
      Press(is_short_key ? Qt::Key_Y : Qt::Key_Z,
            is_short_key ? Qt::ControlModifier : Qt::ControlModifier | Qt::ShiftModifier);
    }
    ExpectState();
    if (now == from) {
      EXPECT_EQ(QApplication::focusWidget(), before) << "there was nothing to do";
      return;
    }
    EndVisit();
    ExpectFocusOfTheStep(from, before);
  }
}

namespace {

using WayBackPropertyTest = WayBack;

TEST_F(WayBackPropertyTest, LeadsThroughTheTextsOfEveryStepToWhereItWas) {
  constexpr int kRounds = 4;
  constexpr int kSteps = 60;
  constexpr int kAll = kSteps * 20;
  Repeat(kRounds, [this](int seed) {
    PutFile(folder / "other.smc", Sample());
    PutFile(folder / "wrong.smc", std::string("another game"));
    std::vector<std::uint8_t> image = Sample();
    // The small letter, of which SAVE makes a capital, and a position that no codec knows.
    constexpr std::size_t kBraves = 1278464;
    image.at(kBraves + 32 * 6 + 2) = 0x36;
    image.at(kBraves + 9) = 0xFF;
    StartRound(ImagePath(), image);
    Click(seed % 2 == 0 ? "Cubs" : "Mets");
    Begin();
    for (int step = 0; step < kSteps && !HasFailure(); ++step) {
      TakeRandomStep();
      ExpectState();
      ExpectPicture();
      if (dice.OneIn(6)) {
        GoElsewhereAtRandom();
        ExpectState();
      }
    }
    for (const bool backwards : {true, false}) GoBackAndForth(kAll, backwards);
  });
}

}  // namespace
}  // namespace morlek
