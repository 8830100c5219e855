#include "shell/roster_box.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <memory>

#include "shell/code_page_text.h"
#include "shell/menu_table.h"
#include "shell/snapped_lines.h"
#include "shell/theme.h"

namespace morlek {
namespace {

QString ObjectNameOf(Column column, int row) {
  return QString("Text%1(%2)").arg(static_cast<int>(column)).arg(row);
}

/// Whether the focus goes to a menu or another window, or comes back from there, which is no new
/// visit.
bool IsShortAbsence(Qt::FocusReason reason) {
  return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
         reason == Qt::MenuBarFocusReason;
}

QString AccessibleNameOf(const GridColumn& column, int row) {
  const int number = IsPitcher(row) ? row - kBatterCount + 1 : row + 1;
  return QString("%1, %2 %3")
      .arg(FromCodePage(column.meaning), IsPitcher(row) ? "pitcher" : "batter")
      .arg(number);
}

}  // namespace

RosterBox::RosterBox(const GridColumn& column, int row, QWidget* parent)
    : QLineEdit(parent), column_(column.column), row_(row) {
  setObjectName(ObjectNameOf(column.column, row));
  setAccessibleName(AccessibleNameOf(column, row));
  // Three digits then fit into the narrow columns.
  setTextMargins(-2, 0, -2, 0);
  if (column.column == Column::kText1) {
    setTextMargins(2, 0, -2, 0);
  } else {
    setAlignment(Qt::AlignCenter);
  }
  connect(this, &QLineEdit::textChanged, this, &RosterBox::KeepToCodePage);
  connect(this, &QLineEdit::textEdited, this, &RosterBox::DropLineBreaks);
}

void RosterBox::ShowText(const QString& text) {
  setText(text);
  SelectForTyping();
}

void RosterBox::SelectForTyping() {
  if (left_selection_) left_selection_ = {0, static_cast<int>(text().size())};
  if (hasFocus()) selectAll();
}

void RosterBox::PaintPanel(QPainter& painter) const {
  const bool is_odd = (IsPitcher(row_) ? row_ - kBatterCount : row_) % 2 != 0;
  painter.fillRect(rect(), is_odd && !hasFocus() ? theme::kOddRow : theme::kBase);
  if (hasFocus()) {
    FrameSnapped(painter, rect(), 2, theme::kAccent);
  } else {
    FrameSnapped(painter, rect(), 1, theme::kLine);
  }
}

bool RosterBox::event(QEvent* event) { return !LeaveToMenu(*event) && QLineEdit::event(event); }

void RosterBox::contextMenuEvent(QContextMenuEvent* event) {
  const std::unique_ptr<QMenu> menu(createStandardContextMenu());
  for (QAction* action : menu->actions()) {
    // A key that belongs to the menu bar must not be promised here.
    const QString key = action->text().section('\t', 1);
    if (!key.isEmpty() && IsMenuKey(QKeySequence(key)[0])) {
      action->setText(action->text().section('\t', 0, 0));
    }
  }
  menu->exec(event->globalPos());
}

void RosterBox::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  raise();
  // A window gives its focus to the first box when no box has it: that is no return.
  if (IsShortAbsence(event->reason()) && left_selection_) {
    if (left_selection_->length > 0) setSelection(left_selection_->start, left_selection_->length);
    return;
  }
  swallowing_press_ = event->reason() == Qt::MouseFocusReason;
  selectAll();
  emit Visited();
}

void RosterBox::focusOutEvent(QFocusEvent* event) {
  swallowing_press_ = false;
  left_selection_.reset();
  // The line editor itself drops the selection when the menu bar takes the focus.
  if (IsShortAbsence(event->reason())) left_selection_ = {selectionStart(), selectionLength()};
  QLineEdit::focusOutEvent(event);
}

void RosterBox::hideEvent(QHideEvent* event) {
  // A window that is minimized comes back as it was left; a grid that is hidden does not.
  if (!event->spontaneous()) left_selection_.reset();
  QLineEdit::hideEvent(event);
}

void RosterBox::keyPressEvent(QKeyEvent* event) {
  if (event->modifiers().testFlag(Qt::AltModifier) &&
      !event->modifiers().testFlag(Qt::ControlModifier)) {
    // Meant for a menu, and no text, as the line editor would take it. (With Ctrl it is AltGr.)
    event->ignore();
    return;
  }
  const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  if (plain && event->key() == Qt::Key_Up) {
    emit RowStepRequested(-1);
  } else if (plain && event->key() == Qt::Key_Down) {
    emit RowStepRequested(+1);
  } else {
    QLineEdit::keyPressEvent(event);
  }
}

void RosterBox::mousePressEvent(QMouseEvent* event) {
  if (swallowing_press_) return;
  QLineEdit::mousePressEvent(event);
  if (event->button() == Qt::LeftButton) emit Visited();
}

void RosterBox::mouseDoubleClickEvent(QMouseEvent* /*event*/) {
  // A box holds one value, of which the line editor would select the part up to the point.
  selectAll();
}

void RosterBox::mouseMoveEvent(QMouseEvent* event) {
  if (!swallowing_press_) QLineEdit::mouseMoveEvent(event);
}

void RosterBox::mouseReleaseEvent(QMouseEvent* event) {
  if (!swallowing_press_) QLineEdit::mouseReleaseEvent(event);
  swallowing_press_ = false;
}

void RosterBox::KeepToCodePage() {
  Convert([](const QString& part) { return FromCodePage(ToCodePage(part)); });
}

void RosterBox::DropLineBreaks() {
  Convert([](QString part) { return part.remove('\r').remove('\n'); });
}

template <typename Conversion>
void RosterBox::Convert(Conversion convert) {
  const QString converted = convert(text());
  if (converted == text()) return;
  const auto cursor = static_cast<int>(convert(text().left(cursorPosition())).size());
  setText(converted);
  setCursorPosition(cursor);
}

}  // namespace morlek
