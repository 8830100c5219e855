#include <gtest/gtest.h>

#include <QApplication>
#include <QFileInfo>
#include <QFont>
#include <QTemporaryFile>

#include "shell/look.h"

int main(int argument_count, char** arguments) {
  ::testing::InitGoogleTest(&argument_count, arguments);
  // Three screens that nobody sees, the second lower than the window, the third with smaller
  // pixels.
  QTemporaryFile screens("screens");  // the platform takes no path with a drive
  if (!screens.open()) return EXIT_FAILURE;
  screens.write(R"({"screens": [
      {"name": "high", "x": 0, "y": 0, "width": 1000, "height": 800,
       "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
      {"name": "low", "x": 1000, "y": 0, "width": 1000, "height": 480,
       "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
      {"name": "sharp", "x": 0, "y": 1000, "width": 1500, "height": 1200,
       "logicalDpi": 144, "logicalBaseDpi": 96, "dpr": 1}]})");
  screens.flush();
  // Letters without colours at their edges, whatever the machine's own settings are.
  QTemporaryFile fonts;
  if (!fonts.open()) return EXIT_FAILURE;
  fonts.write(R"(<fontconfig>
      <include ignore_missing="yes">/etc/fonts/fonts.conf</include>
      <match target="pattern"><edit name="rgba" mode="assign"><const>none</const></edit></match>
      <match target="font"><edit name="rgba" mode="assign"><const>none</const></edit></match>
      </fontconfig>)");
  fonts.flush();
  qputenv("FONTCONFIG_FILE", fonts.fileName().toLocal8Bit());
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFileInfo(screens).fileName().toLocal8Bit());

  const QApplication application(argument_count, arguments);
  morlek::ApplyLook();
  // Letters that fit no system's grid of pixels: every font takes what it does not set itself from
  // this one.
  QFont letters = QApplication::font();
  letters.setHintingPreference(QFont::PreferNoHinting);
  QApplication::setFont(letters);
  return RUN_ALL_TESTS();
}
