// The editor from its start to its painted main window, with the splash dismissed at once; with the
// path of an image, on to the painted grid of its first team; with a second argument, on through a
// day in which all teams are edited and left before that.

#include <QAbstractButton>
#include <QTimer>

#include "first_paint.h"
#include "shell/dialog_user.h"
#include "shell/look.h"
#include "shell/main_window.h"
#include "shell/splash_window.h"
#include "silent_user.h"
#include "typing.h"
#include "ui/toolkit_workarounds.h"

namespace {

/// Shows every team and replaces all its uniform numbers.
void EditAllTeams(const QWidget& window) {
  for (const morlek::Team& team : morlek::kTeamDirectory) {
    window.findChild<QAbstractButton*>(QString::fromUtf8(team.key))->click();
    for (int row = 0; row < morlek::kSlotCount; ++row) {
      auto* number = window.findChild<QLineEdit*>(QString("Text3(%1)").arg(row));
      for (const char* digit : {"8", "9"}) morlek::bench::TypeOver(*number, digit);
      QCoreApplication::processEvents();
    }
  }
}

/// Runs the editor until its window, or with a team the last box of its grid, has been painted.
int Run(morlek::User& user, bool with_team, bool with_day) {
  morlek::Editor editor(user);
  morlek::MainWindow window(editor, user);
  std::optional<morlek::bench::QuitAfterFirstPaint> quit;
  if (!with_team) quit.emplace(window);
  QTimer picking;
  QObject::connect(&picking, &QTimer::timeout, &window, [&] {
    auto* last_box = window.findChild<QWidget*>("Text14(24)");
    if (last_box == nullptr) return;
    picking.stop();
    if (with_day) EditAllTeams(window);
    quit.emplace(*last_box);
    window.findChild<QAbstractButton*>("Braves")->click();
  });
  if (with_team) picking.start();
  // If the image is refused, nothing is ever painted.
  QTimer::singleShot(std::chrono::seconds(30), &window, [] { QApplication::exit(1); });

  morlek::SplashWindow splash;
  QObject::connect(&splash, &morlek::SplashWindow::Dismissed, &window, [&] {
    window.show();
    splash.hide();
  });
  splash.show();
  QTimer::singleShot(0, &splash, &morlek::SplashWindow::Dismissed);
  return QApplication::exec();
}

}  // namespace

int main(int argument_count, char** arguments) {
  const std::jthread fonts = morlek::ReadSystemFonts();
  const QApplication application(argument_count, arguments);
  morlek::ApplyLook();
  if (argument_count > 1) {
    morlek::bench::SilentUser user(QString::fromLocal8Bit(arguments[1]));
    return Run(user, true, argument_count > 2);
  }
  morlek::DialogUser user;
  return Run(user, false, false);
}
