#include <QRegularExpression>
#include <QToolTip>

#include "shell/way_back.h"

namespace morlek {

void WayBack::Enter(int place) {
  if (boxes[place]->hasFocus()) return;
  boxes[place]->setFocus();
  EndVisit();
  entry_text = boxes[place]->text();
}

void WayBack::TypeAtRandom() {
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

/// The code of the next picture, of a row of codes that is written down here.
QString WayBack::NextPicture(int place, bool is_down) const {
  static const QRegularExpression hexadecimal("^0*[0-9A-Fa-f]{1,2}$");
  const bool are_legs = ColumnOf(place) == 14;
  const QString text = boxes[place]->text();
  const bool has_code = hexadecimal.match(text).hasMatch();
  const int from = text.toInt(nullptr, 16);
  QString next = text;
  for (int code = 0; IsFeature(place) && code <= (are_legs ? 0x14 : 0x57); ++code) {
    if (code % 16 > (are_legs ? 4 : 7)) continue;
    const bool is_ahead = !has_code || (is_down ? code > from : code < from);
    if (is_ahead && (!is_down || next == text)) next = QString::number(code, 16);
  }
  return next;
}

void WayBack::LeafAtRandom(int place) {
  Choose("mnuMini");
  for (int times = 1 + dice.Below(5); times > 0; --times) {
    const bool is_down = dice.OneIn(2);
    const QString text = boxes[place]->text();
    const QString next = NextPicture(place, is_down);
    Note(is_down ? "next picture" : "picture before");
    Press(is_down ? Qt::Key_PageDown : Qt::Key_PageUp);
    AddVisit(place, next, Way::kLeafing);
    ExpectWholeTextIsNew(place, text);
    if (next == text) continue;
    EXPECT_EQ(window->width(), 666) << "the choosers come into view";
  }
}

void WayBack::CommandPlayer(int place) {
  constexpr auto kBoth = Qt::ControlModifier | Qt::ShiftModifier;
  const int row = RowOf(place);
  const Copied here = PlayerIn(row);
  const QString text = boxes[place]->text();
  Texts texts = states[now].texts;
  const int command = copied ? dice.Below(5) : 0;
  Note(QString("command %1 on a player").arg(command));
  if (command == 0) {
    Press(Qt::Key_C, kBoth);
    copied = here;
    EXPECT_TRUE(LabelText("labelStatus").contains("is copied"));
    Enter(RandomPlace());
    CommandPlayer(FocusedPlace());
  } else if (command < 3) {
    Press(command == 1 ? Qt::Key_V : Qt::Key_X, kBoth);
    PutPlayer(texts, row, *copied);
    if (command == 2) copied = here;
    EXPECT_TRUE(command == 1 || LabelText("labelStatus").contains("is copied"));
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
void WayBack::ExpectWholeTextIsNew(int place, const QString& before) const {
  const QString text = boxes[place]->text();
  EXPECT_TRUE(text == before || boxes[place]->selectedText() == text);
}

/// F8 goes round the causes in the order of the screen and then round what is lost because of them,
/// Shift+F8 against it.
void WayBack::WalkByKeys() {
  const bool backwards = dice.OneIn(2);
  const auto is_cause = [&](int place) { return !state().marks.At(CellAt(place)).cause; };
  const auto where = [&](int place) {
    const int sign = backwards ? -1 : +1;
    return std::tuple(sign * (is_cause(place) ? 0 : 1), sign * RowOf(place),
                      sign * boxes[place]->x());
  };
  QList<int> marked;
  for (int place = 0; place < kCells; ++place) {
    if (state().marks.At(CellAt(place)).is_lossy) marked << place;
  }
  std::ranges::sort(marked, {}, where);
  Note("F8");
  Find("Command1").setFocus();
  int from = -1;
  if (dice.OneIn(2)) {
    from = RandomPlace();
    boxes[from]->setFocus();
    const auto behind = std::ranges::upper_bound(marked, where(from), {}, where);
    std::rotate(marked.begin(), behind, marked.end());
  }
  // From a box that is none of them to a cause.
  const auto cause = std::ranges::find_if(marked, is_cause);
  if (!marked.contains(from) && cause != marked.end()) {
    std::rotate(marked.begin(), cause, marked.end());
  }
  if (!marked.isEmpty()) marked << marked.first();
  const QString before = Focused();
  for (const int place : marked) {
    boxes[place]->deselect();
    Press(Qt::Key_F8, backwards ? Qt::ShiftModifier : Qt::NoModifier);
    ASSERT_EQ(Focused(), boxes[place]->objectName()) << (backwards ? "backwards" : "forwards");
    ASSERT_EQ(boxes[place]->selectedText(), boxes[place]->text());
    ASSERT_EQ(QToolTip::text(), boxes[place]->toolTip()) << "who comes by keys has no pointer";
  }
  if (marked.isEmpty()) {
    Press(Qt::Key_F8);
    EXPECT_EQ(Focused(), before);
  }
  EndVisit();
  entry_text = FocusedText();
}

/// Beside a good text SAVE keeps what it loses because of another cell, and nothing else.
void WayBack::TryTheOtherCell() {
  const auto is_lossy = [this](int place) { return state().marks.At(CellAt(place)).is_lossy; };
  int place = RandomPlace();
  const auto is_fit = [&](int each) {
    return PartnerOf(each) >= 0 && is_lossy(each) &&
           state().marks.At(CellAt(each)).fate != SavePreview::Fate::kNotReached;
  };
  for (int tries = 0; tries < kCells && !is_fit(place); ++tries) place = (place + 1) % kCells;
  if (!is_fit(place)) return;
  Note("a good text beside " + boxes[place]->objectName());
  const bool is_consequence = state().marks.At(CellAt(place)).cause.has_value();
  const int other = PartnerOf(place);
  Enter(other);
  boxes[other]->selectAll();
  const QString good = ColumnOf(other) == 4 ? "R" : "1";
  QTest::keyClicks(boxes[other], good);
  AddVisit(other, good);
  EXPECT_EQ(is_lossy(place) || is_lossy(other), !is_consequence);
}

void WayBack::GoElsewhereAtRandom() {
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
      // For a while the image cannot be opened, not even by SAVE, or a load of it ends early.
      std::filesystem::rename(ImageFile(), folder / "away.smc");
      if (dice.OneIn(2)) {
        PutFile(ImageFile(), std::vector<std::uint8_t>(Sample().size(), 0xFF));
      }
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

}  // namespace morlek
