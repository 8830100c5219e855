#pragma once

#include <QWidget>

namespace morlek {

/// The first window: one picture, which stays until a key is pressed or the picture is clicked.
/// Closing it by its own close box ends the program, for it is then the last window.
class SplashWindow : public QWidget {
  Q_OBJECT

 public:
  SplashWindow();

 signals:
  /// A key was pressed, other than a bare modifier, or the picture was clicked. The splash stays in
  /// view until it is hidden, and says so again at the next key or click.
  void Dismissed();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace morlek
