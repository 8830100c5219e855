#include "ui/filled_button.h"

#include <QPainter>
#include <QStyleOption>

#include "ui/theme.h"

namespace morlek {

FilledButton::FilledButton(const QString& caption, QWidget* parent)
    : QPushButton(caption, parent) {}

void FilledButton::SetFilled(bool filled) {
  if (filled == is_filled_) return;
  is_filled_ = filled;
  update();
}

void FilledButton::initStyleOption(QStyleOptionButton* option) const {
  QPushButton::initStyleOption(option);
  const theme::Shades& shades = theme::ShadesOf(palette());
  option->palette.setColor(QPalette::Button, is_filled_ ? shades.fill : shades.base);
  option->palette.setColor(QPalette::ButtonText, is_filled_ ? shades.on_fill : shades.accent);
}

void FilledButton::paintEvent(QPaintEvent* event) {
  QPushButton::paintEvent(event);
  if (!is_filled_) return;
  constexpr qreal kRadius = 3.5;
  constexpr qreal kGap = 9;
  const qreal caption_end = (width() + fontMetrics().horizontalAdvance(text())) / 2.0;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(theme::ShadesOf(palette()).on_fill);
  painter.drawEllipse(QPointF(caption_end + kGap, height() / 2.0), kRadius, kRadius);
}

}  // namespace morlek
