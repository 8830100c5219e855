#include "ui/line_break_filter.h"

#include <QLineEdit>
#include <algorithm>

namespace morlek {
namespace {

QString WithoutLineBreaks(QString text) { return text.remove('\r').remove('\n'); }

/// How many characters at the beginning are the same.
qsizetype SharedLength(QStringView one, QStringView other) {
  const auto [end, other_end] = std::ranges::mismatch(one, other);
  return end - one.begin();
}

qsizetype SharedLengthAtEnd(QStringView one, QStringView other) {
  const auto [end, other_end] =
      std::mismatch(one.rbegin(), one.rend(), other.rbegin(), other.rend());
  return end - one.rbegin();
}

}  // namespace

LineBreakFilter::LineBreakFilter(QLineEdit& edit) : edit_(edit) {
  connect(&edit, &QLineEdit::textEdited, this, &LineBreakFilter::Filter);
  connect(&edit, &QLineEdit::textChanged, this, &LineBreakFilter::NoteText);
  connect(&edit, &QLineEdit::selectionChanged, this, &LineBreakFilter::NoteStart);
  connect(&edit, &QLineEdit::cursorPositionChanged, this, &LineBreakFilter::NoteStart);
}

void LineBreakFilter::NoteText() {
  text_ = edit_.text();
  NoteStart();
}

void LineBreakFilter::NoteStart() {
  // An input method moves the cursor before the change that it makes is reported.
  if (edit_.text() != text_) return;
  start_ = edit_.hasSelectedText() ? edit_.selectionStart() : edit_.cursorPosition();
}

void LineBreakFilter::Filter() {
  const QString text = edit_.text();
  const qsizetype cursor = edit_.cursorPosition();
  // What came in ends at the cursor, and replaced all in between that was there before.
  const QStringView now = text;
  const QStringView before = text_;
  const qsizetype start = SharedLength(now, before.first(start_));
  const qsizetype rest =
      SharedLengthAtEnd(now.sliced(std::max(start, cursor)), before.sliced(start));
  const QString came_in = text.sliced(start, text.size() - rest - start);
  const QString filtered = WithoutLineBreaks(came_in);
  if (filtered == came_in) return;

  const QString up_to_cursor = came_in.first(std::max<qsizetype>(cursor - start, 0));
  edit_.setText(text.first(start) + filtered + text.last(rest));
  edit_.setCursorPosition(static_cast<int>(start + WithoutLineBreaks(up_to_cursor).size()));
}

}  // namespace morlek
