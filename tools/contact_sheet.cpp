// Writes sheets of all pictures that the program paints, to look them over.

#include <QColor>
#include <QDir>
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QString>
#include <array>
#include <cstddef>
#include <functional>
#include <iostream>
#include <optional>
#include <span>

#include "art/stance_figure.h"
#include "art/title_art.h"

namespace {

using morlek::StancePiece;
using PagePainter = std::function<void(QPainter& painter)>;

// The tiles are those of the choosers, and so is the place of the picture in its tile.
constexpr QSizeF kTileSize(50, 41);
constexpr QSizeF kTilePitch(52, 43);

void PaintTile(QPainter& painter, StancePiece piece, int index, int code) {
  const int column = index / morlek::kPictureRows;
  const int row = index % morlek::kPictureRows;
  const QRectF tile({2 + kTilePitch.width() * column, 2 + kTilePitch.height() * row}, kTileSize);
  painter.setPen(QColor(0xcb, 0xd2, 0xdc));
  painter.setBrush(Qt::white);
  painter.drawRoundedRect(tile.adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
  const qreal side = kTileSize.height() - 2;
  morlek::PaintPiece(painter, {tile.topLeft() + QPointF(2, 1), QSizeF(side, side)}, piece, code);
  QFont font("Roboto");
  font.setPixelSize(9);
  painter.setFont(font);
  painter.setPen(QColor(0x47, 0x55, 0x69));
  painter.drawText(tile.adjusted(0, 0, -4, -2), Qt::AlignRight | Qt::AlignBottom,
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

/// Batters in the colours of clubs, and batters of whom some pieces are not known or empty.
void PaintClubs(QPainter& painter) {
  using morlek::kUnknownCode;
  constexpr std::array<morlek::ClubColors, 5> kClubs = {{{{0x0c, 0x23, 0x40}, {0xe3, 0x19, 0x37}},
                                                         {{0xd2, 0x42, 0x00}, {0x1a, 0x1a, 0x1a}},
                                                         {{0x27, 0x25, 0x1f}, {0xc4, 0xce, 0xd4}},
                                                         {{0xc6, 0x01, 0x1f}, {0xff, 0xff, 0xff}},
                                                         {{0x00, 0x38, 0x31}, {0xef, 0xb2, 0x1e}}}};
  constexpr std::array<morlek::StanceCodes, 8> kBatters = {
      {{.face = 0x01, .body = 0x06, .legs = 0x01},
       {.face = 0x42, .body = 0x03, .legs = 0x13},
       {.face = 0x23, .body = 0x04, .legs = 0x02},
       {.face = 0x15, .body = 0x12, .legs = 0x14},
       {.face = 0x51, .body = 0x50, .legs = 0x04},
       {.face = kUnknownCode, .body = kUnknownCode, .legs = kUnknownCode},
       {.face = 0x00, .body = 0x9A, .legs = 0x03},
       {.face = 0xFF, .body = 0x27, .legs = std::nullopt}}};
  for (int i = 0; i < 16; ++i) {
    const int line = i / 8;
    const QRectF place(4 + 132 * (i % 8), 4 + 164 * line, 128, 160);
    const auto column = static_cast<std::size_t>(i % 8);
    const auto batter = static_cast<std::size_t>((i + i / 8) % 8);
    morlek::PaintStance(painter, place, kBatters.at(batter),
                        column < kClubs.size() ? std::optional(kClubs.at(column)) : std::nullopt);
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
    writer.Write("faces", {210, 518}, scale, window, ChooserPage(StancePiece::kFace));
    writer.Write("bodies", {210, 518}, scale, window, ChooserPage(StancePiece::kBody));
    writer.Write("legs", {210, 131}, scale, window, ChooserPage(StancePiece::kLegs));
    writer.Write("stances", {1060, 496}, scale, window, PaintStances);
    writer.Write("clubs", {1060, 332}, scale, window, PaintClubs);
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
