#include <QBackingStore>
#include <QDir>
#include <QMessageBox>
#include <QPainter>
#include <QTimer>
#include <array>
#include <iostream>
#include <numeric>
#include <set>

#include "shell/dialog_user.h"
#include "shell/eye.h"
#include "shell/splash_window.h"
#include "shell/window_fixture.h"
#include "ui/theme.h"

namespace morlek {
namespace {

const QDir kKept(MORLEK_LOOK_FOLDER);      // the pictures to which the window is compared
const QDir kResults(MORLEK_LOOK_RESULTS);  // where what differs is laid down

/// Red, green and blue, or what is computed from each.
using Channels = std::array<int, 3>;

Channels ChannelsOf(QRgb color) { return {qRed(color), qGreen(color), qBlue(color)}; }

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

/// A picture in 256 colours at most, a quarter of its size as a file. Those of most pixels, which
/// are the flat grounds, stay exactly as they are.
class FewColors {
 public:
  explicit FewColors(const QImage& image) : image_(image), pixels_of_(ColorsOf(image)) {
    for (spread_ = 0; !Choose(); ++spread_) {
    }
    constexpr int kRounds = 3;
    for (int round = 0; round < kRounds; ++round) Settle();
  }

  [[nodiscard]] QImage Picture() const {
    QImage picture(image_.size(), QImage::Format_Indexed8);
    picture.setColorTable(chosen_);
    std::map<QRgb, qsizetype> nearest_;
    // What is wrong at a pixel is made good by those right of it and below.
    std::vector<Channels> below(static_cast<std::size_t>(image_.width()) + 1);
    for (int y = 0; y < image_.height(); ++y) {
      Channels right{};
      for (int x = 0; x < image_.width(); ++x) {
        Channels& above = below[static_cast<std::size_t>(x)];
        const QRgb color = image_.pixel(x, y);
        Channels wanted = ChannelsOf(color);
        if (!exact_colors_.contains(color)) {
          for (std::size_t place = 0; place < 3; ++place) {
            wanted[place] = std::clamp(wanted[place] + right[place] + above[place], 0, 255);
          }
        }
        const QRgb sought = qRgb(wanted[0], wanted[1], wanted[2]);
        const qsizetype nearest =
            nearest_.contains(sought) ? nearest_[sought] : (nearest_[sought] = Nearest(sought));
        const Channels got = ChannelsOf(chosen_[nearest]);
        for (std::size_t place = 0; place < 3; ++place) {
          right[place] = (wanted[place] - got[place]) / 2;
          above[place] = wanted[place] - got[place] - right[place];
        }
        picture.setPixel(x, y, static_cast<uint>(nearest));
      }
    }
    return picture;
  }

 private:
  static constexpr qsizetype kMost = 256;
  static constexpr qsizetype kExact = 96;
  std::set<QRgb> exact_colors_;

  static int Distance(QRgb one, QRgb other) {
    const Channels a = ChannelsOf(one);
    const Channels b = ChannelsOf(other);
    return std::transform_reduce(a.begin(), a.end(), b.begin(), 0, std::plus<>(),
                                 [](int x, int y) { return (x - y) * (x - y); });
  }

  [[nodiscard]] qsizetype Nearest(QRgb color) const {
    return std::ranges::min_element(chosen_, {},
                                    [&](QRgb other) { return Distance(color, other); }) -
           chosen_.begin();
  }

  /// Chooses colours until each is near to a chosen one; false when that takes too many.
  bool Choose() {
    std::vector<std::pair<int, QRgb>> by_pixels;
    for (const auto& [color, pixels] : pixels_of_) by_pixels.emplace_back(-pixels, color);
    std::ranges::sort(by_pixels);
    chosen_.clear();
    for (const auto& pair : by_pixels) {
      const QRgb color = pair.second;
      const auto is_near = [&](QRgb other) { return Distance(color, other) <= spread_ * spread_; };
      if (chosen_.size() >= kExact && std::ranges::any_of(chosen_, is_near)) continue;
      if (chosen_.size() == kMost) return false;
      chosen_.push_back(color);
    }
    exact_colors_ = {chosen_.begin(), chosen_.begin() + std::min(kExact, chosen_.size())};
    return true;
  }

  /// Moves each colour but the exact ones to the middle of those that it stands for.
  void Settle() {
    std::vector<std::array<qint64, 4>> sums(static_cast<std::size_t>(chosen_.size()));
    for (const auto& [color, pixels] : pixels_of_) {
      std::array<qint64, 4>& sum = sums[static_cast<std::size_t>(Nearest(color))];
      const Channels channels = ChannelsOf(color);
      for (std::size_t place = 0; place < 3; ++place) sum[place] += channels[place] * pixels;
      sum[3] += pixels;
    }
    for (qsizetype place = kExact; place < chosen_.size(); ++place) {
      const auto& [red, green, blue, pixels] = sums[static_cast<std::size_t>(place)];
      if (pixels == 0) continue;
      chosen_[place] = qRgb(static_cast<int>(red / pixels), static_cast<int>(green / pixels),
                            static_cast<int>(blue / pixels));
    }
  }

  const QImage& image_;
  std::map<QRgb, int> pixels_of_;
  int spread_ = 0;
  QList<QRgb> chosen_;
};

/// How far two pictures of one size are apart at each pixel, from 0 to 255: the means over it and
/// its eight neighbours, so that a stroke that lies a little off counts little, in that channel in
/// which they differ most.
QImage DifferenceOf(const QImage& one, const QImage& other) {
  const QRect all = one.rect();
  std::vector<Channels> sums(static_cast<std::size_t>(all.width() * all.height()));
  const auto sum_at = [&](int x, int y) -> Channels& {
    return sums[static_cast<std::size_t>(y * all.width() + x)];
  };
  for (int y = 0; y < all.height(); ++y) {
    for (int x = 0; x < all.width(); ++x) {
      const Channels a = ChannelsOf(one.pixel(x, y));
      const Channels b = ChannelsOf(other.pixel(x, y));
      if (a == b) continue;
      const QRect around = QRect(x - 1, y - 1, 3, 3).intersected(all);
      for (int row = around.top(); row <= around.bottom(); ++row) {
        for (int column = around.left(); column <= around.right(); ++column) {
          Channels& sum = sum_at(column, row);
          for (std::size_t place = 0; place < sum.size(); ++place)
            sum[place] += a[place] - b[place];
        }
      }
    }
  }
  QImage difference(all.size(), QImage::Format_Grayscale8);
  for (int y = 0; y < all.height(); ++y) {
    uchar* line = difference.scanLine(y);
    for (int x = 0; x < all.width(); ++x) {
      const auto& [red, green, blue] = sum_at(x, y);
      constexpr int kPixels = 9;
      const int most = std::max({std::abs(red), std::abs(green), std::abs(blue)});
      line[x] = static_cast<uchar>((most + kPixels / 2) / kPixels);
    }
  }
  return difference;
}

/// A difference by tiles that overlap by half, so that what is small lies whole in one of them.
struct Tiles {
  explicit Tiles(const QImage& difference) {
    for (int top = 0; top < difference.height(); top += kSide / 2) {
      for (int left = 0; left < difference.width(); left += kSide / 2) {
        const QRect tile = QRect(left, top, kSide, kSide).intersected(difference.rect());
        int sum = 0;
        for (int y = tile.top(); y <= tile.bottom(); ++y) {
          const uchar* line = difference.constScanLine(y);
          sum = std::accumulate(line + tile.left(), line + tile.right() + 1, sum);
        }
        const double mean = static_cast<double>(sum) / (kSide * kSide);
        if (mean > kLimit) beyond += tile;
        if (mean > worst) std::tie(worst, worst_tile) = std::tie(mean, tile);
      }
    }
  }

  static constexpr int kSide = 16;
  static constexpr double kLimit = 4;

  double worst = 0;
  QRect worst_tile;
  QRegion beyond;
};

class LookTest : public WindowTest {
 protected:
  LookTest() { QApplication::setCursorFlashTime(0); }
  ~LookTest() override { QApplication::setPalette(QPalette()); }

  /// Compares with the picture that is kept, and lays down what differs. On request the picture is
  /// replaced by what is seen instead.
  static void ExpectLook(const QString& name, const QImage& seen) {
    const QString file = kKept.filePath(name + ".png");
    const QImage kept = QImage(file).convertToFormat(QImage::Format_RGB32);
    const bool comparable = kept.size() == seen.size();
    const QImage difference = comparable ? DifferenceOf(seen, kept) : QImage();
    const Tiles tiles(difference);
    RecordProperty(name.toStdString(), std::to_string(tiles.worst));
    if (comparable && tiles.beyond.isEmpty()) return;

    if (qEnvironmentVariableIsSet("MORLEK_RENEW_LOOK")) {
      ASSERT_TRUE(kKept.mkpath(".") && FewColors(seen).Picture().save(file, "PNG", 0));
      std::cout << "renewed " << file.toStdString() << "\n";
      return;
    }
    ASSERT_TRUE(kResults.mkpath("."));
    const QString result = kResults.filePath(name);
    EXPECT_TRUE(seen.save(result + ".seen.png"));
    std::string what = kept.isNull() ? "has no picture" : "has another size than its picture";
    if (comparable) {
      QImage marked = difference.convertToFormat(QImage::Format_RGB32);
      QPainter painter(&marked);
      painter.setCompositionMode(QPainter::CompositionMode_Plus);
      painter.drawImage(0, 0, marked);
      for (const QRect& part : tiles.beyond) painter.fillRect(part, QColor(0x60, 0, 0));
      painter.end();
      EXPECT_TRUE(marked.save(result + ".difference.png"));
      const QPoint place = tiles.worst_tile.topLeft();
      what = QString("differs from its picture, most at %1, %2: by %3, where %4 is the limit")
                 .arg(place.x())
                 .arg(place.y())
                 .arg(tiles.worst)
                 .arg(Tiles::kLimit)
                 .toStdString();
    }
    ADD_FAILURE() << name.toStdString() << " " << what << ". See " << result.toStdString()
                  << ".*.png; where it should look like that, scripts/renew-look keeps it.";
  }

  void ExpectWindow(const QString& name) const { ExpectLook(name, PixelsOf(*window)); }

  /// What is seen of one part of the window. A picture with less in it has more colours for each
  /// thing.
  void ExpectPart(const QString& control, const QString& name) const {
    const QWidget& part = Find(control);
    const qreal scale = window->devicePixelRatio();
    const QRectF pixels(part.mapTo(window.get(), QPointF(0, 0)) * scale,
                        QSizeF(part.size()) * scale);
    ExpectLook(name, PixelsOf(*window).copy(pixels.toAlignedRect()));
  }

  void ExpectDialogs(const QString& shade) const {
    DialogUser dialogs;
    dialogs.SetWindow(window.get());
    const auto expect_next = [](const QString& name) {
      QTimer::singleShot(0, [name] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
        ExpectLook(name, PixelsOf(*dialog));
        dialog->close();
      });
    };
    expect_next("message-" + shade);
    dialogs.ShowMessage("Your changes have been saved.", "MORLEK EDITOR", Message::Icon::kNone);
    expect_next("error-" + shade);
    dialogs.ShowMessage("The team cannot be read.", "MORLEK EDITOR", Message::Icon::kCritical);
    expect_next("question-" + shade);
    EXPECT_FALSE(dialogs.AskYesNo("Sure?\n\nIf not then click NO.", "MORLEK EDITOR"));
  }

  /// Marks of every kind: not saved, not kept, and a dot on SAVE; the focus is in one of them.
  void MarkTeam() {
    StartWithTeam();
    int column = 0;
    for (const char* text : {"J.SM1TH", "ZZ", "300", "X", "12"}) TypeInto(++column, 1, text);
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

TEST_F(LookTest, FromTheEmptyWindowToAnEditedTeam) {
  Start(std::nullopt);
  ExpectWindow("empty");
  ChooseWith("mnuOpen", ImagePath());
  ExpectWindow("opened");
  Click("Braves");
  Box(1, 7).setFocus();
  ExpectWindow("team");
  Choose("mnuMorlekHELP");
  ExpectWindow("help");
  MarkTeam();
  ExpectWindow("marks");
}

TEST_F(LookTest, Choosers) {
  StartWithTeam();
  Box(12, 17).setFocus();
  Click("Picture1(36)");
  ExpectPart("StancePanel", "faces");
  ExpectPart("Frame1", "player-in-view");
  Box(13, 17).setFocus();
  ExpectPart("StancePanel", "bodies");
  Box(14, 17).setFocus();
  ExpectPart("StancePanel", "legs");
}

TEST_F(LookTest, Dark) {
  QApplication::setPalette(theme::PaletteOf(theme::kDark));
  MarkTeam();
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
  QApplication::setPalette(theme::PaletteOf(theme::kDark));
  ExpectDialogs("dark");
}

TEST_F(LookTest, OneAndAHalfTimesAsLarge) {
  screen = QGuiApplication::screens().at(2);
  MarkTeam();
  ExpectWindow("marks-larger");
  Box(12, 17).setFocus();
  ExpectPart("StancePanel", "faces-larger");
}

}  // namespace
}  // namespace morlek
