#include <QAction>
#include <optional>

#include "shell/random_window.h"

namespace morlek {
namespace {

/// Undo and redo beside a plain list of the team and the texts that each step must lead to.
class WayBackPropertyTest : public RandomWindowTest {
 protected:
  struct State {
    Texts texts;
    QString team;

    friend bool operator==(const State&, const State&) = default;
  };

  void Begin() {
    states = {{Shown(), LabelText("Label4(0)")}};
    now = 0;
    EndTyping();
    entry_text = FocusedText();
  }

  /// Another team is a step, and the same one is when it changes a text.
  void LoadAtRandom() {
    const QString team = dice.OneIn(2) ? "Braves" : "Padres";
    Note("load of the " + team);
    Click(team);
    AddState({Shown(), LabelText("Label4(0)")});
    entry_text = FocusedText();
  }

  void TakeRandomStep();
  void GoBackAndForth(int most, bool backwards);
  void ExpectFocusOfTheStep(std::size_t from, const QWidget* before);

  /// The texts in the window, the two keys and the list agree.
  void ExpectState() const {
    const Texts shown = Shown();
    for (int place = 0; place < kCells; ++place) {
      EXPECT_EQ(shown[place], states[now].texts[place]) << boxes[place]->objectName().toStdString();
    }
    EXPECT_EQ(LabelText("Label4(0)"), states[now].team);
    const QList<QAction*> keys = Find("Frame1").actions();
    EXPECT_EQ(keys[0]->isEnabled(), now > 0) << "undo";
    EXPECT_EQ(keys[1]->isEnabled(), now + 1 < states.size()) << "redo";
  }

  [[nodiscard]] QLineEdit* FocusedBox() const {
    return qobject_cast<QLineEdit*>(QApplication::focusWidget());
  }
  [[nodiscard]] QString FocusedText() const {
    return FocusedBox() == nullptr ? QString() : FocusedBox()->text();
  }
  [[nodiscard]] int FocusedPlace() const {
    return static_cast<int>(std::ranges::find(boxes, FocusedBox()) - boxes.begin());
  }

  void EndTyping() { typed_place.reset(); }

  /// A step of its own, unless it has changed nothing.
  bool AddState(const State& state) {
    EndTyping();
    if (state == states[now]) return false;
    states.resize(now + 1);
    states.push_back(state);
    ++now;
    return true;
  }
  bool AddStep(const Texts& texts) { return AddState({texts, states[now].team}); }

  /// A key has turned the text of the box with the focus into this one.
  void AddTyping(int place, const QString& text) {
    Texts texts = states[now].texts;
    if (texts[place] == text) return;
    texts[place] = text;
    if (typed_place == place) states.resize(now--);
    if (AddStep(texts)) typed_place = place;
  }

  void Enter(int place);
  void TypeAtRandom();

  std::vector<State> states;
  std::size_t now = 0;
  // The box whose typing made the last step and goes on, and what Escape gives back to the box with
  // the focus.
  std::optional<int> typed_place;
  QString entry_text;
};

void WayBackPropertyTest::Enter(int place) {
  if (boxes[place]->hasFocus()) return;
  boxes[place]->setFocus();
  EndTyping();
  entry_text = boxes[place]->text();
}

void WayBackPropertyTest::TypeAtRandom() {
  const int place = FocusedPlace();
  QLineEdit& box = *boxes[place];
  const auto type = [&](const QString& text, const QString& before) {
    for (int length = 1; length <= text.size(); ++length) {
      QTest::keyClicks(&box, text.mid(length - 1, 1));
      AddTyping(place, before + text.left(length));
    }
  };
  const QString text = RandomText(ColumnOf(place));
  switch (dice.Below(6)) {
    case 0:
      Note("append " + text);
      Press(Qt::Key_End);
      type(text, box.text());
      break;
    case 1: {
      Note("take back by hand");
      const QString before = box.text();
      Press(Qt::Key_End);
      type("7", before);
      Press(Qt::Key_Backspace);
      AddTyping(place, before);
      break;
    }
    case 2:
      Note("Escape");
      Press(Qt::Key_Escape);
      EXPECT_EQ(box.selectedText(), box.text());
      AddTyping(place, entry_text);
      break;
    case 3:
      if (text.isEmpty()) break;
      Note("paste " + text);
      box.selectAll();
      PasteInto(ColumnOf(place), RowOf(place), text + "\n");
      AddTyping(place, text);
      break;
    default:
      Note("type " + text);
      box.selectAll();
      type(text, "");
  }
}

void WayBackPropertyTest::TakeRandomStep() {
  // Often the same box again: what comes next to each other is what could be merged.
  const bool stays = FocusedBox() != nullptr && !dice.OneIn(3);
  const int place = stays ? FocusedPlace() : RandomPlace();
  Note("in " + boxes[place]->objectName());
  Enter(place);
  if (dice.OneIn(2)) TypeAtRandom();
  switch (dice.Below(9)) {
    case 0:
    case 1: {
      const int feature = IsFeature(place) ? place : RowOf(place) * kColumns + 11 + dice.Below(3);
      Enter(feature);
      Texts texts = states[now].texts;
      texts[feature] = PickInto(feature);
      AddStep(texts);
      break;
    }
    case 2:
    case 3:
      PasteRandomBlock(place);
      AddStep(Shown());
      break;
    case 4: {
      if (!dice.OneIn(3)) break;
      const bool is_open = ImportRandomFile();
      AddStep(Shown());
      // So that the file is not in the way of a load.
      if (is_open) ChooseWith("mnuOpen", std::nullopt);
      break;
    }
    case 5:
      Note("SAVE");
      Press(Qt::Key_S, Qt::ControlModifier);
      break;
    case 6:
      Note("away and back");
      Enter(RandomPlace());
      Enter(place);
      break;
    case 7:
      GoBackAndForth(1 + dice.Below(3), dice.OneIn(2));
      break;
    default:
      break;
  }
  if (dice.OneIn(2)) TypeAtRandom();
}

void WayBackPropertyTest::ExpectFocusOfTheStep(std::size_t from, const QWidget* before) {
  if (states[from].team != states[now].team) {
    EXPECT_EQ(QApplication::focusWidget(), before) << "as after a click on a team";
    entry_text = FocusedText();
    return;
  }
  const auto first = std::ranges::mismatch(states[from].texts, states[now].texts).in1;
  const int place = static_cast<int>(first - states[from].texts.begin());
  ASSERT_EQ(Focused(), boxes[place]->objectName());
  EXPECT_EQ(boxes[place]->selectedText(), boxes[place]->text());
  if (FocusedBox() != before) entry_text = FocusedText();
}

void WayBackPropertyTest::GoBackAndForth(int most, bool backwards) {
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
    EndTyping();
    ExpectFocusOfTheStep(from, before);
  }
}

TEST_F(WayBackPropertyTest, LeadsThroughTheTextsOfEveryStepToWhereItWas) {
  constexpr int kRounds = 3;
  constexpr int kSteps = 100;
  constexpr int kAll = kSteps * 20;
  Repeat(kRounds, [this](int seed) {
    StartRound(ImagePath(), Sample());
    Click(seed % 2 == 0 ? "Cubs" : "Mets");
    Begin();
    for (int step = 0; step < kSteps && !HasFailure(); ++step) {
      TakeRandomStep();
      ExpectState();
      if (dice.OneIn(15)) {
        LoadAtRandom();
        ExpectState();
      }
    }
    for (const bool backwards : {true, false, true}) GoBackAndForth(kAll, backwards);
  });
}

}  // namespace
}  // namespace morlek
