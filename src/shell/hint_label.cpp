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
  Ask(true);
}

void HintLabel::Show(const EditorState& state) {
  const bool for_image = state.scene.place.image.empty();
  if (for_image != AsksForImage()) Ask(for_image);
  setVisible(!state.scene.is_grid_shown);
}

bool HintLabel::AsksForImage() const { return text() == kAskForImage; }

void HintLabel::Ask(bool for_image) {
  const QString words = for_image ? kAskForImage : kAskForTeam;
  setCursor(for_image ? Qt::PointingHandCursor : Qt::ArrowCursor);
  setText(words);
  setAccessibleDescription(words);
}

void HintLabel::mouseReleaseEvent(QMouseEvent* event) {
  const bool is_click = event->button() == Qt::LeftButton && rect().contains(event->pos());
  if (AsksForImage() && is_click) emit OpenRequested();
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
  words.setUnderline(AsksForImage() && underMouse());
  painter.setFont(words);
  const theme::Shades& shades = theme::ShadesOf(palette());
  painter.setPen(AsksForImage() ? shades.accent : shades.header_text);
  painter.drawText(rect().adjusted(0, kIconSide + kWordsGap, 0, 0), Qt::AlignCenter, text());
}

}  // namespace morlek
