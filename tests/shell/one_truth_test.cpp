#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QScreen>

#include "image/team_directory.h"
#include "shell/code_page_text.h"
#include "shell/eye.h"
#include "shell/random_window.h"
#include "support/form_columns.h"

namespace morlek {
namespace {

/// After random steps what the window shows is worked out a second time from the editor's state, in
/// the plainest way.
class OneTruthTest : public RandomWindowTest {
 protected:
  [[nodiscard]] const EditorState& state() const { return editor->state(); }
  [[nodiscard]] bool IsChecked(const QString& name) const {
    return static_cast<bool>(QAccessible::queryAccessibleInterface(&Find(name))->state().checked);
  }
  [[nodiscard]] QString TextOf(Column column) const {
    return FromCodePage(state().grid.Text({column, state().stance_row}));
  }

  /// One step of those that a person can take.
  void TakeRandomStep();

  // All ratings are beyond the scale.
  std::vector<std::uint8_t> spoilt = Sample();

  void ExpectCells() const;
  void ExpectFoot() const;
  void ExpectTeam() const;
  void ExpectFeatures() const;
  void ExpectPicture() const;
  void ExpectTruth() const {
    ExpectCells();
    ExpectFoot();
    ExpectTeam();
    ExpectFeatures();
  }
};

void OneTruthTest::ExpectCells() const {
  for (int place = 0; place < kCells; ++place) {
    const Cell cell = CellOfArray(ColumnOf(place), RowOf(place));
    const QLineEdit& box = *boxes[place];
    const std::string name = box.objectName().toStdString();
    ASSERT_EQ(ToCodePage(box.text()), state().grid.Text(cell)) << name;
    const CellMark& mark = state().marks.At(cell);
    const bool is_blue = box.palette().color(QPalette::Text) == QColor(0x1f, 0x5f, 0xd0);
    ASSERT_EQ(is_blue, mark.is_modified) << name;
    ASSERT_EQ(box.toolTip().isEmpty(), !mark.is_marked()) << name;
  }
}

void OneTruthTest::ExpectFoot() const {
  const auto counted = [](int count, const QString& one, const QString& many) {
    return count == 0 ? QString() : QString::number(count) + " " + (count == 1 ? one : many);
  };
  const auto changes = [&](int count) {
    return counted(count, "change not saved", "changes not saved");
  };
  QStringList notes = {PathText(state().scene.place.image.filename())};
  if (const auto* left = std::get_if<LeftBehind>(&state().note)) {
    notes << FromCodePage(left->place.team->key) + ": " + changes(left->changes) +
                 ", Ctrl+Z goes back";
  }
  if (const auto* saved = std::get_if<SavedChanges>(&state().note)) {
    QStringList parts = {counted(saved->stored, "change stored", "changes stored"),
                         counted(saved->refused, "refused by the disk", "refused by the disk")};
    parts.removeAll("");
    notes << parts.join(", ");
  }
  if (const auto* closed = std::get_if<ClosedImport>(&state().note)) {
    notes << QString("%1 of 25 lines read").arg(closed->lines) +
                 (state().can_undo ? ", Ctrl+Z goes back" : "");
  }
  const auto* import = std::get_if<ImportResult>(&state().outcome);
  if (import != nullptr && import->outcome == ImportResult::Outcome::kEndedEarly) {
    notes << QString("%1 of 25 lines read").arg(import->lines);
  }
  const auto* paste = std::get_if<PasteResult>(&state().outcome);
  if (paste != nullptr) {
    notes << counted(paste->cells, "cell found no place", "cells found no place");
  }
  if (state().scene.is_grid_shown && state().is_file_held) {
    notes << "a file is still open and blocks SAVE (Ctrl+O, Cancel)";
  } else if (state().scene.is_grid_shown) {
    const int lossy = state().marks.lossy_count();
    notes << changes(state().marks.modified_count());
    if (lossy > 0) notes << "SAVE will not keep " + counted(lossy, "cell", "cells") + " (F8)";
  }
  notes.removeAll("");
  const QString foot = notes.join(QString::fromUtf8(" · "));
  ASSERT_EQ(Find("labelStatus").accessibleDescription(), foot);
  // The name of the image gives way where the rest needs the room, and then whole parts of the
  // rest.
  QString shown = LabelText("labelStatus");
  const QString cut = QString::fromUtf8(" · …");
  const bool is_cut = shown.endsWith(cut);
  if (is_cut) shown.chop(3);
  const QString nameless = foot.section(QString::fromUtf8(" · "), 1);
  ASSERT_TRUE(shown == foot || shown == nameless || (is_cut && nameless.startsWith(shown)))
      << foot.toStdString();
  ASSERT_EQ(is_cut, Find("labelStatus").toolTip().startsWith(nameless + "\n"));
  ASSERT_EQ(LabelText("Label3").toStdString(), state().identity);
}

void OneTruthTest::ExpectTeam() const {
  ASSERT_EQ(IsShown("Toolbar1"), !state().scene.place.image.empty());
  ASSERT_EQ(IsShown("Frame1"), state().scene.is_grid_shown);
  ASSERT_EQ(IsShown("labelHint"), !state().scene.is_grid_shown);
  ASSERT_EQ(LabelText("labelHint"), state().scene.place.image.empty()
                                        ? "Open a ROM with Ctrl+O"
                                        : "Pick a team above, or press Ctrl+Page Down");
  const Team* team = state().scene.place.team;
  ASSERT_EQ(LabelText("Label4(0)"), team == nullptr ? "" : FromCodePage(team->display_name));
  for (const Team& each : kTeamDirectory) {
    ASSERT_EQ(IsChecked(FromCodePage(each.key)), state().scene.is_grid_shown && team == &each)
        << each.key;
  }
  for (const QAction* action : Find("Frame1").actions().first(2)) {
    ASSERT_EQ(action->isEnabled(), action->text() == "&Undo" ? state().can_undo : state().can_redo);
  }
}

void OneTruthTest::ExpectFeatures() const {
  ASSERT_EQ(window->width(), state().layout == Layout::kNarrow ? 447 : 666);
  for (const auto& [frame, array, column, pictures] :
       {std::tuple("Frame2", "Picture1", Column::kFace, 48),
        {"Frame3", "Picture2", Column::kBody, 48},
        {"Frame4", "Picture3", Column::kLegs, 10}}) {
    ASSERT_EQ(!Find(frame).isHidden(), state().chooser == column) << frame;
    bool is_number = false;
    const uint code = TextOf(column).toUInt(&is_number, 16);
    int marked = 0;
    for (int index = 0; index < 48; ++index) {
      const QString name = QString("%1(%2)").arg(array).arg(index);
      if (window->findChild<QWidget*>(name) == nullptr || !IsChecked(name)) continue;
      ++marked;
      // "face 24": a picture is known by its code.
      ASSERT_TRUE(is_number) << TextOf(column).toStdString();
      ASSERT_EQ(Find(name).accessibleName().section(' ', 1).toUInt(nullptr, 16), code);
    }
    ASSERT_LE(marked, 1);
  }
  ASSERT_EQ(Find("StanceView").accessibleDescription(), TextOf(Column::kName));
}

/// What has been painted on the screen is what the whole window would paint now.
void OneTruthTest::ExpectPicture() const {
  const auto image_of = [](const QPixmap& picture) {
    return picture.toImage().convertToFormat(QImage::Format_RGB32);
  };
  ASSERT_TRUE(QTest::qWaitFor([&] {
    return image_of(window->screen()->grabWindow(window->winId())) == image_of(window->grab());
  }));
}

void OneTruthTest::TakeRandomStep() {
  const bool is_shown = state().scene.is_grid_shown;
  const int place = RandomPlace();
  const int step = dice.Below(13);
  Note(QString("step %1").arg(step));
  switch (step) {
    case 0:
    case 1:
      Click(FromCodePage(kTeamDirectory.at(static_cast<std::size_t>(dice.Below(28))).key));
      break;
    case 2:
      Press(dice.OneIn(2) ? Qt::Key_PageDown : Qt::Key_PageUp, Qt::ControlModifier);
      break;
    case 3:
    case 4:
      if (is_shown) TypeInto(ColumnOf(place), RowOf(place), RandomText(ColumnOf(place)));
      break;
    case 5:
      if (is_shown) Box(12 + dice.Below(3), RowOf(place)).setFocus();
      break;
    case 6:
      Find<QAbstractButton>(QString("Picture%1(%2)").arg(1 + dice.Below(2)).arg(dice.Below(48)))
          .click();
      break;
    case 7:
      if (is_shown) PasteRandomBlock(place);
      break;
    case 8:
      Press(dice.OneIn(2) ? Qt::Key_Z : Qt::Key_Y, Qt::ControlModifier);
      break;
    case 9:
      Press(Qt::Key_S, Qt::ControlModifier);
      break;
    case 10:
      // A short team file is left open, and a cancelled dialog frees it.
      PutFile(folder / "short.txt", std::string("S.HORT,P,\r\n"));
      ChooseWith(dice.OneIn(2) ? "mnuImport" : "mnuExport",
                 dice.OneIn(2) ? std::optional(PathOf("short.txt")) : std::nullopt);
      break;
    case 11:
      ChooseWith(dice.OneIn(3) ? "mnuOpen" : "mnuMini",
                 PathOf(dice.OneIn(2) ? "game.smc" : "other"));
      user.paths.clear();
      break;
    default:
      // For a while the image cannot be opened, or a load ends early, often in the wide layout.
      if (is_shown) Box(12, RowOf(place)).setFocus();
      std::filesystem::remove(ImageFile());
      if (dice.OneIn(2)) PutFile(ImageFile(), spoilt);
      if (dice.OneIn(2)) PutFile(ImageFile(), Sample());
      break;
  }
  QCoreApplication::processEvents();
}

TEST_F(OneTruthTest, AfterEveryStepTheWindowShowsTheStateOfTheEditor) {
  constexpr int kRounds = 2;
  constexpr int kSteps = 250;
  constexpr int kStepsAPicture = 5;
  PutFile(folder / "other", std::string("another game"));
  std::fill(spoilt.begin() + kBraves, spoilt.end(), 0xff);
  Repeat(kRounds, [this](int seed) {
    StartRound(seed % 2 == 0 ? std::optional(ImagePath()) : std::nullopt, Sample());
    ExpectTruth();
    if (seed % 2 == 1) ChooseWith("mnuOpen", ImagePath());
    for (int step = 0; step < kSteps && !HasFailure(); ++step) {
      TakeRandomStep();
      ExpectTruth();
      if (step % kStepsAPicture == 0 || state().layout == Layout::kWide) ExpectPicture();
    }
  });
}

}  // namespace
}  // namespace morlek
