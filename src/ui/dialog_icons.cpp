#include "ui/dialog_icons.h"

#include <QPainter>
#include <QPolygonF>
#include <algorithm>
#include <array>

#include "ui/painted_icon.h"
#include "ui/theme.h"

namespace morlek {
namespace {

/// Lines on a field of 16 by 16, parted by semicolons; one that ends where it began is filled.
struct Glyph {
  QStyle::StandardPixmap icon;
  const char* lines;
};

constexpr char kFolder[] = "2,13 2,3.5 6.5,3.5 8,5.5 14,5.5 14,13 2,13";
constexpr char kDrive[] = "2,9 4,4 12,4 14,9 14,12.5 2,12.5 2,9; 2.5,9 13.5,9; 11,10.8 11.4,10.8";
constexpr char kComputer[] = "2,3 14,3 14,11 2,11 2,3; 8,11 8,13.5; 5,13.5 11,13.5";

constexpr std::array<Glyph, 18> kGlyphs = {{
    {QStyle::SP_ArrowBack, "13,8 3.5,8; 7.5,4 3.5,8 7.5,12"},
    {QStyle::SP_ArrowLeft, "13,8 3.5,8; 7.5,4 3.5,8 7.5,12"},
    {QStyle::SP_ArrowForward, "3,8 12.5,8; 8.5,4 12.5,8 8.5,12"},
    {QStyle::SP_ArrowRight, "3,8 12.5,8; 8.5,4 12.5,8 8.5,12"},
    {QStyle::SP_FileDialogToParent, "8,13 8,3.5; 4,7.5 8,3.5 12,7.5"},
    {QStyle::SP_FileDialogListView,
     "2.5,4 6.5,4; 2.5,8 6.5,8; 2.5,12 6.5,12; "
     "9.5,4 13.5,4; 9.5,8 13.5,8; 9.5,12 13.5,12"},
    {QStyle::SP_FileDialogDetailedView, "2.5,4 13.5,4; 2.5,8 13.5,8; 2.5,12 13.5,12"},
    {QStyle::SP_FileDialogNewFolder,
     "8,13 2,13 2,3.5 6.5,3.5 8,5.5 14,5.5 14,8; 12.5,9.5 12.5,14.5; 10,12 15,12"},
    {QStyle::SP_DirIcon, kFolder},
    {QStyle::SP_DirLinkIcon, kFolder},
    {QStyle::SP_DirHomeIcon, "3,13.5 3,8 8,3 13,8 13,13.5 3,13.5; 8,13.5 8,10"},
    {QStyle::SP_FileIcon, "3.5,2 9.5,2 12.5,5 12.5,14 3.5,14 3.5,2; 9.5,2 9.5,5 12.5,5"},
    {QStyle::SP_FileLinkIcon, "3.5,2 9.5,2 12.5,5 12.5,14 3.5,14 3.5,2; 9.5,2 9.5,5 12.5,5"},
    {QStyle::SP_ComputerIcon, kComputer},
    {QStyle::SP_DesktopIcon, kComputer},
    {QStyle::SP_DriveHDIcon, kDrive},
    {QStyle::SP_DriveNetIcon, kDrive},
    {QStyle::SP_DriveCDIcon, kDrive},
}};

QIcon GlyphIcon(const char* lines, const theme::Shades& shades) {
  constexpr qreal kField = 16;
  constexpr qreal kLineWidth = 1.3;
  QList<QPolygonF> shapes;
  for (const QString& line : QString(lines).split(';')) {
    QPolygonF shape;
    for (const QString& point : line.split(' ', Qt::SkipEmptyParts)) {
      shape << QPointF(point.section(',', 0, 0).toDouble(), point.section(',', 1).toDouble());
    }
    shapes << shape;
  }
  return MakePaintedIcon([shapes, pen = shades.header_text, fill = shades.header_band](
                             QPainter& painter, const QRectF& target) {
    painter.translate(target.topLeft());
    painter.scale(target.width() / kField, target.height() / kField);
    painter.setPen(QPen(pen, kLineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(fill);
    for (const QPolygonF& shape : shapes) {
      if (shape.isClosed()) {
        painter.drawPolygon(shape);
      } else {
        painter.drawPolyline(shape);
      }
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
  const auto* glyph = std::ranges::find(kGlyphs, icon, &Glyph::icon);
  return glyph == kGlyphs.end() ? QIcon() : GlyphIcon(glyph->lines, shades);
}

}  // namespace morlek
