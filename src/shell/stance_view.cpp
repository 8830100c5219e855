#include "shell/stance_view.h"

#include <QPainter>

#include "shell/theme.h"

namespace morlek {

StanceView::StanceView(QWidget* parent) : QWidget(parent) {
  setObjectName("StanceView");
  setAccessibleName("batting stance");
  setFocusPolicy(Qt::NoFocus);
}

void StanceView::ShowPlayer(const QString& name, const StanceCodes& codes) {
  name_ = name;
  codes_ = codes;
  setAccessibleDescription(name);
  update();
}

void StanceView::paintEvent(QPaintEvent* /*event*/) {
  constexpr qreal kRadius = 4;
  constexpr int kNamePixels = 13;
  constexpr qreal kFigureWidth = 96;
  const theme::Shades& shades = theme::ShadesOf(palette());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(shades.line);
  painter.setBrush(shades.tile);
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);

  QRectF figure = QRectF(rect()).adjusted(4, 3, 0, -3);
  figure.setWidth(kFigureWidth);
  PaintStance(painter, figure, codes_);

  painter.setPen(shades.tile_text);
  painter.setFont(theme::Font(kNamePixels, QFont::Bold));
  QRectF text = QRectF(rect()).adjusted(0, 0, -8, 0);
  text.setLeft(figure.right() + 4);
  painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter,
                   painter.fontMetrics().elidedText(name_, Qt::ElideRight, qFloor(text.width())));
}

}  // namespace morlek
