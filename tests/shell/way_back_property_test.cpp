#include <QAction>
#include <QRegularExpression>
#include <QToolTip>
#include <optional>
#include <utility>

#include "image/team_directory.h"
#include "shell/one_truth.h"

namespace morlek {
namespace {

/// What came into a box key by key, or picture by picture, in one visit.
enum class Way { kTyping, kLeafing };

/// Undo and redo beside a plain list of the place and the texts that each step must lead to.
class WayBackPropertyTest : public OneTruth {
 protected:
  struct State {
    Texts texts;
    QString team;
    QString image;
    bool is_shown = true;

    friend bool operator==(const State&, const State&) = default;
  };

  void Begin() {
    states = {CurrentState()};
    now = 0;
    EndVisit();
    entry_text = FocusedText();
    copied.reset();
    QApplication::clipboard()->clear();
  }

  [[nodiscard]] State CurrentState() const {
    const QString foot = Find("labelStatus").accessibleDescription();
    return {Shown(), LabelText("Label4(0)"), foot.section(' ', 0, 0), IsShown("Frame1")};
  }

  /// Another team is a step, and the same one is when it changes a text; so is another image, and
  /// a load that fails.
  void GoElsewhereAtRandom();

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
    EXPECT_EQ(CurrentState().image, states[now].image);
    EXPECT_EQ(IsShown("Frame1"), states[now].is_shown);
    const QList<QAction*> keys = Find("Frame1").actions();
    EXPECT_EQ(keys[0]->isEnabled(), now > 0) << "undo";
    EXPECT_EQ(keys[1]->isEnabled(), now + 1 < states.size()) << "redo";
    ExpectTruth();
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

  void EndVisit() { visit.reset(); }

  /// A step of its own, unless it has changed nothing.
  bool AddState(const State& state) {
    EndVisit();
    if (state == states[now]) return false;
    states.resize(now + 1);
    states.push_back(state);
    ++now;
    return true;
  }
  bool AddStep(const Texts& texts) {
    return AddState({texts, states[now].team, states[now].image});
  }

  /// A key has turned the text of the box with the focus into this one.
  void AddVisit(int place, const QString& text, Way way = Way::kTyping) {
    Texts texts = states[now].texts;
    if (texts[place] == text) return;
    texts[place] = text;
    if (visit == std::pair(place, way)) states.resize(now--);
    if (AddStep(texts)) visit = {place, way};
  }

  void Enter(int place);
  void TypeAtRandom();
  void LeafAtRandom(int place);
  void CommandPlayer(int place);
  void WalkByKeys();
  void ExpectWholeTextIsNew(int place, const QString& before) const;

  struct Copied {
    bool is_batter;
    Texts texts;
  };
  [[nodiscard]] Copied PlayerIn(int row) const {
    return {row < kBatters, states[now].texts.mid(row * kColumns, kColumns)};
  }
  static void PutPlayer(Texts& texts, int row, const Copied& player) {
    for (int place = row * kColumns; place < (row + 1) * kColumns; ++place) {
      const int column = ColumnOf(place);
      const bool have_both = player.is_batter == (row < kBatters) || column <= 3 || column >= 12;
      if (have_both) texts[place] = player.texts[column - 1];
    }
  }

  std::vector<State> states;
  std::size_t now = 0;
  // What made the last step in a box and goes on, and what Escape gives back to the box with the
  // focus.
  std::optional<std::pair<int, Way>> visit;
  QString entry_text;
  // The player in the clipboard.
  std::optional<Copied> copied;
};

void WayBackPropertyTest::Enter(int place) {
  if (boxes[place]->hasFocus()) return;
  boxes[place]->setFocus();
  EndVisit();
  entry_text = boxes[place]->text();
}

void WayBackPropertyTest::TypeAtRandom() {
  const int place = FocusedPlace();
  QLineEdit& box = *boxes[place];
  const auto type = [&](const QString& text, const QString& before) {
    for (int length = 1; length <= text.size(); ++length) {
      QTest::keyClicks(&box, text.mid(length - 1, 1));
      AddVisit(place, before + text.left(length));
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
      AddVisit(place, before);
      break;
    }
    case 2:
      Note("Escape");
      Press(Qt::Key_Escape);
      EXPECT_EQ(box.selectedText(), box.text());
      AddVisit(place, entry_text);
      break;
    case 3:
      if (text.isEmpty()) break;
      Note("paste " + text);
      box.selectAll();
      PasteInto(ColumnOf(place), RowOf(place), text + "\n");
      copied.reset();
      AddVisit(place, text);
      break;
    default:
      Note("type " + text);
      box.selectAll();
      type(text, "");
  }
}

/// Some pictures on or back, of a row of codes that is written down here.
void WayBackPropertyTest::LeafAtRandom(int place) {
  static const QRegularExpression hexadecimal("^0*[0-9A-Fa-f]{1,2}$");
  const bool are_legs = ColumnOf(place) == 14;
  Choose("mnuMini");
  for (int times = 1 + dice.Below(5); times > 0; --times) {
    const bool is_down = dice.OneIn(2);
    const QString text = boxes[place]->text();
    const bool has_code = hexadecimal.match(text).hasMatch();
    const int from = text.toInt(nullptr, 16);
    QString next = text;
    for (int code = 0; IsFeature(place) && code <= (are_legs ? 0x14 : 0x57); ++code) {
      if (code % 16 > (are_legs ? 4 : 7)) continue;
      const bool is_ahead = !has_code || (is_down ? code > from : code < from);
      if (is_ahead && (!is_down || next == text)) next = QString::number(code, 16);
    }
    Note(is_down ? "next picture" : "picture before");
    Press(is_down ? Qt::Key_PageDown : Qt::Key_PageUp);
    AddVisit(place, next, Way::kLeafing);
    ExpectWholeTextIsNew(place, text);
    if (next == text) continue;
    EXPECT_EQ(window->width(), 666) << "the choosers come into view";
    EXPECT_EQ(Find("StanceView").accessibleDescription(), PlayerIn(RowOf(place)).texts[0]);
  }
}

void WayBackPropertyTest::CommandPlayer(int place) {
  constexpr auto kCtrlShift = Qt::ControlModifier | Qt::ShiftModifier;
  const int row = RowOf(place);
  const Copied here = PlayerIn(row);
  const QString text = boxes[place]->text();
  Texts texts = states[now].texts;
  const int command = copied ? dice.Below(5) : 0;
  Note(QString("command %1 on a player").arg(command));
  if (command == 0) {
    Press(Qt::Key_C, kCtrlShift);
    copied = here;
    Enter(RandomPlace());
    CommandPlayer(FocusedPlace());
  } else if (command < 3) {
    Press(command == 1 ? Qt::Key_V : Qt::Key_X, kCtrlShift);
    PutPlayer(texts, row, *copied);
    if (command == 2) copied = here;
    AddStep(texts);
    ExpectWholeTextIsNew(place, text);
  } else {
    const int to = row + (command == 3 ? -1 : +1);
    Press(command == 3 ? Qt::Key_Up : Qt::Key_Down, Qt::AltModifier);
    if (to < 0 || to >= kRows || (to < kBatters) != here.is_batter) return;
    PutPlayer(texts, row, PlayerIn(to));
    PutPlayer(texts, to, here);
    AddStep(texts);
    EXPECT_EQ(FocusedPlace(), place + (to - row) * kColumns) << "the focus goes along";
    entry_text = FocusedText();
  }
}

/// A text that has come into the box with the focus is selected, so that typing replaces it.
void WayBackPropertyTest::ExpectWholeTextIsNew(int place, const QString& before) const {
  const QString text = boxes[place]->text();
  EXPECT_TRUE(text == before || boxes[place]->selectedText() == text);
}

/// F8 goes round the red corners in the order of the screen, Shift+F8 against it.
void WayBackPropertyTest::WalkByKeys() {
  const bool backwards = dice.OneIn(2);
  const auto where = [&](int place) {
    const std::pair there(RowOf(place), boxes[place]->x());
    return backwards ? std::pair(-there.first, -there.second) : there;
  };
  QList<int> marked;
  for (int place = 0; place < kCells; ++place) {
    if (state().marks.At(CellAt(place)).is_lossy) marked << place;
  }
  std::ranges::sort(marked, {}, where);
  Note("F8");
  Find("Command1").setFocus();
  if (dice.OneIn(2)) {
    const int from = RandomPlace();
    boxes[from]->setFocus();
    const auto behind = std::ranges::upper_bound(marked, where(from), {}, where);
    std::rotate(marked.begin(), behind, marked.end());
  }
  if (!marked.isEmpty()) marked << marked.first();
  const QString before = Focused();
  for (const int place : marked) {
    Press(Qt::Key_F8, backwards ? Qt::ShiftModifier : Qt::NoModifier);
    ASSERT_EQ(Focused(), boxes[place]->objectName()) << (backwards ? "backwards" : "forwards");
    ASSERT_EQ(QToolTip::text(), boxes[place]->toolTip()) << "who comes by keys has no pointer";
  }
  if (marked.isEmpty()) {
    Press(Qt::Key_F8);
    EXPECT_EQ(Focused(), before);
  }
  EndVisit();
  entry_text = FocusedText();
}

void WayBackPropertyTest::GoElsewhereAtRandom() {
  const int step = dice.Below(8);
  Note(QString("elsewhere %1").arg(step));
  // What is typed later is another step.
  if (states[now].is_shown) Enter(FocusedPlace() == 0 ? 1 : 0);
  if (FocusedBox() != nullptr) FocusedBox()->deselect();
  switch (step) {
    case 0:
    case 1:
      ChooseWith("mnuOpen", dice.OneIn(2) ? ImagePath() : PathOf("other.smc"));
      EXPECT_FALSE(IsShown("Frame1") && !state().is_file_held);
      break;
    case 2:
      Press(dice.OneIn(2) ? Qt::Key_PageDown : Qt::Key_PageUp, Qt::ControlModifier);
      break;
    case 3:
      // A short team file is left open, and a cancelled dialog frees it.
      PutFile(folder / "short.txt", std::string("S.HORT,P,\r\n"));
      ChooseWith(dice.OneIn(2) ? "mnuImport" : "mnuExport",
                 dice.OneIn(2) ? std::optional(PathOf("short.txt")) : std::nullopt);
      break;
    case 4:
      ChooseWith("mnuOpen", PathOf(dice.OneIn(2) ? "missing.smc" : "wrong.smc"));
      break;
    case 5:
      // The image cannot be opened for a while, not even by SAVE.
      std::filesystem::rename(ImageFile(), folder / "away.smc");
      Press(Qt::Key_S, Qt::ControlModifier);
      Click("Cubs");
      std::filesystem::rename(folder / "away.smc", ImageFile());
      break;
    default:
      Click(dice.OneIn(2) ? "Braves" : "Padres");
      EXPECT_EQ(FocusedBox() == nullptr ? QString() : FocusedBox()->selectedText(), FocusedText());
  }
  AddState(CurrentState());
  // A load begins a visit, an import does not.
  if (step != 3) entry_text = FocusedText();
}

void WayBackPropertyTest::TakeRandomStep() {
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
      texts[feature] = PickInto(feature);
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
      break;
  }
  if (FocusedBox() != nullptr && dice.OneIn(2)) TypeAtRandom();
}

void WayBackPropertyTest::ExpectFocusOfTheStep(std::size_t from, const QWidget* before) {
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
    EndVisit();
    ExpectFocusOfTheStep(from, before);
  }
}

TEST_F(WayBackPropertyTest, LeadsThroughTheTextsOfEveryStepToWhereItWas) {
  constexpr int kRounds = 4;
  constexpr int kSteps = 60;
  constexpr int kAll = kSteps * 20;
  Repeat(kRounds, [this](int seed) {
    PutFile(folder / "other.smc", Sample());
    PutFile(folder / "wrong.smc", std::string("another game"));
    std::vector<std::uint8_t> image = Sample();
    // The small letter, of which SAVE makes a capital, and a position that no codec knows.
    const auto braves = static_cast<std::size_t>(kBraves - 1);
    image.at(braves + 32 * 6 + 2) = 0x36;
    image.at(braves + 9) = 0xFF;
    StartRound(ImagePath(), image);
    Click(seed % 2 == 0 ? "Cubs" : "Mets");
    Begin();
    for (int step = 0; step < kSteps && !HasFailure(); ++step) {
      TakeRandomStep();
      ExpectState();
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
