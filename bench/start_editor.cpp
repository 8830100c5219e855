// The editor from its start to its painted main window, with the splash dismissed at once.

#include <QEventLoop>
#include <QTimer>

#include "first_paint.h"
#include "shell/look.h"
#include "shell/main_window.h"
#include "shell/splash_window.h"
#include "silent_user.h"

namespace {

/// Has not chosen an image yet when the window is painted.
class SlowUser : public morlek::bench::SilentUser {
 public:
  SlowUser() : SilentUser(std::nullopt) {}

  std::optional<QString> AskOpenPath(const morlek::FileQuestion& question) override {
    QEventLoop().exec();
    return SilentUser::AskOpenPath(question);
  }
};

}  // namespace

int main(int argument_count, char** arguments) {
  const QApplication application(argument_count, arguments);
  morlek::ApplyLook();
  SlowUser user;
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
