#include <QBackingStore>
#include <QDir>
#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QWindow>
#include <iostream>

#include "shell/dialog_user.h"
#include "shell/eye.h"
#include "shell/picture_difference.h"
#include "shell/splash_window.h"
#include "shell/window_fixture.h"
#include "ui/theme.h"

namespace morlek {
namespace {

/// What has been painted where the window is, in the pixels of its screen.
QImage PixelsOf(const QWidget& window) {
  constexpr int kPaintMilliseconds = 20;
  QTest::qWait(kPaintMilliseconds);
  const auto* painted = dynamic_cast<const QImage*>(window.backingStore()->paintDevice());
  if (painted == nullptr) throw std::invalid_argument("what is painted cannot be read");
  QImage pixels = painted->convertToFormat(QImage::Format_RGB32);
  pixels.setDevicePixelRatio(1);
  return pixels;
}

/// Compares with the picture of that name, which is kept at half the size, and stores what differs.
/// On request the picture is replaced instead.
void ExpectLook(const std::string& name, const QImage& seen) {
  const QString file = QDir(MORLEK_LOOK_FOLDER).filePath(QString::fromStdString(name) + ".png");
  const QImage half = Reduced(seen, 2);
  const QImage kept = QImage(file).convertToFormat(seen.format());
  const bool is_comparable = kept.size() == half.size();
  const PictureDifference difference(half, is_comparable ? kept : half);
  ::testing::Test::RecordProperty(name, difference.worst);
  if (is_comparable && difference.is_small()) return;
  if (qEnvironmentVariableIsSet("MORLEK_RENEW_LOOK")) {
    constexpr int kSmallest = 0;
    EXPECT_TRUE(half.save(file, "PNG", kSmallest)) << file.toStdString();
    std::cout << "renewed " << file.toStdString() << "\n";
    return;
  }
  const QDir results(MORLEK_LOOK_RESULTS);
  EXPECT_TRUE(results.mkpath("."));
  const QString result = results.filePath(QString::fromStdString(name));
  EXPECT_TRUE(seen.save(result + ".seen.png") && difference.picture.save(result + ".apart.png"));
  ADD_FAILURE() << name << " is apart by " << difference.worst << " at "
                << 2 * difference.worst_place.x() << ", " << 2 * difference.worst_place.y()
                << ", or of another size. See " << result.toStdString()
                << ".*.png; if it should look like that, scripts/renew-look keeps it.";
}

class LookTest : public WindowTest {
 protected:
  LookTest() { QApplication::setCursorFlashTime(0); }
  ~LookTest() override { QApplication::setPalette(QPalette()); }

  static void TurnDark() { QApplication::setPalette(theme::PaletteOf(theme::kDark)); }

  void ExpectWindow(const std::string& name) const { ExpectLook(name, PixelsOf(*window)); }

  [[nodiscard]] QImage PixelsOfPart(const QString& control) const {
    const QWidget& part = Find(control);
    const qreal scale = window->devicePixelRatio();
    const QRectF pixels(part.mapTo(window.get(), QPointF(0, 0)) * scale,
                        QSizeF(part.size()) * scale);
    return PixelsOf(*window).copy(pixels.toAlignedRect());
  }

  /// One part of the window: a picture with less in it has more colours for each thing.
  void ExpectPart(const QString& control, const std::string& name) const {
    ExpectLook(name, PixelsOfPart(control));
  }

  void ExpectOtherLookUnderThePointer(const QString& control) const {
    const QImage before = PixelsOfPart(control);
    QTest::mouseMove(&Find(control));
    EXPECT_NE(PixelsOfPart(control), before) << control.toStdString();
    QTest::mouseMove(&Find("labelStatus"));
  }

  void ExpectDialogs(const std::string& shade) const {
    DialogUser dialogs;
    dialogs.SetWindow(window.get());
    int seen = 0;
    const auto expect_next = [&](const std::string& name) {
      QTimer::singleShot(0, [&seen, name] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
        ExpectLook(name, PixelsOf(*dialog));
        ++seen;
        dialog->close();
      });
    };
    expect_next("message-" + shade);
    dialogs.ShowMessage(
        "You've used a letter that is not recognized by MORLEK EDITOR, change the letter and save "
        "your edits again.",
        "MORLEK EDITOR", Message::Icon::kNone);
    expect_next("error-" + shade);
    dialogs.ShowMessage("The team cannot be read.", "MORLEK EDITOR", Message::Icon::kCritical);
    expect_next("question-" + shade);
    EXPECT_FALSE(dialogs.AskYesNo("Sure?\n\nIf not then click NO.", "MORLEK EDITOR"));
    EXPECT_EQ(seen, 3);
  }

  /// Marks of every kind: not saved, not kept, lost because of another cell, and a dot on SAVE. The
  /// focus is in one of them.
  void MarkTeam() {
    StartWithTeam();
    int column = 0;
    for (const char* text : {"J.SM1TH", "ZZ", "300", "X", "8", "12"}) TypeInto(++column, 1, text);
    TypeInto(3, 14, "77");
    TypeInto(9, 20, "9.99");
    Box(12, 5).setFocus();
    Click("Picture1(5)");
    Choose("mnuMini");
    Box(3, 1).setFocus();
  }
};

TEST_F(LookTest, Splash) {
  SplashWindow splash;
  splash.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&splash));
  ExpectLook("splash", PixelsOf(splash));
}

TEST_F(LookTest, FromTheEmptyWindowToTheHelp) {
  Start(std::nullopt);
  ExpectWindow("empty");
  ExpectOtherLookUnderThePointer("labelHint");
  ChooseWith("mnuOpen", ImagePath());
  ExpectWindow("opened");
  QMimeData files;
  files.setUrls({QUrl::fromLocalFile(ImagePath())});
  QDragEnterEvent drag({9, 300}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(window->windowHandle(), &drag);
  ExpectPart("labelDrop", "drop");
  QDragLeaveEvent leave;
  QApplication::sendEvent(window->windowHandle(), &leave);
  Click("Braves");
  Box(1, 7).setFocus();
  Box(1, 7).deselect();
  ExpectWindow("team");
  ExpectOtherLookUnderThePointer("Mets");
  Choose("mnuMorlekHELP");
  ExpectWindow("help");
}

TEST_F(LookTest, Choosers) {
  StartWithTeam();
  Box(12, 17).setFocus();
  Click("Picture1(36)");
  ExpectPart("StancePanel", "faces");
  ExpectOtherLookUnderThePointer("Picture1(20)");
  ExpectPart("Frame1", "player-in-view");
  ExpectPart("StanceMark", "mark");
  Box(13, 17).setFocus();
  ExpectPart("StancePanel", "bodies");
  Box(14, 17).setFocus();
  ExpectPart("StancePanel", "legs");
  const QImage worn = PixelsOfPart("StanceView");
  QTest::mouseMove(&Find("Picture3(2)"));
  EXPECT_NE(PixelsOfPart("StanceView"), worn) << "tried on";
}

TEST_F(LookTest, DarkAlsoWhenTheDesktopTurnsItDuringTheRun) {
  MarkTeam();
  TurnDark();
  ExpectWindow("marks-dark");
  Box(12, 17).setFocus();
  Click("Picture1(36)");
  ExpectPart("StancePanel", "faces-dark");
  ExpectPart("Frame1", "player-in-view-dark");
  Box(14, 17).setFocus();
  ExpectPart("StancePanel", "legs-dark");
}

TEST_F(LookTest, Dialogs) {
  Start(std::nullopt);
  ExpectDialogs("light");
  TurnDark();
  ExpectDialogs("dark");
}

TEST_F(LookTest, OneAndAHalfTimesAsLarge) {
  screen = QGuiApplication::screens().at(2);
  Start(std::nullopt);
  ExpectWindow("empty-larger");
  MarkTeam();
  ExpectWindow("marks-larger");
  Box(12, 17).setFocus();
  ExpectPart("StancePanel", "faces-larger");
}

}  // namespace
}  // namespace morlek
