#include "shell/stance_mark.h"

#include <QPainter>

#include "editor/editor_state.h"
#include "shell/form_layout.h"
#include "ui/theme.h"

namespace morlek {
namespace {

constexpr QSize kMarkSize(9, 13);
constexpr int kMarkGap = 3;  // to the last box of the row

}  // namespace

StanceMark::StanceMark(const QWidget& grid, QWidget* parent)
    : QWidget(parent), grid_place_(grid.pos()) {
  setObjectName("StanceMark");
  setAccessibleName("mark of the player in view");
  resize(kMarkSize);
}

void StanceMark::Show(const EditorState& state) {
  const QRect box = BoxRectOf({BlockOf(state.stance_row).columns.back().column, state.stance_row});
  move(grid_place_ + QPoint(box.right() + 1 + kMarkGap, box.center().y() - kMarkSize.height() / 2));
  setVisible(state.scene.is_grid_shown && state.layout == Layout::kWide);
}

void StanceMark::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(theme::ShadesOf(palette()).stance_mark);
  painter.drawPolygon(
      QPolygonF({QPointF(0, height() / 2.0), QPointF(width(), 0), QPointF(width(), height())}));
}

}  // namespace morlek
