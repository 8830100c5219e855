#include "shell/one_truth.h"

#include <QAction>
#include <map>

#include "image/team_directory.h"

namespace morlek {

void OneTruth::ExpectCells() const {
  int unsaved = 0;
  int lossy = 0;
  const SavePreview preview = editor->Preview();
  for (int place = 0; place < kCells; ++place) {
    const QLineEdit& box = *boxes[place];
    ASSERT_EQ(ToCodePage(box.text()), state().grid.Text(CellAt(place)));
    const SpokenTip said = ReadTip(box.toolTip());
    ASSERT_EQ(box.accessibleDescription(), said.all);
    const bool is_blue = box.palette().color(QPalette::Text) == QColor(0x1f, 0x5f, 0xd0);
    if (!state().is_loaded) {
      ASSERT_TRUE(said.all.isEmpty() && !is_blue);
      continue;
    }
    const QString held = FromCodePage(editor->baseline()->texts().Text(CellAt(place)));
    ExpectMark(place, held, preview, said);
    ASSERT_EQ(is_blue, !IsSame(place, box.text(), held)) << box.objectName().toStdString();
    unsaved += is_blue ? 1 : 0;
    lossy += said.is_lossy() ? 1 : 0;
  }
  ASSERT_EQ(Find("Command1").accessibleDescription(), Summary(unsaved, lossy));
}

/// Every sentence of a tip agrees with what the box shows, what the image holds, and what a load
/// after SAVE would show.
void OneTruth::ExpectMark(int place, const QString& held, const SavePreview& preview,
                          const SpokenTip& said) const {
  using enum SpokenTip::Save;
  static const std::map<SavePreview::Fate, SpokenTip::Save> words = {
      {SavePreview::Fate::kStored, kStores},
      {SavePreview::Fate::kSkipped, kSkips},
      {SavePreview::Fate::kEndsSave, kEnds},
      {SavePreview::Fate::kNotReached, kNotReached}};
  const QString text = boxes[place]->text();
  const std::string where = boxes[place]->objectName().toStdString() + ": " +
                            said.all.toStdString() + " over " + held.toStdString();
  const QString after = FromCodePage(preview.TextAfter(CellAt(place)));
  const bool is_unsaved = !IsSame(place, text, held);
  const bool is_lost = text == held ? after != text : !IsSame(place, after, text);
  const bool is_told = is_lost && after == held;
  ASSERT_EQ(said.is_lossy(), is_lost) << where;
  ASSERT_EQ(said.held, is_unsaved && !is_told ? std::optional(held) : std::nullopt) << where;
  ASSERT_EQ(said.is_held_already, is_told && said.save == kStores) << where;
  if (!is_lost) return;
  ASSERT_EQ(said.save, words.at(preview.FateOf(CellAt(place)))) << where;
  ASSERT_EQ(said.after, after) << where;
  if (said.save != kNotReached) return;
  const QLineEdit& too_long = Box(1, preview.end_row().value());
  ASSERT_EQ(said.too_long, too_long.accessibleName().section(", ", 1));
  ASSERT_EQ(said.verb, ColumnOf(place) == 1 ? "then holds" : "keeps");
}

void OneTruth::ExpectFoot() const {
  QStringList notes = {PathText(state().scene.place.image.filename())};
  if (const auto* left = std::get_if<LeftBehind>(&state().note)) {
    notes << FromCodePage(left->place.team->key) + ": " + Changes(left->changes) +
                 ", Ctrl+Z goes back";
  }
  if (const auto* saved = std::get_if<SavedChanges>(&state().note)) {
    QStringList parts = {Counted(saved->stored, "change stored", "changes stored"),
                         Counted(saved->refused, "refused by the disk", "refused by the disk")};
    parts.removeAll("");
    notes << parts.join(", ");
  }
  const auto* import = std::get_if<ImportResult>(&state().outcome);
  if (import != nullptr && import->outcome == ImportResult::Outcome::kEndedEarly) {
    notes << QString("%1 of 25 lines read").arg(import->lines);
  }
  const auto* paste = std::get_if<PasteResult>(&state().outcome);
  if (paste != nullptr) {
    notes << Counted(paste->cells, "cell found no place", "cells found no place");
  }
  if (state().scene.is_grid_shown && state().is_file_held) {
    notes << "a file is still open and blocks SAVE (Ctrl+O, Cancel)";
  } else if (state().scene.is_grid_shown) {
    notes << Summary(state().marks.modified_count(), state().marks.lossy_count());
  }
  notes.removeAll("");
  const QString foot = notes.join(QString::fromUtf8(" · "));
  ASSERT_EQ(Find("labelStatus").accessibleDescription(), foot);
  // The name of the image gives way where the rest needs the room, and then the end of the rest.
  QString shown = LabelText("labelStatus");
  const bool is_cut = shown.endsWith(QChar(0x2026));
  if (is_cut) shown.chop(1);
  const QString nameless = foot.section(QString::fromUtf8(" · "), 1);
  ASSERT_TRUE(shown == foot || shown == nameless || (is_cut && nameless.startsWith(shown)))
      << foot.toStdString();
  ASSERT_EQ(LabelText("Label3").toStdString(), state().identity);
}

void OneTruth::ExpectTeam() const {
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

void OneTruth::ExpectFeatures() const {
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

}  // namespace morlek
