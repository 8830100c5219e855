#include "ui/window_place.h"

#include <QScreen>
#include <QWidget>
#include <algorithm>

namespace morlek {

void PlaceOver(QWidget& window, const QWidget& shown) {
  const QRect other = shown.frameGeometry();
  const QRect room = shown.screen()->availableGeometry();
  // Its borders are not known before it stands on the screen, but will be those of the other.
  QRect place(QPoint(0, 0), window.size() + other.size() - shown.size());
  place.moveCenter(other.center());
  place.moveRight(std::min(place.right(), room.right()));
  place.moveBottom(std::min(place.bottom(), room.bottom()));
  place.moveLeft(std::max(place.left(), room.left()));
  place.moveTop(std::max(place.top(), room.top()));
  window.move(place.topLeft());
}

}  // namespace morlek
