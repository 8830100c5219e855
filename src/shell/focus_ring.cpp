#include "shell/focus_ring.h"

#include <QApplication>
#include <QPainter>

#include "shell/roster_box.h"
#include "ui/snapped_lines.h"
#include "ui/theme.h"

namespace morlek {

// The toolkit's own frame of the focus is no part of what assistive tools read.
FocusRing::FocusRing(QWidget* grid) : QFocusFrame(grid) {
  setAccessibleName("ring of the focus");
  hide();
  connect(qApp, &QApplication::focusChanged, this,
          [this](const QWidget* /*old*/, QWidget* focused) { Follow(focused); });
}

void FocusRing::Follow(QWidget* focused) {
  const auto* box = qobject_cast<RosterBox*>(focused);
  const bool is_here = box != nullptr && box->parentWidget() == parentWidget();
  box_ = is_here ? box : nullptr;
  if (is_here) setGeometry(box->geometry());
  setVisible(is_here);
}

void FocusRing::paintEvent(QPaintEvent* /*event*/) {
  if (!box_) return;
  QPainter painter(this);
  FrameSnapped(painter, rect(), 2, theme::ShadesOf(palette()).accent);
  box_->PaintMarks(painter);
}

}  // namespace morlek
