#include "shell/roster_box.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <numbers>

#include "shell/box_clipboard.h"
#include "shell/box_menu.h"
#include "shell/code_page_text.h"
#include "shell/form_layout.h"
#include "shell/mark_text.h"
#include "shell/menu_bar.h"
#include "team/roster_grid.h"
#include "ui/dropped_file.h"
#include "ui/snapped_lines.h"
#include "ui/theme.h"

namespace morlek {
namespace {

QString AccessibleNameOf(Cell cell) {
  const Block& block = BlockOf(cell.row);
  const BlockColumn& column = block.columns.at(block.PlaceOf(cell.column).value());
  return QString("%1, %2").arg(FromCodePage(column.meaning), FromCodePage(PlayerText(cell.row)));
}

}  // namespace

RosterBox::RosterBox(Cell cell, const QValidator& validator, QWidget* parent)
    : ValueEdit(parent), cell_(cell) {
  setObjectName(BoxNameOf(cell));
  setAccessibleName(AccessibleNameOf(cell));
  setGeometry(BoxRectOf(cell));
  if (cell.column == Column::kName) {
    setTextMargins(2, 0, -2, 0);
  } else {
    // Three digits then fit into the narrow columns. The right margin makes up for the room that
    // the line editor keeps for the caret, which would move them off center.
    setTextMargins(-2, 0, -4, 0);
    setAlignment(Qt::AlignCenter);
  }
  setMaxLength(kLongestText);
  setValidator(&validator);
}

void RosterBox::ShowMark(const CellMark& mark, const QString& tip) {
  const bool recolored = mark.is_modified != mark_.is_modified;
  const bool looks_same = !recolored && mark.is_lossy == mark_.is_lossy;
  mark_ = mark;
  if (looks_same && tip == accessibleDescription()) return;
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

void RosterBox::PaintPanel(QPainter& painter) const { PaintFrame(painter, Background()); }

void RosterBox::PaintFrame(QPainter& painter, const QColor& background) const {
  FrameSnapped(painter, rect(), 1, theme::ShadesOf(palette()).line, background);
}

QColor RosterBox::Background() const {
  const theme::Shades& shades = theme::ShadesOf(palette());
  // The line editor's own background of a selection is as high as the font, and so not centered.
  if (hasSelectedText() && selectionLength() == text().size()) return shades.fill;
  if (hasFocus()) return shades.base;
  if (tint_ == Tint::kStanceRow) return shades.stance_row;
  if (tint_ == Tint::kFocusRow) return shades.focus_row;
  const bool is_odd = cell_.row % 2 != BlockOf(cell_.row).first_row % 2;
  return is_odd ? shades.odd_row : shades.base;
}

void RosterBox::paintEvent(QPaintEvent* event) {
  ValueEdit::paintEvent(event);
  // The margins let a text that is too long run over the lines.
  if (fontMetrics().horizontalAdvance(text()) > width() - 2) {
    QPainter painter(this);
    PaintFrame(painter, Qt::transparent);
  }
  // The focus ring covers the box and paints the marks itself.
  if (hasFocus() || !mark_.is_marked()) return;
  QPainter painter(this);
  PaintMarks(painter);
}

void RosterBox::PaintMarks(QPainter& painter) const {
  if (mark_.is_modified) PaintBar(painter);
  if (mark_.is_lossy) PaintCorner(painter);
}

void RosterBox::PaintBar(QPainter& painter) const {
  const theme::Shades& shades = theme::ShadesOf(palette());
  const bool is_selected = Background() == shades.fill;
  const QColor color = is_selected ? shades.on_fill : shades.accent;
  // Over the line that the box shares with its neighbour; with the focus
  // inside its ring or, on a selection, on it, so that three digits stay clear of the bar.
  const QRect bar = !hasFocus()   ? QRect(0, 0, 3, height())
                    : is_selected ? QRect(1, 1, 2, height() - 2)
                                  : QRect(2, 2, 2, height() - 4);
  FrameSnapped(painter, bar, 1, color, color);
}

void RosterBox::PaintCorner(QPainter& painter) const {
  const theme::Shades& shades = theme::ShadesOf(palette());
  const QPointF corner(width() - 1, 1);
  const auto paint = [&painter](const QPointF& top, qreal size, const QColor& color) {
    painter.setBrush(color);
    painter.drawPolygon(QPolygonF({top - QPointF(size, 0), top, top + QPointF(0, size)}));
  };
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  // Above text and selection, with an edge that sets it off from both.
  constexpr qreal kSize = 7;
  constexpr qreal kEdge = 1.5;
  paint(corner, kSize + kEdge, shades.base);
  paint(corner, kSize, shades.lossy_mark);
  if (!mark_.cause) return;
  constexpr qreal kStroke = 1;
  constexpr qreal kInside = kSize - (2 + std::numbers::sqrt2) * kStroke;
  paint(corner + QPointF(-kStroke, kStroke), kInside, shades.base);
}

bool RosterBox::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    auto* key = static_cast<QKeyEvent*>(event);
    // Both are the whole grid's, not the line editor's own.
    if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) return false;
  }
  return !LeaveToMenu(*event) && ValueEdit::event(event);
}

void RosterBox::changeEvent(QEvent* event) {
  ValueEdit::changeEvent(event);
  // The desktop has turned dark or light.
  if (event->type() == QEvent::PaletteChange) ColorText();
}

void RosterBox::dragEnterEvent(QDragEnterEvent* event) {
  // Files are for the window to take or refuse, even if their paths come along as a text.
  if (!HoldsFiles(*event->mimeData())) ValueEdit::dragEnterEvent(event);
}

void RosterBox::contextMenuEvent(QContextMenuEvent* event) {
  emit MenuOpens();
  BoxMenu(*this, [this] { PasteFrom(QClipboard::Clipboard); }).exec(event->globalPos());
  emit MenuCloses();
}

void RosterBox::OpenMenuAtCursor() {
  const QPoint place = cursorRect().center();
  QContextMenuEvent event(QContextMenuEvent::Keyboard, place, mapToGlobal(place));
  contextMenuEvent(&event);
}

void RosterBox::keyPressEvent(QKeyEvent* event) {
  if (event->modifiers().testFlag(Qt::AltModifier) &&
      !event->modifiers().testFlag(Qt::ControlModifier)) {
    // Meant for a menu, and no text, as the line editor would take it. (With Ctrl it is AltGr.)
    return event->ignore();
  }
  const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  const bool is_return = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (plain && event->key() == Qt::Key_Up) {
    emit RowStepRequested(-1);
  } else if (plain && (event->key() == Qt::Key_Down || is_return)) {
    emit RowStepRequested(+1);
  } else if (plain && IsFeature(cell_.column) && event->key() == Qt::Key_PageUp) {
    emit LeafRequested(-1);
  } else if (plain && IsFeature(cell_.column) && event->key() == Qt::Key_PageDown) {
    emit LeafRequested(+1);
  } else if (plain && event->key() == Qt::Key_Escape) {
    TakeBack();
  } else if (event->modifiers() == Qt::ShiftModifier && event->key() == Qt::Key_F10) {
    OpenMenuAtCursor();
  } else if (const auto clipboard = PastingClipboard(*event)) {
    PasteFrom(*clipboard);
  } else if (!event->matches(QKeySequence::Undo) && !event->matches(QKeySequence::Redo)) {
    // The line editor has a history of its own, which knows nothing of loads and saves.
    ValueEdit::keyPressEvent(event);
  }
}

void RosterBox::mouseReleaseEvent(QMouseEvent* event) {
  const auto clipboard = PastingClipboard(*event);
  if (!clipboard || is_swallowing_press()) return ValueEdit::mouseReleaseEvent(event);
  deselect();
  PasteFrom(*clipboard);
}

void RosterBox::PasteFrom(QClipboard::Mode clipboard) {
  const ClipboardText pasted = ReadClipboard(clipboard);
  if (pasted.is_block) {
    emit BlockPasted(pasted.text);
  } else {
    insert(FromCodePage(pasted.text));
  }
}

}  // namespace morlek
