#include "shell/one_truth.h"

#include <QAbstractButton>
#include <QAction>
#include <QRegularExpression>
#include <QScreen>
#include <QTextDocumentFragment>
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
    QString said = box.accessibleDescription();
    const QString shown = box.toolTip();
    ASSERT_EQ(
        Qt::mightBeRichText(shown) ? QTextDocumentFragment::fromHtml(shown).toPlainText() : shown,
        said);
    const bool is_blue = box.palette().color(QPalette::Text) == QColor(0x1f, 0x5f, 0xd0);
    if (state().loaded == nullptr) {
      ASSERT_TRUE(said.isEmpty() && !is_blue);
      continue;
    }
    lossy += said.contains("SAVE") ? 1 : 0;
    const QString held = FromCodePage(editor->baseline()->texts().Text(CellAt(place)));
    TakeFault(place, said);
    ASSERT_EQ(said.toStdString(), TipOf(place, held, preview).toStdString());
    ASSERT_EQ(is_blue, !IsSame(place, box.text(), held)) << box.objectName().toStdString();
    unsaved += is_blue ? 1 : 0;
  }
  ASSERT_EQ(Find("Command1").accessibleDescription(), Summary(unsaved, lossy));
}

/// Every sentence of a tip but what is wrong with a name: what the box shows, what the image holds,
/// and what a load after SAVE would show.
QString OneTruth::TipOf(int place, const QString& held, const SavePreview& preview) const {
  using enum SavePreview::Fate;
  const auto quoted = [](const QString& text) { return text.isEmpty() ? "an empty box" : text; };
  const QString text = boxes[place]->text();
  const QString after = FromCodePage(preview.TextAfter(CellAt(place)));
  const SavePreview::Fate fate = preview.FateOf(CellAt(place));
  const bool is_lost = text == held ? after != text : !IsSame(place, after, text);
  const bool is_told = is_lost && after == held;
  QStringList lines;
  if (is_lost && fate == kNotReached) {
    const QString too_long = Box(1, preview.end_row().value()).accessibleName().section(", ", 1);
    lines << "SAVE does not reach this, because the name of " + too_long +
                 " is too long; the image " + (ColumnOf(place) == 1 ? "then holds " : "keeps ") +
                 quoted(after);
  } else if (is_lost) {
    static const std::map<SavePreview::Fate, QString> words = {
        {kStored, "SAVE stores "},
        {kSkipped, "SAVE skips this; the image keeps "},
        {kEndsSave, "SAVE ends here, because this name is too long; the image then holds "}};
    const QString known = is_told && fate == kStored ? "; the image holds that already" : "";
    lines << words.at(fate) + quoted(after) + known;
    const int bad = PartnerOf(place);
    if (state().marks.At(CellAt(place)).cause) {
      QStringList headers = {HeaderOf(place).text(), HeaderOf(bad).text()};
      if (boxes[bad]->x() < boxes[place]->x()) headers.swapItemsAt(0, 1);
      lines << headers.join(" and ") + " share a byte, and " + HeaderOf(bad).text() + " is not " +
                   TakesOf(bad);
    }
    lines << HeaderOf(place).text() + " takes " + TakesOf(place);
  }
  if (!IsSame(place, text, held) && !is_told) {
    lines << "Not saved yet; the image holds " + quoted(held);
  }
  return lines.join('\n');
}

/// Takes out of a tip what it says of a name, which has to be true.
void OneTruth::TakeFault(int place, QString& tip) const {
  static const QRegularExpression fault(
      "\n(Character (\\d+) is no letter that the game has|No initial stands before the period|"
      "No period follows the initial|A second period stands in the name)");
  static const QRegularExpression letter("[A-Z ]");
  const auto match = fault.match(tip);
  if (!match.hasMatch()) return;
  tip.remove(match.captured(0));
  const QString text = boxes[place]->text();
  const int number = match.captured(2).toInt();
  EXPECT_TRUE(number > 0 ? !QString(text[number - 1].toUpper()).contains(letter)
              : match.captured(1).startsWith("No initial") ? text[0] == '.'
              : match.captured(1).startsWith("No period")  ? text[1] != '.'
                                                           : text.lastIndexOf('.') > 1);
}

void OneTruth::ExpectFoot() const {
  QStringList notes = {PathText(state().scene.place.image.filename())};
  if (const auto* left = std::get_if<LeftBehind>(&state().note)) {
    notes << FromCodePage(left->place.team->key) + ": " + Changes(left->changes) +
                 ", Ctrl+Z goes back";
  }
  if (const auto* saved = std::get_if<SavedChanges>(&state().note)) {
    const QString refused =
        saved->was_blocked ? "not stored, a file was still open" : "refused by the disk";
    QStringList parts = {Counted(saved->stored, "change stored", "changes stored"),
                         Counted(saved->refused, refused, refused)};
    parts.removeAll("");
    notes << parts.join(", ");
  }
  if (const auto* closed = std::get_if<ClosedImport>(&state().note)) {
    notes << QString("%1 of 25 lines read").arg(closed->lines) +
                 (state().can_undo ? ", Ctrl+Z goes back" : "");
  }
  if (const auto* copied = std::get_if<CopyNote>(&state().note)) {
    notes << FromCodePage(copied->who) + " is copied";
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
  const QString separator = QString::fromUtf8(" · ");
  const QString foot = notes.join(separator);
  ASSERT_EQ(Find("labelStatus").accessibleDescription(), foot);
  // The name of the image gives way where the rest needs the room, at first its middle, and then
  // whole parts of the rest.
  const QChar ellipsis(0x2026);
  QString shown = LabelText("labelStatus");
  const bool is_cut = shown.endsWith(separator + ellipsis);
  if (is_cut) shown.chop(separator.size() - 1);
  const QString nameless = foot.section(separator, 1);
  ASSERT_TRUE(shown == foot || shown == nameless || (is_cut && nameless.startsWith(shown)) ||
              (shown.section(separator, 0, 0).contains(ellipsis) &&
               shown.section(separator, 1) == nameless))
      << foot.toStdString() << "\n"
      << shown.toStdString();
  ASSERT_EQ(is_cut, Find("labelStatus").toolTip().startsWith(nameless + "\n"));
  ASSERT_EQ(LabelText("Label3").toStdString(), state().identity);
  ASSERT_EQ(Find("Label3").accessibleDescription(), LabelText("Label3"));
}

void OneTruth::ExpectTeam() const {
  ASSERT_EQ(IsShown("Toolbar1"), !state().scene.place.image.empty());
  ASSERT_EQ(IsShown("Frame1"), state().scene.is_grid_shown);
  ASSERT_EQ(IsShown("labelHint"), !state().scene.is_grid_shown);
  ASSERT_EQ(Find("labelHint").accessibleDescription(),
            state().scene.place.image.empty() ? "Open a ROM with Ctrl+O"
                                              : "Pick a team above, or press Ctrl+Page Down");
  const Team* team = state().scene.place.team;
  ASSERT_EQ(LabelText("Label4(0)"), team == nullptr ? "" : FromCodePage(team->display_name));
  for (const Team& each : kTeamDirectory) {
    ASSERT_EQ(IsChecked(Find(FromCodePage(each.key))), state().scene.is_grid_shown && team == &each)
        << each.key;
  }
  for (const QAction* action : Find("Frame1").actions().first(2)) {
    ASSERT_EQ(action->isEnabled(), action->text() == "&Undo" ? state().can_undo : state().can_redo);
  }
}

void OneTruth::ExpectFeatures() const {
  ASSERT_EQ(window->width(), state().layout == Layout::kNarrow ? 447 : 666);
  for (const auto& [frame, column] :
       {std::pair("Frame2", Column::kFace), {"Frame3", Column::kBody}, {"Frame4", Column::kLegs}}) {
    ASSERT_EQ(!Find(frame).isHidden(), state().chooser == column) << frame;
    bool is_number = false;
    const uint code = TextOf(column).toUInt(&is_number, 16);
    int marked = 0;
    for (QAbstractButton* picture : Find(frame).findChildren<QAbstractButton*>()) {
      if (!IsChecked(*picture)) continue;
      ++marked;
      // "face 24": a picture is known by its code.
      ASSERT_TRUE(is_number) << TextOf(column).toStdString();
      ASSERT_EQ(picture->accessibleName().section(' ', 1).toUInt(nullptr, 16), code);
    }
    ASSERT_LE(marked, 1);
  }
  ASSERT_EQ(Find("StanceView").accessibleDescription(), TextOf(Column::kName));
  const QWidget& mark = Find("StanceMark");
  ASSERT_EQ(mark.isVisible(), state().scene.is_grid_shown && window->width() == 666);
  const QRect row = Box(14, state().stance_row).geometry().translated(Find("Frame1").pos());
  ASSERT_LE((mark.geometry().center() - row.center() - QPoint(21, 0)).manhattanLength(), 1);
}

/// What has been painted on the screen is what the whole window would paint now.
void OneTruth::ExpectPicture() const {
  const auto image_of = [](const QPixmap& picture) {
    return picture.toImage().convertToFormat(QImage::Format_RGB32);
  };
  // What is due is painted before the first look: a second one takes as long again.
  QCoreApplication::processEvents();
  ASSERT_TRUE(QTest::qWaitFor([&] {
    return image_of(window->screen()->grabWindow(window->winId())) == image_of(window->grab());
  }));
}

}  // namespace morlek
