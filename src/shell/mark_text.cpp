#include "shell/mark_text.h"

#include <QStringList>
#include <QTextDocument>

#include "shell/code_page_text.h"
#include "team/accepted_texts.h"
#include "team/refusal.h"

namespace morlek {
namespace {

/// A text of the grid within a sentence.
QString Quoted(const std::string& text) {
  return text.empty() ? QString("an empty box") : FromCodePage(text);
}

QString WhatSaveDoes(Cell cell, const CellMark& mark) {
  const QString after = Quoted(mark.after);
  switch (mark.fate) {
    case SavePreview::Fate::kStored:
      return QString(mark.after == mark.known ? "SAVE stores %1; the image holds that already"
                                              : "SAVE stores %1")
          .arg(after);
    case SavePreview::Fate::kSkipped:
      return QString("SAVE skips this; the image keeps %1").arg(after);
    case SavePreview::Fate::kEndsSave:
      return QString("SAVE ends here, because this name is too long; the image then holds %1")
          .arg(after);
    case SavePreview::Fate::kNotReached:
      break;
  }
  // Initials are saved before everything else, so a name may still change.
  const bool is_name = cell.column == Column::kName;
  return QString("SAVE does not reach this, because the name of %1 is too long; the image %2 %3")
      .arg(FromCodePage(PlayerText(mark.cause.value_or(cell).row)),
           is_name ? "then holds" : "keeps", after);
}

/// Why it does so, where that has not been said, and what the column takes.
QStringList WhySo(const std::string& text, Cell cell, const CellMark& mark) {
  using enum SavePreview::Fate;
  if (mark.fate == kNotReached) return {};
  QStringList lines;
  if (mark.fate != kEndsSave) {
    QString reason =
        FromCodePage(ReasonOfRefusal(text, cell, mark.fate, mark.cause).value_or(std::string()));
    if (!reason.isEmpty()) lines << reason.replace(0, 1, reason[0].toUpper());
  }
  return lines << QString("%1 takes %2")
                      .arg(FromCodePage(CaptionOf(BlockOf(cell.row), cell.column)),
                           FromCodePage(AcceptedTexts(cell.column)));
}

QString Counted(int count, const char* one, const char* many) {
  return QString::number(count) + ' ' + (count == 1 ? one : many);
}

/// A text that may be of any length, short enough for a line, as one line.
QString Shortened(QString text) {
  constexpr int kMost = 24;
  constexpr int kEnd = kMost / 2;
  text.replace('\n', ' ');
  if (text.size() <= kMost) return text;
  return text.first(kMost - kEnd - 1) + QChar(0x2026) + text.last(kEnd);
}

QString NameOf(const RefusedFile& file) {
  return QString::fromStdU16String(file.path.filename().u16string());
}

/// The import that ended early in the last step; null if there was none.
const ImportResult* EarlyEnd(const EditorState& state) {
  const auto* import = std::get_if<ImportResult>(&state.outcome);
  if (import == nullptr || import->outcome != ImportResult::Outcome::kEndedEarly) return nullptr;
  return import;
}

QString LinesRead(int lines) { return QString("%1 of %2 lines read").arg(lines).arg(kSlotCount); }

QString TextOf(std::monostate /*nothing*/, const EditorState& /*state*/) { return {}; }

QString TextOf(const LeftBehind& left, const EditorState& /*state*/) {
  if (left.place.team == nullptr) return {};
  return QString("%1: %2, Ctrl+Z goes back")
      .arg(FromCodePage(left.place.team->key),
           Counted(left.changes, "change not saved", "changes not saved"));
}

QString TextOf(const UnknownLetter& unknown, const EditorState& state) {
  const QString player = FromCodePage(PlayerText(unknown.row));
  if (unknown.letter.empty()) return QString("the name of %1 is empty").arg(player);
  return QString("%1 in %2, the name of %3")
      .arg(FromCodePage(unknown.letter),
           Shortened(FromCodePage(state.grid.Text({Column::kName, unknown.row}))), player);
}

QString TextOf(const SavedChanges& saved, const EditorState& /*state*/) {
  QStringList parts;
  if (saved.stored > 0) parts << Counted(saved.stored, "change stored", "changes stored");
  const char* const refused =
      saved.was_blocked ? "%1 not stored, a file was still open" : "%1 refused by the disk";
  if (saved.refused > 0) parts << QString(refused).arg(saved.refused);
  return parts.join(", ");
}

QString TextOf(const ClosedImport& import, const EditorState& state) {
  return LinesRead(import.lines) + (state.can_undo ? ", Ctrl+Z goes back" : "");
}

QString TextOf(const CopyNote& copied, const EditorState& /*state*/) {
  return QString("%1 is copied").arg(Shortened(FromCodePage(copied.who)));
}

QString TextOf(const RefusedFile& file, const EditorState& /*state*/) {
  if (!file.lacks_header) return {};
  return QString("%1 lacks the 512 bytes in front of the game").arg(Shortened(NameOf(file)));
}

}  // namespace

QString TipOf(const EditorState& state, Cell cell) {
  const CellMark& mark = state.marks.At(cell);
  QStringList lines;
  if (mark.is_lossy) lines << WhatSaveDoes(cell, mark) << WhySo(state.grid.Text(cell), cell, mark);
  const bool is_explained = mark.is_lossy && mark.after == mark.known;
  if (mark.is_modified && !is_explained) {
    lines << QString("Not saved yet; the image holds %1").arg(Quoted(mark.known));
  }
  return lines.join('\n');
}

QString SummaryOf(const GridMarks& marks) {
  QStringList parts;
  if (marks.modified_count() > 0) {
    parts << Counted(marks.modified_count(), "change not saved", "changes not saved");
  }
  if (marks.lossy_count() > 0) {
    parts
        << QString("SAVE will not keep %1 (F8)").arg(Counted(marks.lossy_count(), "cell", "cells"));
  }
  return parts.join(QString::fromUtf8(" \u00b7 "));
}

QString NoteOf(const EditorState& state) {
  if (const auto* import = EarlyEnd(state)) return LinesRead(import->lines);
  const auto* paste = std::get_if<PasteResult>(&state.outcome);
  if (paste != nullptr && paste->cells > 0) {
    return Counted(paste->cells, "cell found no place", "cells found no place");
  }
  return std::visit([&state](const auto& note) { return TextOf(note, state); }, state.note);
}

QString DetailsOf(const EditorState& state) {
  if (const auto* import = EarlyEnd(state)) {
    const QString line_ends =
        import->lines <= 1 ? " Perhaps its lines end in LF alone: they have to end in CR LF." : "";
    return QString(
               "A team file has %1 lines, and this one has %2.%3 Ctrl+O and Cancel close it, "
               "Ctrl+Z brings the team back.\n")
        .arg(kSlotCount)
        .arg(import->lines)
        .arg(line_ends);
  }
  const auto* refused = std::get_if<RefusedFile>(&state.note);
  if (refused != nullptr && refused->lacks_header) {
    return QString(
               "%1 has the size of a game without the 512 bytes that a copier puts in front of "
               "it. The README says how to add them.\n")
        .arg(NameOf(*refused));
  }
  return {};
}

QString PlainTip(const QString& text) {
  if (!Qt::mightBeRichText(text)) return text;
  return "<qt>" + text.toHtmlEscaped().replace('\n', "<br>") + "</qt>";
}

}  // namespace morlek
