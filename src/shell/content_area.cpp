#include "shell/content_area.h"

#include <QScrollBar>

#include "ui/twips.h"

namespace morlek {
namespace {

constexpr int kFootHeight = 20;  // of logical pixels

}  // namespace

ContentArea::ContentArea(QWidget* parent) : QScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFocusPolicy(Qt::NoFocus);
  setAccessibleName("scrolling area");
  auto* content = new QWidget;
  content->setAccessibleName("content");
  setWidget(content);
}

void ContentArea::KeepInView(QWidget* foot) { feet_.push_back({foot, foot->y()}); }

void ContentArea::SetContentWidth(int twips) {
  widget()->setFixedSize(FromTwips(twips), kContentHeight);
}

QSize ContentArea::FitInto(int room) {
  const bool fits = kContentHeight <= room;
  // Never as needed: rounding at a fractional scale factor can make the content a pixel too high.
  setVerticalScrollBarPolicy(fits ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAlwaysOn);
  setViewportMargins(0, 0, 0, fits ? 0 : kFootHeight);
  if (fits) {
    MoveFeet(widget(), 0);
    return widget()->size();
  }
  MoveFeet(this, room - kContentHeight);
  return {widget()->width() + verticalScrollBar()->sizeHint().width(), room};
}

void ContentArea::MoveFeet(QWidget* parent, int down) {
  for (const Foot& foot : feet_) {
    if (foot.widget->parentWidget() != parent) {
      foot.widget->setParent(parent);
      foot.widget->show();
    }
    foot.widget->move(foot.widget->x(), foot.top + down);
  }
}

}  // namespace morlek
