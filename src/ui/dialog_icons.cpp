#include "ui/dialog_icons.h"

#include <QPainter>
#include <QPolygonF>

#include "ui/painted_icon.h"
#include "ui/theme.h"

namespace morlek {
namespace {

/// The lines of an icon on a field of 16 by 16; those that end where they began are filled.
QList<QPolygonF> LinesOf(QStyle::StandardPixmap icon) {
  switch (icon) {
    case QStyle::SP_ArrowBack:
      return {{{13, 8}, {3.5, 8}}, {{7.5, 4}, {3.5, 8}, {7.5, 12}}};
    case QStyle::SP_ArrowForward:
      return {{{3, 8}, {12.5, 8}}, {{8.5, 4}, {12.5, 8}, {8.5, 12}}};
    case QStyle::SP_FileDialogToParent:
      return {{{8, 13}, {8, 3.5}}, {{4, 7.5}, {8, 3.5}, {12, 7.5}}};
    case QStyle::SP_FileDialogListView:
      return {{{2.5, 4}, {6.5, 4}},  {{2.5, 8}, {6.5, 8}},  {{2.5, 12}, {6.5, 12}},
              {{9.5, 4}, {13.5, 4}}, {{9.5, 8}, {13.5, 8}}, {{9.5, 12}, {13.5, 12}}};
    case QStyle::SP_FileDialogDetailedView:
      return {{{2.5, 4}, {13.5, 4}}, {{2.5, 8}, {13.5, 8}}, {{2.5, 12}, {13.5, 12}}};
    case QStyle::SP_FileDialogNewFolder:
      return {{{8, 13}, {2, 13}, {2, 3.5}, {6.5, 3.5}, {8, 5.5}, {14, 5.5}, {14, 8}},
              {{12.5, 9.5}, {12.5, 14.5}},
              {{10, 12}, {15, 12}}};
    case QStyle::SP_DirIcon:
    case QStyle::SP_DirLinkIcon:
      return {{{2, 13}, {2, 3.5}, {6.5, 3.5}, {8, 5.5}, {14, 5.5}, {14, 13}, {2, 13}}};
    case QStyle::SP_DirHomeIcon:
      return {{{3, 13.5}, {3, 8}, {8, 3}, {13, 8}, {13, 13.5}, {3, 13.5}}, {{8, 13.5}, {8, 10}}};
    case QStyle::SP_FileIcon:
    case QStyle::SP_FileLinkIcon:
      return {{{3.5, 2}, {9.5, 2}, {12.5, 5}, {12.5, 14}, {3.5, 14}, {3.5, 2}},
              {{9.5, 2}, {9.5, 5}, {12.5, 5}}};
    case QStyle::SP_ComputerIcon:
      return {{{2, 3}, {14, 3}, {14, 11}, {2, 11}, {2, 3}},
              {{8, 11}, {8, 13.5}},
              {{5, 13.5}, {11, 13.5}}};
    case QStyle::SP_DriveHDIcon:
      return {{{2, 9}, {4, 4}, {12, 4}, {14, 9}, {14, 12.5}, {2, 12.5}, {2, 9}},
              {{2.5, 9}, {13.5, 9}},
              {{11, 10.8}, {11.4, 10.8}}};
    default:
      return {};
  }
}

QIcon LineIcon(const QList<QPolygonF>& lines, const theme::Shades& shades) {
  constexpr qreal kField = 16;
  constexpr qreal kLineWidth = 1.3;
  return MakePaintedIcon([lines, pen = shades.header_text, fill = shades.header_band](
                             QPainter& painter, const QRectF& target) {
    painter.translate(target.topLeft());
    painter.scale(target.width() / kField, target.height() / kField);
    painter.setPen(QPen(pen, kLineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(fill);
    for (const QPolygonF& line : lines) {
      line.isClosed() ? painter.drawPolygon(line) : painter.drawPolyline(line);
    }
  });
}

/// A disc with one character in it.
QIcon MessageIcon(const QColor& disc, const QColor& ink, const QString& character) {
  return MakePaintedIcon([disc, ink, character](QPainter& painter, const QRectF& target) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(disc);
    painter.drawEllipse(target.adjusted(1, 1, -1, -1));
    painter.setPen(ink);
    painter.setFont(theme::Font(qRound(target.height() * 0.6), QFont::Bold));
    painter.drawText(target, Qt::AlignCenter, character);
  });
}

}  // namespace

QIcon DialogIcon(QStyle::StandardPixmap icon, const theme::Shades& shades) {
  if (icon == QStyle::SP_MessageBoxQuestion) return MessageIcon(shades.fill, shades.on_fill, "?");
  if (icon == QStyle::SP_MessageBoxCritical) {
    return MessageIcon(shades.critical, shades.on_fill, "!");
  }
  const QList<QPolygonF> lines = LinesOf(icon);
  return lines.isEmpty() ? QIcon() : LineIcon(lines, shades);
}

}  // namespace morlek
