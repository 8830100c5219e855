// The editor from its start to its painted main window, with the splash dismissed at once.

#include <QTimer>

#include "first_paint.h"
#include "shell/look.h"
#include "shell/main_window.h"
#include "shell/splash_window.h"
#include "silent_user.h"

int main(int argument_count, char** arguments) {
  const QApplication application(argument_count, arguments);
  morlek::ApplyLook();
  morlek::bench::SilentUser user(std::nullopt);
  morlek::MainWindow window(user);
  const morlek::bench::QuitAfterFirstPaint quit(window);
  morlek::SplashWindow splash;
  QObject::connect(&splash, &morlek::SplashWindow::Dismissed, &window, [&] {
    window.show();
    splash.hide();
  });
  splash.show();
  QTimer::singleShot(0, &splash, &morlek::SplashWindow::Dismissed);
  return QApplication::exec();
}
