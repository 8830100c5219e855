#include "shell/mark_text.h"

#include <QStringList>
#include <QTextDocument>

#include "shell/code_page_text.h"

namespace morlek {
namespace {

/// A text of the grid within a sentence.
QString Quoted(const std::string& text) {
  return text.empty() ? QString("an empty box") : FromCodePage(text);
}

QString WhatSaveDoes(const GridMarks& marks, Cell cell, const CellMark& mark) {
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
  // Initials are saved before all else, so a name may change even so.
  const bool is_name = cell.column == Column::kName;
  return QString("SAVE does not reach this, because the name of %1 is too long; the image %2 %3")
      .arg(FromCodePage(PlayerText(marks.end_row().value_or(cell.row))),
           is_name ? "then holds" : "keeps", after);
}

QString Counted(int count, const QString& one, const QString& many) {
  return QString("%1 %2").arg(count).arg(count == 1 ? one : many);
}

}  // namespace

QString TipOf(const GridMarks& marks, Cell cell) {
  const CellMark& mark = marks.At(cell);
  QStringList lines;
  if (mark.is_lossy) lines << WhatSaveDoes(marks, cell, mark);
  const bool is_told = mark.is_lossy && mark.after == mark.known;
  if (mark.is_modified && !is_told) {
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

QString LeftBehindText(const EditorState& state) {
  if (!state.left_behind || state.left_behind->place.team == nullptr) return {};
  return QString("%1: %2, Ctrl+Z goes back")
      .arg(FromCodePage(state.left_behind->place.team->key),
           Counted(state.left_behind->changes, "change not saved", "changes not saved"));
}

QString PlainTip(const QString& text) {
  if (!Qt::mightBeRichText(text)) return text;
  return "<qt>" + text.toHtmlEscaped().replace('\n', "<br>") + "</qt>";
}

}  // namespace morlek
