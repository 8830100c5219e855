#pragma once

#include <QWidget>

namespace morlek {

/// The first window: one picture, which stays until a key is pressed or the picture is clicked.
/// Closing it by its own close box ends the program, as it is then the last window.
class SplashWindow : public QWidget {
  Q_OBJECT

 public:
  SplashWindow();

 signals:
  /// A key was pressed, other than a bare modifier, or the picture was clicked. The splash stays in
  /// view until it is hidden, and emits this again at the next key or click.
  void Dismissed();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

/// Moves a window that has not been shown yet so that it will be centered on one that is in view,
/// as far as the screen has room. Does nothing on desktops where windows cannot choose their place.
void PlaceOver(QWidget& window, const QWidget& shown);

}  // namespace morlek
