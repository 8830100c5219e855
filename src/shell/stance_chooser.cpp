#include "shell/stance_chooser.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <utility>

#include "codecs/hex_text.h"
#include "shell/code_page_text.h"
#include "ui/marked_button.h"
#include "ui/theme.h"
#include "ui/twips.h"

namespace morlek {
namespace {

constexpr int kLeft = 8;  // the narrow layout ends 3 px inside the frame, where nothing may show
constexpr int kTop = 26;
constexpr int kTileGap = 2;
constexpr QSize kCheckSize(7, 6);

/// A tile of a chooser, and in it the picture: a square, as large as the tile allows.
struct Tile {
  QSize size;
  QRectF picture;
  int code_pixels;
};

/// The few legs have room for higher tiles, with the code below.
Tile TileOf(StancePiece piece) {
  if (piece == StancePiece::kLegs) return {{50, 68}, {2, 4, 46, 46}, 11};
  return {{50, 41}, {2, 1, 39, 39}, 9};
}

void PaintCheck(QPainter& painter, const QPointF& top_left, const QColor& color) {
  constexpr qreal kLine = 1.6;
  const QPointF foot = top_left + QPointF(kCheckSize.width() * 0.38, kCheckSize.height());
  painter.setPen(QPen(color, kLine, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(QPolygonF({top_left + QPointF(0, kCheckSize.height() * 0.55), foot,
                                  top_left + QPointF(kCheckSize.width(), 0)}));
}

}  // namespace

/// One picture with its code in a corner.
class StancePicture : public MarkedButton {
 public:
  StancePicture(const ChooserKind& kind, int index, std::uint8_t code, QWidget* parent)
      : MarkedButton(parent),
        piece_(kind.piece),
        code_(code),
        code_text_(FromCodePage(ByteToText(code))) {
    setObjectName(QString("%1(%2)").arg(kind.array_name).arg(index));
    setAccessibleName(QString("%1 %2").arg(QString(kind.title).toLower(), code_text_));
    setFocusPolicy(Qt::NoFocus);
    setMouseTracking(true);
    const QSize size = TileOf(piece_).size;
    setGeometry(QRect(QPoint(kLeft + (size.width() + kTileGap) * (index / kPictureRows),
                             kTop + (size.height() + kTileGap) * (index % kPictureRows)),
                      size));
  }

  [[nodiscard]] std::uint8_t code() const { return code_; }
  [[nodiscard]] const QString& code_text() const { return code_text_; }

  /// Shows a check for what `meaning` says; no check without a meaning.
  void SetCheck(const QString& meaning) {
    if (meaning == accessibleDescription()) return;
    setAccessibleDescription(meaning);
    update();
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    constexpr qreal kRadius = 4;
    const auto [size, picture, code_pixels] = TileOf(piece_);
    const theme::Shades& shades = theme::ShadesOf(palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    const bool marked = is_marked();
    const bool lit = marked || underMouse();
    const qreal line = marked ? 2 : 1;
    painter.setPen(QPen(lit ? shades.accent : shades.line, line));
    painter.setBrush(marked || isDown() ? shades.marked_tile : shades.tile);
    const QRectF tile = QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2);
    painter.drawRoundedRect(tile, kRadius, kRadius);

    PaintPiece(painter, picture, piece_, code_);

    painter.setPen(marked ? shades.marked_tile_text : shades.tile_faint_text);
    painter.setFont(theme::Font(code_pixels, marked ? QFont::Bold : QFont::Normal));
    painter.drawText(QRectF(rect()).adjusted(0, 0, -4, -2), Qt::AlignRight | Qt::AlignBottom,
                     code_text_);
    if (!accessibleDescription().isEmpty()) {
      PaintCheck(painter, QPointF(width() - 4.5 - kCheckSize.width(), 5.5),
                 marked ? shades.marked_tile_text : shades.tile_faint_text);
    }
  }

 private:
  StancePiece piece_;
  std::uint8_t code_;
  QString code_text_;
};

StanceChooser::StanceChooser(const ChooserKind& kind, QWidget* parent)
    : QFrame(parent), kind_(kind) {
  constexpr int kTitlePixels = 12;
  setObjectName(kind.frame_name);
  setAccessibleName(QString("%1 chooser").arg(QString(kind.title).toLower()));

  auto* title = new QLabel(kind.title, this);
  title->setObjectName(kind.label_name);
  title->setToolTip(kind.tool_tip);
  title->setFont(theme::Font(kTitlePixels, QFont::Bold));
  title->move(kLeft, 5);

  const PictureCodes& codes = PictureCodesOf(kind.piece);
  for (int place = 0; place < codes.count(); ++place) {
    auto* picture =
        new StancePicture(kind, PictureCodes::IndexAt(place), codes.CodeAt(place), this);
    pictures_.push_back(picture);
    picture->installEventFilter(this);
    connect(picture, &QAbstractButton::clicked, this,
            [this, picture] { emit CodePicked(picture->code_text()); });
  }
}

void StanceChooser::Mark(std::optional<int> code) {
  if (code == std::exchange(marked_, code)) return;
  for (StancePicture* picture : pictures_) picture->SetMarked(code == picture->code());
}

void StanceChooser::ShowFitting(std::optional<int> other_code) {
  if (other_code == std::exchange(fitted_, other_code)) return;
  const bool shows = other_code && PictureCodesOf(kind_.piece).Contains(*other_code);
  for (StancePicture* picture : pictures_) {
    const bool fits = shows && HaveOneSkin(picture->code(), *other_code);
    picture->SetCheck(fits ? kind_.fitting : QString());
  }
  if (std::exchange(shows_fitting_, shows) != shows) update();
}

bool StanceChooser::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseMove) {
    const auto& picture = dynamic_cast<const StancePicture&>(*watched);
    // A button that is held down follows the pointer beyond its edge.
    const bool is_inside = picture.rect().contains(static_cast<QMouseEvent*>(event)->pos());
    emit PointedAt(is_inside ? std::optional<int>(picture.code()) : std::nullopt);
  } else if (event->type() == QEvent::Leave || event->type() == QEvent::Hide) {
    emit PointedAt(std::nullopt);
  }
  return QFrame::eventFilter(watched, event);
}

void StanceChooser::paintEvent(QPaintEvent* /*event*/) {
  if (!shows_fitting_) return;
  constexpr int kPixels = 11;
  constexpr int kGap = 5;
  const QColor color = theme::ShadesOf(palette()).faint_text;
  const QRect words({0, 5}, QPoint(pictures_.back()->geometry().right(), 20));
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(theme::Font(kPixels));
  painter.setPen(color);
  painter.drawText(words, Qt::AlignRight | Qt::AlignVCenter, kind_.fitting);
  const int width = painter.fontMetrics().horizontalAdvance(kind_.fitting);
  PaintCheck(painter,
             QPointF(words.right() - width - kGap - kCheckSize.width(),
                     words.center().y() - kCheckSize.height() / 2.0),
             color);
}

}  // namespace morlek
