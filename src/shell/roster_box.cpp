#include "shell/roster_box.h"

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <utility>

#include "shell/code_page_text.h"
#include "shell/form_layout.h"
#include "shell/mark_text.h"
#include "shell/menu_table.h"
#include "textfile/pasted_block.h"
#include "ui/dropped_file.h"
#include "ui/snapped_lines.h"
#include "ui/theme.h"

namespace morlek {
namespace {

/// Whether the focus goes to a menu or another window, or comes back from there, which is no new
/// visit.
bool IsShortAbsence(Qt::FocusReason reason) {
  return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
         reason == Qt::MenuBarFocusReason;
}

QString AccessibleNameOf(Cell cell) {
  const Block& block = BlockOf(cell.row);
  const BlockColumn& column = block.columns.at(block.PlaceOf(cell.column).value());
  return QString("%1, %2").arg(FromCodePage(column.meaning), FromCodePage(PlayerText(cell.row)));
}

}  // namespace

RosterBox::RosterBox(Cell cell, QWidget* parent) : QLineEdit(parent), cell_(cell) {
  setObjectName(BoxNameOf(cell));
  setAccessibleName(AccessibleNameOf(cell));
  setGeometry(BoxRectOf(cell));
  if (cell.column == Column::kName) {
    setTextMargins(2, 0, -2, 0);
  } else {
    // Three digits then fit into the narrow columns; and the line editor keeps room for the caret
    // on the right, which put them out of the middle.
    setTextMargins(-2, 0, -4, 0);
    setAlignment(Qt::AlignCenter);
  }
  connect(this, &QLineEdit::textChanged, this, &RosterBox::KeepToCodePage);
  connect(this, &QLineEdit::textEdited, this, &RosterBox::DropLineBreaks);
}

void RosterBox::ShowText(const QString& text) {
  setText(text);
  SelectForTyping();
  if (!hasFocus()) home(false);
}

void RosterBox::BeginVisit() {
  entry_text_ = text();
  SelectForTyping();
}

void RosterBox::ShowMark(const CellMark& mark, const QString& tip) {
  if (mark == mark_ && tip == toolTip()) return;
  const bool recolored = mark.is_modified != mark_.is_modified;
  mark_ = mark;
  if (recolored) ColorText();
  setToolTip(PlainTip(tip));
  setAccessibleDescription(tip);
  update();
}

void RosterBox::ColorText() {
  QPalette colors;
  if (mark_.is_modified) colors.setColor(QPalette::Text, theme::ShadesOf(palette()).accent);
  setPalette(colors);
}

void RosterBox::SetTint(Tint tint) {
  if (tint == tint_) return;
  tint_ = tint;
  update();
}

void RosterBox::SelectForTyping() {
  if (left_selection_) left_selection_ = {0, static_cast<int>(text().size())};
  if (hasFocus()) selectAll();
}

void RosterBox::PaintPanel(QPainter& painter) const { PaintFrame(painter, Ground()); }

void RosterBox::PaintFrame(QPainter& painter, const QColor& ground) const {
  const theme::Shades& shades = theme::ShadesOf(palette());
  if (hasFocus()) {
    FrameSnapped(painter, rect(), 2, shades.accent, ground);
  } else {
    FrameSnapped(painter, rect(), 1, shades.line, ground);
  }
}

QColor RosterBox::Ground() const {
  const theme::Shades& shades = theme::ShadesOf(palette());
  // The line editor's own ground of a selection is as high as the font, and so not in the middle.
  if (hasSelectedText() && selectionLength() == text().size()) return shades.fill;
  if (hasFocus()) return shades.base;
  if (tint_ == Tint::kStanceRow) return shades.stance_row;
  if (tint_ == Tint::kFocusRow) return shades.focus_row;
  const bool is_odd = (cell_.row - BlockOf(cell_.row).first_row) % 2 != 0;
  return is_odd ? shades.odd_row : shades.base;
}

void RosterBox::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  // The margins let a text that is too long get over the lines.
  if (fontMetrics().horizontalAdvance(text()) > width() - 2) {
    QPainter painter(this);
    PaintFrame(painter, Qt::transparent);
  }
  if (!mark_.is_lossy) return;
  // Over text and selection alike, with an edge that parts it from both.
  constexpr qreal kSize = 7;
  const theme::Shades& shades = theme::ShadesOf(palette());
  const QPointF corner(width() - 1, 1);
  const QPointF left = corner - QPointF(kSize, 0);
  const QPointF below = corner + QPointF(0, kSize);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(shades.unkept_mark);
  painter.drawPolygon(QPolygonF({left, corner, below}));
  painter.setPen(QPen(shades.base, 1));
  painter.drawLine(QLineF(left - QPointF(0.5, -0.5), below - QPointF(0.5, -0.5)));
}

bool RosterBox::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    auto* key = static_cast<QKeyEvent*>(event);
    if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
      // Both are the whole grid's, not the line editor's own.
      event->ignore();
      return false;
    }
  }
  return !LeaveToMenu(*event) && QLineEdit::event(event);
}

void RosterBox::changeEvent(QEvent* event) {
  QLineEdit::changeEvent(event);
  // The desktop went from light to dark, or back.
  if (event->type() == QEvent::PaletteChange && mark_.is_modified) ColorText();
}

void RosterBox::dragEnterEvent(QDragEnterEvent* event) {
  // A file is for the window, also where it comes with its path as a text.
  if (DroppedFile(*event->mimeData())) {
    event->ignore();
    return;
  }
  QLineEdit::dragEnterEvent(event);
}

void RosterBox::contextMenuEvent(QContextMenuEvent* event) {
  QMenu menu;
  // Undo and redo are the grid's.
  menu.addActions(parentWidget()->actions());
  menu.addSeparator();
  const auto add = [&menu](const QString& caption, QKeySequence::StandardKey key, bool enabled) {
    QAction* action = menu.addAction(caption);
    action->setShortcut(key);
    action->setEnabled(enabled);
    return action;
  };
  const auto on = [this](QAction* action, auto slot) {
    connect(action, &QAction::triggered, this, slot);
  };
  on(add("Cu&t", QKeySequence::Cut, hasSelectedText()), &QLineEdit::cut);
  on(add("&Copy", QKeySequence::Copy, hasSelectedText()), &QLineEdit::copy);
  on(add("&Paste", QKeySequence::Paste, !QGuiApplication::clipboard()->text().isEmpty()),
     [this] { PasteFrom(QClipboard::Clipboard); });
  on(add("Delete", QKeySequence::UnknownKey, hasSelectedText()), [this] { del(); });
  menu.addSeparator();
  // Its usual key belongs to the menu bar.
  on(add("Select All", QKeySequence::UnknownKey, !text().isEmpty()), &QLineEdit::selectAll);
  menu.exec(event->globalPos());
}

void RosterBox::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  if (!neighbor_above_) {
    // The ring is not to be cut by a neighbour's line; whoever reads the grid in its order is to
    // find the box in its place afterwards.
    const QObjectList& siblings = parentWidget()->children();
    neighbor_above_ = qobject_cast<QWidget*>(siblings.value(siblings.indexOf(this) + 1));
    raise();
  }
  // A window gives its focus to the first box when no box has it: that is no return.
  if (IsShortAbsence(event->reason()) && left_selection_) {
    if (left_selection_->length > 0) setSelection(left_selection_->start, left_selection_->length);
    return;
  }
  swallowing_press_ = event->reason() == Qt::MouseFocusReason;
  BeginVisit();
  emit Entered();
  emit Visited();
}

void RosterBox::focusOutEvent(QFocusEvent* event) {
  if (neighbor_above_) stackUnder(neighbor_above_);
  neighbor_above_.clear();
  swallowing_press_ = false;
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
  const bool is_return = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (plain && event->key() == Qt::Key_Up) {
    emit RowStepRequested(-1);
  } else if (plain && (event->key() == Qt::Key_Down || is_return)) {
    emit RowStepRequested(+1);
  } else if (plain && event->key() == Qt::Key_Escape) {
    if (text() != entry_text_) setText(entry_text_);
    selectAll();
  } else if (event->key() == Qt::Key_Insert &&
             event->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier) &&
             QGuiApplication::clipboard()->supportsSelection()) {
    PasteFrom(QClipboard::Selection);
  } else if (event->matches(QKeySequence::Paste)) {
    PasteFrom(QClipboard::Clipboard);
  } else if (!event->matches(QKeySequence::Undo) && !event->matches(QKeySequence::Redo)) {
    // The line editor has a history of its own, which knows nothing of loads and saves.
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
  const bool is_swallowed = std::exchange(swallowing_press_, false);
  if (is_swallowed) return;
  if (event->button() == Qt::MiddleButton && QGuiApplication::clipboard()->supportsSelection()) {
    deselect();
    PasteFrom(QClipboard::Selection);
    return;
  }
  QLineEdit::mouseReleaseEvent(event);
}

void RosterBox::PasteFrom(QClipboard::Mode mode) {
  const std::string pasted = ToCodePage(QGuiApplication::clipboard()->text(mode));
  if (IsBlock(pasted)) {
    emit BlockPasted(pasted);
  } else {
    insert(FromCodePage(WithoutLastLineBreak(pasted).substr(0, kLongestText)));
  }
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
