#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace morlek::bench {

/// Replaces the text of the box by a typed character.
inline void TypeOver(QLineEdit& box, const QString& character) {
  box.selectAll();
  QKeyEvent press(QEvent::KeyPress, Qt::Key_0, Qt::NoModifier, character);
  QApplication::sendEvent(&box, &press);
}

}  // namespace morlek::bench
