// The least that a window costs: what the editor's start is measured against.

#include <QMainWindow>

#include "first_paint.h"

int main(int argument_count, char** arguments) {
  const QApplication application(argument_count, arguments);
  QMainWindow window;
  window.setFixedSize(447, 674);
  const morlek::bench::QuitAfterFirstPaint quit(window);
  window.show();
  return QApplication::exec();
}
