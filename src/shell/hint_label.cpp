#include "shell/hint_label.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

#include "art/title_art.h"
#include "editor/editor_state.h"
#include "ui/theme.h"

namespace morlek {
namespace {

constexpr char kAskForImage[] = "Open a ROM with Ctrl+O";
constexpr char kAskForTeam[] = "Pick a team above, or press Ctrl+Page Down";
constexpr int kWordsPixels = 15;
constexpr int kWordsHeight = 28;
constexpr int kIconSide = 64;
constexpr int kWordsGap = 18;
constexpr QSize kHintSize(320, kIconSide + kWordsGap + kWordsHeight);

}  // namespace

HintLabel::HintLabel(const QRect& area, QWidget* parent) : QLabel(parent) {
  setObjectName("labelHint");
  setAccessibleName("what to do next");
  QRect place(QPoint(0, 0), kHintSize);
  place.moveCenter(area.center());
  setGeometry(place);
  setFont(theme::Font(kWordsPixels));
  setAttribute(Qt::WA_Hover);
  setCursor(Qt::PointingHandCursor);
  Say(kAskForImage);
}

void HintLabel::Show(const EditorState& state) {
  const bool asks_for_image = state.scene.place.image.empty();
  if (asks_for_image != asks_for_image_) {
    asks_for_image_ = asks_for_image;
    setCursor(asks_for_image ? Qt::PointingHandCursor : Qt::ArrowCursor);
    Say(asks_for_image ? kAskForImage : kAskForTeam);
  }
  setVisible(!state.scene.is_grid_shown);
}

void HintLabel::Say(const QString& words) {
  setText(words);
  setAccessibleDescription(words);
}

void HintLabel::mouseReleaseEvent(QMouseEvent* event) {
  const bool is_click = event->button() == Qt::LeftButton && rect().contains(event->pos());
  if (asks_for_image_ && is_click) emit OpenRequested();
}

void HintLabel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QRectF icon((width() - kIconSide) / 2.0, 0, kIconSide, kIconSide);
  if (devicePixelRatioF() > 1) {
    PaintAppIcon(painter, icon);
  } else {
    // Painted already, so the start does not wait for it a second time.
    painter.drawPixmap(icon.topLeft(), QApplication::windowIcon().pixmap(kIconSide, kIconSide));
  }
  QFont words = font();
  words.setUnderline(asks_for_image_ && underMouse());
  painter.setFont(words);
  const theme::Shades& shades = theme::ShadesOf(palette());
  painter.setPen(asks_for_image_ ? shades.accent : shades.header_text);
  painter.drawText(rect().adjusted(0, kIconSide + kWordsGap, 0, 0), Qt::AlignCenter, text());
}

}  // namespace morlek
