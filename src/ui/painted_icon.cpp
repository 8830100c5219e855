#include "ui/painted_icon.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <utility>

namespace morlek {
namespace {

class PaintedIconEngine : public QIconEngine {
 public:
  explicit PaintedIconEngine(PicturePainter paint) : paint_(std::move(paint)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
             QIcon::State /*state*/) override {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (mode == QIcon::Disabled) painter->setOpacity(kDisabledOpacity);
    paint_(*painter, rect);
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return pixmap;
  }

  [[nodiscard]] QIconEngine* clone() const override { return new PaintedIconEngine(paint_); }

 private:
  static constexpr qreal kDisabledOpacity = 0.4;

  PicturePainter paint_;
};

}  // namespace

QIcon MakePaintedIcon(PicturePainter paint) {
  return QIcon(new PaintedIconEngine(std::move(paint)));
}

}  // namespace morlek
