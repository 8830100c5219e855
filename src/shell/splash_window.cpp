#include "shell/splash_window.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <algorithm>

#include "art/title_art.h"

namespace morlek {
namespace {

constexpr QSize kPictureSize(480, 300);

/// The picture. The window handles keys, so it takes no focus.
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
      // Held for another key, perhaps a shortcut of the window manager.
      return;
    default:
      emit Dismissed();
  }
}

void PlaceOver(QWidget& window, const QWidget& shown) {
  const QRect other = shown.frameGeometry();
  const QRect room = shown.screen()->availableGeometry();
  // Its borders are not known before it is shown, but will be those of the other window.
  QRect place(QPoint(0, 0), window.size() + other.size() - shown.size());
  place.moveCenter(other.center());
  place.moveRight(std::min(place.right(), room.right()));
  place.moveBottom(std::min(place.bottom(), room.bottom()));
  place.moveLeft(std::max(place.left(), room.left()));
  place.moveTop(std::max(place.top(), room.top()));
  window.move(place.topLeft());
}

}  // namespace morlek
