// Clicks on teams in the real window, each measured until the grid has been painted. Prints the
// milliseconds of the first click, of a later one, and of a later one with an image of 4 GiB.

#include <QAbstractButton>
#include <QApplication>
#include <algorithm>
#include <chrono>
#include <iostream>
#include <vector>

#include "bench_files.h"
#include "shell/look.h"
#include "shell/main_window.h"
#include "silent_user.h"

namespace {

class PaintWatcher : public QObject {
 public:
  bool painted = false;

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    painted |= event->type() == QEvent::Paint;
    return false;
  }
};

struct Clicks {
  double first = 0;
  double later = 0;
};

Clicks MeasureClicks(const std::filesystem::path& image) {
  constexpr int kRounds = 41;
  morlek::bench::SilentUser user(QString::fromStdU16String(image.u16string()));
  morlek::Editor editor(user);
  morlek::MainWindow window(editor, user);
  window.show();
  QWidget* last_box = nullptr;
  while (last_box == nullptr) {
    QCoreApplication::processEvents();
    last_box = window.findChild<QWidget*>("Text14(24)");
  }
  PaintWatcher watcher;
  last_box->installEventFilter(&watcher);

  std::vector<double> milliseconds;
  for (int round = 0; round < kRounds; ++round) {
    auto* button = window.findChild<QAbstractButton*>(round % 2 == 0 ? "Mets" : "Braves");
    watcher.painted = false;
    const auto start = std::chrono::steady_clock::now();
    button->click();
    while (!watcher.painted) QCoreApplication::processEvents();
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    milliseconds.push_back(time.count());
  }
  const double first = milliseconds.front();
  std::ranges::nth_element(milliseconds, milliseconds.begin() + kRounds / 2);
  return {first, milliseconds.at(kRounds / 2)};
}

}  // namespace

int main(int argument_count, char** arguments) {
  const QApplication application(argument_count, arguments);
  morlek::ApplyLook();
  const morlek::bench::BenchFolder folder;
  const Clicks usual = MeasureClicks(folder.ImageOf(morlek::bench::kGameBytes));
  const Clicks huge = MeasureClicks(folder.ImageOf(morlek::bench::kHugeBytes));
  std::cout << usual.first << ' ' << usual.later << ' ' << huge.later << '\n';
  return 0;
}
