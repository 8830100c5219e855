#include "shell/drop_guide.h"

#include <QAccessible>
#include <QDropEvent>
#include <QPainter>
#include <QWindow>

#include "ui/snapped_lines.h"
#include "ui/theme.h"

namespace morlek {

DropGuide::DropGuide(const Editor& editor, const QWidget& content)
    : QLabel(content.window()), editor_(editor), content_(content) {
  constexpr int kPixels = 15;
  setObjectName("labelDrop");
  setAccessibleName("what dropping the file does");
  setFont(theme::Font(kPixels, QFont::Bold));
  setAttribute(Qt::WA_TransparentForMouseEvents);
  // A widget that does not accept a drag hears no more of it; its window does.
  window()->windowHandle()->installEventFilter(this);
}

bool DropGuide::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
      // Whoever is under the pointer answers first.
      watched->event(event);
      ShowFor(*static_cast<QDropEvent*>(event));
      return true;
    case QEvent::DragLeave:
    case QEvent::Drop:
      hide();
      break;
    default:
      break;
  }
  return QLabel::eventFilter(watched, event);
}

void DropGuide::ShowFor(const QDropEvent& drag) {
  shown_ = DropTextOf(drag, editor_.state());
  if (shown_.words.isEmpty()) return hide();
  if (isVisible() && shown_.words == text()) return;
  setText(shown_.words);
  setAccessibleDescription(shown_.words);
  setGeometry(content_.geometry());
  show();
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void DropGuide::paintEvent(QPaintEvent* /*event*/) {
  constexpr int kMargin = 24;
  constexpr float kVeil = 0.7F;
  constexpr QMargins kPadding(18, 14, 18, 14);
  const theme::Shades& shades = theme::ShadesOf(palette());
  const QColor color = shown_.is_taken ? shades.accent : shades.lossy_mark;
  QColor veil = shades.window;
  veil.setAlphaF(kVeil);
  QPainter painter(this);
  painter.fillRect(rect(), veil);
  FrameSnapped(painter, rect(), 4, color);

  const QRect room = rect().marginsRemoved(kPadding).adjusted(kMargin, 0, -kMargin, 0);
  const QRect words = painter.boundingRect(room, Qt::AlignCenter | Qt::TextWordWrap, text());
  FrameSnapped(painter, words.marginsAdded(kPadding), 2, color, shades.base);
  painter.setPen(shades.text);
  painter.drawText(words, Qt::AlignCenter | Qt::TextWordWrap, text());
}

}  // namespace morlek
