#include "art/unknown_art.h"

#include <QPainter>
#include <QPen>
#include <algorithm>

#include "art/shapes.h"

namespace morlek::art {

void PaintUnknown(QPainter& painter, const QRectF& room) {
  constexpr QColor kGrey{0x5f, 0x6b, 0x7d};
  constexpr qreal kLineWidth = 2.4;
  constexpr qreal kCornerShare = 0.42;
  const qreal corner = std::min(room.width(), room.height()) * kCornerShare;
  QPen pen(kGrey, kLineWidth, Qt::CustomDashLine, Qt::RoundCap);
  pen.setDashPattern({2, 2.4});
  QPainterPath outline;
  outline.addRoundedRect(room, corner, corner);
  painter.strokePath(outline, pen);

  constexpr qreal kRadius = 7;
  const QPointF middle = room.center();
  const QRectF bow(middle + QPointF(-kRadius, -14), QSizeF(2 * kRadius, 2 * kRadius));
  QPainterPath mark;
  mark.arcMoveTo(bow, 170);
  mark.arcTo(bow, 170, -220);
  mark.quadTo(middle + QPointF(0, 1), middle + QPointF(0, 6));
  PaintLine(painter, mark, kGrey, 4.4);
  PaintLine(painter, Segment(middle + QPointF(0, 13), middle + QPointF(0, 13.1)), kGrey, 5);
}

}  // namespace morlek::art
