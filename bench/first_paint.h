#pragma once

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace morlek::bench {

/// Ends the program as soon as a window has been painted for the first time.
class QuitAfterFirstPaint : public QObject {
 public:
  explicit QuitAfterFirstPaint(QWidget& window) { window.installEventFilter(this); }

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    }
    return false;
  }
};

}  // namespace morlek::bench
