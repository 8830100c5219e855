#include "shell/splash_window.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QPainter>

#include "art/title_art.h"

namespace morlek {
namespace {

constexpr QSize kPictureSize(480, 300);

/// The picture. Keys are the window's business, so it takes no focus.
class SplashPicture : public QAbstractButton {
 public:
  explicit SplashPicture(QWidget* parent) : QAbstractButton(parent) {
    setObjectName("Picture");
    setAccessibleName("MORLEK EDITOR, press a key or click to begin");
    setFocusPolicy(Qt::NoFocus);
    setFixedSize(kPictureSize);
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintSplash(painter, rect());
  }
};

}  // namespace

SplashWindow::SplashWindow() {
  setObjectName("frmSplash");
  setAccessibleName("MORLEK EDITOR");
  setWindowTitle("Form2");
  setFixedSize(kPictureSize);
  const auto* picture = new SplashPicture(this);
  connect(picture, &QAbstractButton::clicked, this, &SplashWindow::Dismissed);
}

void SplashWindow::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
      // Held for another key, perhaps one that is the window manager's.
      return;
    default:
      emit Dismissed();
  }
}

}  // namespace morlek
