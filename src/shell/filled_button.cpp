#include "shell/filled_button.h"

#include <QPainter>

#include "shell/theme.h"

namespace morlek {

FilledButton::FilledButton(const QString& caption, QWidget* parent) : QPushButton(caption, parent) {
  QPalette colors = palette();
  colors.setColor(QPalette::Button, theme::kAccent);
  colors.setColor(QPalette::ButtonText, theme::kBase);
  setPalette(colors);
}

void FilledButton::SetDotted(bool dotted) {
  if (dotted == is_dotted_) return;
  is_dotted_ = dotted;
  update();
}

void FilledButton::paintEvent(QPaintEvent* event) {
  QPushButton::paintEvent(event);
  if (!is_dotted_) return;
  constexpr qreal kRadius = 3.5;
  constexpr qreal kGap = 9;
  const qreal caption_end = (width() + fontMetrics().horizontalAdvance(text())) / 2.0;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(theme::kBase);
  painter.drawEllipse(QPointF(caption_end + kGap, height() / 2.0), kRadius, kRadius);
}

}  // namespace morlek
