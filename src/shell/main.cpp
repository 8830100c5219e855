#include <QApplication>

#include "shell/dialog_user.h"
#include "shell/look.h"
#include "shell/main_window.h"
#include "shell/splash_window.h"
#include "ui/toolkit_workarounds.h"

int main(int argument_count, char** arguments) {
  const std::jthread fonts = morlek::ReadSystemFonts();
  const QApplication application(argument_count, arguments);
  QApplication::setApplicationName("morlek-editor");
  QApplication::setDesktopFileName("org.morlek.Editor");
  morlek::ApplyLook();

  morlek::DialogUser user;
  morlek::Editor editor(user);
  morlek::MainWindow window(editor, user);
  user.SetWindow(&window);
  morlek::SplashWindow splash;
  QObject::connect(&splash, &morlek::SplashWindow::Dismissed, &window, [&] {
    morlek::PlaceOver(window, splash);
    window.show();
    splash.hide();
  });
  splash.show();
  return QApplication::exec();
}
