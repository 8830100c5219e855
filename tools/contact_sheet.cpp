// Writes sheets of all pictures that the program paints, to look them over.

#include <QColor>
#include <QDir>
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QString>
#include <functional>
#include <iostream>
#include <span>

#include "art/stance_figure.h"
#include "art/title_art.h"

namespace {

using morlek::StancePiece;
using PagePainter = std::function<void(QPainter& painter)>;

constexpr int kTileSize = 50;
constexpr int kTilePitch = 52;

void PaintTile(QPainter& painter, StancePiece piece, int index, int code) {
  const QRectF square(8 + kTilePitch * (index / morlek::kPictureRows),
                      28 + kTilePitch * (index % morlek::kPictureRows), kTileSize, kTileSize);
  painter.setPen(QColor(0xcb, 0xd2, 0xdc));
  painter.setBrush(Qt::white);
  painter.drawRoundedRect(square.adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
  morlek::PaintPiece(painter, square.adjusted(2, 2, -2, -2), piece, code);
  QFont font("Roboto");
  font.setPixelSize(9);
  painter.setFont(font);
  painter.setPen(QColor(0x47, 0x55, 0x69));
  painter.drawText(square.adjusted(0, 0, -4, -2), Qt::AlignRight | Qt::AlignBottom,
                   QString::number(code, 16).toUpper());
}

PagePainter ChooserPage(StancePiece piece) {
  return [piece](QPainter& painter) {
    const morlek::PictureCodes& codes = morlek::PictureCodesOf(piece);
    for (int place = 0; place < codes.count(); ++place) {
      PaintTile(painter, piece, morlek::PictureCodes::IndexAt(place), codes.CodeAt(place));
    }
  };
}

/// Complete batters, every body and every face code in turn, over all legs.
void PaintStances(QPainter& painter) {
  for (int i = 0; i < 24; ++i) {
    using morlek::kFaceAndBodyCodes;
    using morlek::kLegsCodes;
    const int face = (i * 11 + 3) % kFaceAndBodyCodes.count();
    const int line = i / 8;
    const int body = (i * 2 + line) % kFaceAndBodyCodes.count();
    const QRectF place(4 + 132 * (i % 8), 4 + 164 * line, 128, 160);
    morlek::PaintStance(painter, place,
                        {.face = kFaceAndBodyCodes.CodeAt(face),
                         .body = kFaceAndBodyCodes.CodeAt(body),
                         .legs = kLegsCodes.CodeAt(i % kLegsCodes.count())});
  }
}

class SheetWriter {
 public:
  explicit SheetWriter(const QDir& directory) : directory_(directory) {}

  /// Writes one picture at a number of pixels for each logical one.
  void Write(const QString& name, QSize size, int scale, const QColor& ground,
             const PagePainter& paint) {
    QImage image(size * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(ground);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paint(painter);
    painter.end();
    const QString path = directory_.filePath(name + (scale > 1 ? "@2x.png" : ".png"));
    const bool is_written = image.save(path);
    has_failed_ = has_failed_ || !is_written;
    (is_written ? std::cout : std::cerr)
        << (is_written ? "Wrote " : "contact_sheet: cannot write ") << path.toStdString() << '\n';
  }

  [[nodiscard]] bool has_failed() const { return has_failed_; }

 private:
  QDir directory_;
  bool has_failed_ = false;
};

bool WriteSheets(const QString& directory) {
  const QColor window(0xf1, 0xf3, 0xf6);
  SheetWriter writer{QDir(directory)};
  for (const int scale : {1, 2}) {
    writer.Write("faces", {222, 660}, scale, window, ChooserPage(StancePiece::kFace));
    writer.Write("bodies", {222, 660}, scale, window, ChooserPage(StancePiece::kBody));
    writer.Write("legs", {222, 192}, scale, window, ChooserPage(StancePiece::kLegs));
    writer.Write("stances", {1060, 496}, scale, window, PaintStances);
    writer.Write("splash", {480, 300}, scale, Qt::transparent, [](QPainter& painter) {
      morlek::PaintSplash(painter, {0, 0, 480, 300});
    });
  }
  for (const int size : {16, 32, 48, 64, 128, 256}) {
    writer.Write(
        QString("icon-%1").arg(size), {size, size}, 1, Qt::transparent,
        [size](QPainter& painter) { morlek::PaintAppIcon(painter, QRectF(0, 0, size, size)); });
  }
  return !writer.has_failed();
}

}  // namespace

int main(int argument_count, char** argument_values) {
  const std::span arguments(argument_values, static_cast<std::size_t>(argument_count));
  if (arguments.size() != 2) {
    std::cerr << "usage: contact_sheet OUTPUT_DIR\n";
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argument_count, argument_values);
  return WriteSheets(QString::fromLocal8Bit(arguments[1])) ? 0 : 1;
}
