#pragma once

class QWidget;

namespace morlek {

/// Moves a window that has not been shown yet so that it will have the same middle as one that is
/// in view, as far as the screen has room. Where windows cannot choose their place, the
/// desktop does.
void PlaceOver(QWidget& window, const QWidget& shown);

}  // namespace morlek
