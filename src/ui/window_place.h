#pragma once

class QWidget;

namespace morlek {

/// Moves a window that has not been shown yet so that it will have the same middle as one that is
/// in view, as far as the room of the screen allows. Where windows cannot say where they stand, it
/// stands where the desktop puts it.
void PlaceOver(QWidget& window, const QWidget& shown);

}  // namespace morlek
