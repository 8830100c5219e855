// A window with one menu and one word: what the editor's start is measured against.

#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>

#include "first_paint.h"

int main(int argument_count, char** arguments) {
  const QApplication application(argument_count, arguments);
  QMainWindow window;
  window.menuBar()->addMenu("File")->addAction("Quit");
  window.setCentralWidget(new QLabel("Word"));
  window.setFixedSize(447, 674);
  const morlek::bench::QuitAfterFirstPaint quit(window);
  window.show();
  return QApplication::exec();
}
