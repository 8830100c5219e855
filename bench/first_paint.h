#pragma once

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <cstdlib>

namespace morlek::bench {

/// Ends the program as soon as a window has been painted for the first time, without destroying
/// its windows: only the start is measured.
class QuitAfterFirstPaint : public QObject {
 public:
  explicit QuitAfterFirstPaint(QWidget& window) { window.installEventFilter(this); }

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      QMetaObject::invokeMethod(
          qApp, [] { std::_Exit(0); }, Qt::QueuedConnection);
    }
    return false;
  }
};

}  // namespace morlek::bench
