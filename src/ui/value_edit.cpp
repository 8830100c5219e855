#include "ui/value_edit.h"

#include <QFocusEvent>
#include <QMouseEvent>
#include <algorithm>
#include <utility>

namespace morlek {
namespace {

/// Whether the focus goes to a menu or another window, or returns from there, which does not begin
/// a visit.
bool IsShortAbsence(Qt::FocusReason reason) {
  return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
         reason == Qt::MenuBarFocusReason;
}

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

ValueEdit::ValueEdit(QWidget* parent) : QLineEdit(parent) {
  connect(this, &QLineEdit::textEdited, this, &ValueEdit::FilterLineBreaks);
  connect(this, &QLineEdit::textChanged, this, &ValueEdit::NoteText);
  connect(this, &QLineEdit::selectionChanged, this, &ValueEdit::NoteStart);
  connect(this, &QLineEdit::cursorPositionChanged, this, &ValueEdit::NoteStart);
}

void ValueEdit::ShowText(const QString& text) {
  setText(text);
  SelectForTyping();
  if (!hasFocus()) home(false);
}

void ValueEdit::BeginVisit() {
  entry_text_ = text();
  SelectForTyping();
}

void ValueEdit::TakeBack() {
  if (text() != entry_text_) setText(entry_text_);
  selectAll();
}

void ValueEdit::SelectForTyping() {
  if (left_selection_) left_selection_ = {0, static_cast<int>(text().size())};
  if (hasFocus()) selectAll();
}

void ValueEdit::NoteText() {
  text_before_ = text();
  NoteStart();
}

void ValueEdit::NoteStart() {
  // An input method moves the cursor before the change that it makes is reported.
  if (text() != text_before_) return;
  start_ = hasSelectedText() ? selectionStart() : cursorPosition();
}

void ValueEdit::FilterLineBreaks() {
  const QString edited = text();
  const qsizetype cursor = cursorPosition();
  // The inserted text ends at the cursor. It replaced whatever was between the shared parts.
  const QStringView now = edited;
  const QStringView before = text_before_;
  const qsizetype start = SharedLength(now, before.first(start_));
  const qsizetype rest =
      SharedLengthAtEnd(now.sliced(std::max(start, cursor)), before.sliced(start));
  const QString inserted = edited.sliced(start, edited.size() - rest - start);
  const QString filtered = WithoutLineBreaks(inserted);
  if (filtered == inserted) return;

  const QString up_to_cursor = inserted.first(std::max<qsizetype>(cursor - start, 0));
  setText(edited.first(start) + filtered + edited.last(rest));
  setCursorPosition(static_cast<int>(start + WithoutLineBreaks(up_to_cursor).size()));
}

void ValueEdit::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  // A window gives the focus to its first box when no box has it, which is not a return.
  if (IsShortAbsence(event->reason()) && left_selection_) {
    if (left_selection_->length > 0) setSelection(left_selection_->start, left_selection_->length);
    return;
  }
  is_swallowing_press_ = event->reason() == Qt::MouseFocusReason;
  BeginVisit();
  emit Entered();
  emit Visited();
}

void ValueEdit::focusOutEvent(QFocusEvent* event) {
  is_swallowing_press_ = false;
  left_selection_.reset();
  // The line editor itself drops the selection when the menu bar takes the focus.
  const bool is_short = IsShortAbsence(event->reason());
  if (is_short) left_selection_ = {selectionStart(), selectionLength()};
  QLineEdit::focusOutEvent(event);
  if (is_short) return;
  // A text longer than the box shows how it begins.
  home(false);
  emit Left();
}

void ValueEdit::hideEvent(QHideEvent* event) {
  // A minimized window is restored as it was; a hidden box is not.
  if (!event->spontaneous()) left_selection_.reset();
  QLineEdit::hideEvent(event);
}

void ValueEdit::mousePressEvent(QMouseEvent* event) {
  if (is_swallowing_press_) return;
  QLineEdit::mousePressEvent(event);
  if (event->button() == Qt::LeftButton) emit Visited();
}

void ValueEdit::mouseDoubleClickEvent(QMouseEvent* /*event*/) {
  // The line editor would select only the digits before the point.
  selectAll();
}

void ValueEdit::mouseMoveEvent(QMouseEvent* event) {
  if (!is_swallowing_press_) QLineEdit::mouseMoveEvent(event);
}

void ValueEdit::mouseReleaseEvent(QMouseEvent* event) {
  if (!std::exchange(is_swallowing_press_, false)) QLineEdit::mouseReleaseEvent(event);
}

}  // namespace morlek
