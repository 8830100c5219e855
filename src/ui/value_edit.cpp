#include "ui/value_edit.h"

#include <QFocusEvent>
#include <QMouseEvent>
#include <utility>

namespace morlek {
namespace {

/// Whether the focus goes to a menu or another window, or comes back from there, which is no new
/// visit.
bool IsShortAbsence(Qt::FocusReason reason) {
  return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
         reason == Qt::MenuBarFocusReason;
}

}  // namespace

ValueEdit::ValueEdit(QWidget* parent) : QLineEdit(parent) {}

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

void ValueEdit::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  // A window gives its focus to the first box when no box has it: that is no return.
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
  // A window that is minimized comes back as it was left; what is hidden does not.
  if (!event->spontaneous()) left_selection_.reset();
  QLineEdit::hideEvent(event);
}

void ValueEdit::mousePressEvent(QMouseEvent* event) {
  if (is_swallowing_press_) return;
  QLineEdit::mousePressEvent(event);
  if (event->button() == Qt::LeftButton) emit Visited();
}

void ValueEdit::mouseDoubleClickEvent(QMouseEvent* /*event*/) {
  // Of one value the line editor would select the part up to the point.
  selectAll();
}

void ValueEdit::mouseMoveEvent(QMouseEvent* event) {
  if (!is_swallowing_press_) QLineEdit::mouseMoveEvent(event);
}

void ValueEdit::mouseReleaseEvent(QMouseEvent* event) {
  if (!std::exchange(is_swallowing_press_, false)) QLineEdit::mouseReleaseEvent(event);
}

}  // namespace morlek
