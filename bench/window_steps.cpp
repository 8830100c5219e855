// Steps in the real window, each measured until the grid has been painted, beside what they are
// compared with. Prints one figure a line: the milliseconds of the very first click on a team, and
// then ratios in the order of the rows of window_bench.

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <algorithm>
#include <chrono>
#include <functional>
#include <iostream>
#include <stdexcept>
#include <vector>

#include "bench_files.h"
#include "shell/look.h"
#include "shell/main_window.h"
#include "shell/roster_frame.h"
#include "silent_user.h"

namespace {

using morlek::bench::BenchFolder;

class PaintWatcher : public QObject {
 public:
  explicit PaintWatcher(QWidget& watched) { watched.installEventFilter(this); }

  /// The milliseconds from a step to the next painting of the watched widget, whose look the step
  /// has to change.
  double TimeOf(const std::function<void()>& step) {
    painted_ = false;
    const auto start = std::chrono::steady_clock::now();
    step();
    while (!painted_) {
      QCoreApplication::processEvents();
      if (std::chrono::steady_clock::now() > start + std::chrono::seconds(5)) {
        throw std::runtime_error("a step that painted nothing");
      }
    }
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    return time.count();
  }

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    painted_ |= event->type() == QEvent::Paint;
    return false;
  }

 private:
  bool painted_ = false;
};

/// The whole program with an image, its team grid in view.
class Program {
 public:
  explicit Program(const std::filesystem::path& image)
      : user_(QString::fromStdU16String(image.u16string())) {
    window.show();
    while (window.findChild<QWidget*>("Text1(24)") == nullptr) QCoreApplication::processEvents();
  }

  void Pick(const char* team) { window.findChild<QAbstractButton*>(team)->click(); }
  [[nodiscard]] QLineEdit& Box(const char* name) { return *window.findChild<QLineEdit*>(name); }

 private:
  morlek::bench::SilentUser user_;

 public:
  morlek::Editor editor{user_};
  morlek::MainWindow window{editor, user_};
};

/// A grid that shows a document, and marks nothing.
class PlainGrid : public QWidget {
 public:
  explicit PlainGrid(morlek::RosterDocument& document) : frame_(document, this) {
    resize(frame_.geometry().bottomRight().x() + 1, frame_.geometry().bottomRight().y() + 1);
    show();
  }
  [[nodiscard]] QLineEdit& Box(const char* name) { return *frame_.findChild<QLineEdit*>(name); }

 private:
  morlek::RosterFrame frame_;
};

/// The median of how long one step takes against another, both by turns.
double MedianRatio(const std::function<double(int)>& step,
                   const std::function<double(int)>& other) {
  constexpr int kRounds = 42;  // even: after the last round the first one changes the grid again
  std::vector<double> ratios;
  for (int round = 0; round < kRounds; ++round) {
    const double time = step(round);
    ratios.push_back(time / other(round));
  }
  std::ranges::nth_element(ratios, ratios.begin() + kRounds / 2);
  return ratios.at(kRounds / 2);
}

/// Types a digit over what the box holds.
void TypeOver(QLineEdit& box, int round) {
  box.selectAll();
  const QString digit = QString::number(round % 9 + 1);
  QKeyEvent press(QEvent::KeyPress, Qt::Key_0, Qt::NoModifier, digit);
  QApplication::sendEvent(&box, &press);
}

}  // namespace

int main(int argument_count, char** arguments) {
  const QApplication application(argument_count, arguments);
  morlek::ApplyLook();
  const BenchFolder folder;
  Program program(folder.ImageOf(morlek::bench::kGameBytes));
  PaintWatcher last_row(program.Box("Text1(24)"));
  std::cout << last_row.TimeOf([&] { program.Pick("Mets"); }) << '\n';

  const auto team_of = [](int round) { return round % 2 == 0 ? "Braves" : "Mets"; };
  const auto click = [&](int round) {
    return last_row.TimeOf([&] { program.Pick(team_of(round)); });
  };
  // The same texts into line edits that nothing else is done for.
  std::vector<morlek::RosterGrid> teams;
  for (const int round : {0, 1}) {
    click(round);
    teams.push_back(program.editor.document().grid());
    if (!program.editor.ExportTeam(folder.path(team_of(round)))) return 1;
  }
  morlek::RosterDocument document;
  document.Restart(teams.front());
  PlainGrid plain(document);
  PaintWatcher plain_row(plain.Box("Text1(24)"));
  const auto show_plainly = [&](int round) {
    return plain_row.TimeOf(
        [&] { document.Restart(teams.at(static_cast<std::size_t>(round + 1) % 2)); });
  };
  std::cout << MedianRatio(click, show_plainly) << '\n';

  Program huge(folder.ImageOf(morlek::bench::kHugeBytes));
  PaintWatcher huge_row(huge.Box("Text1(24)"));
  const auto click_huge = [&](int round) {
    return huge_row.TimeOf([&] { huge.Pick(team_of(round)); });
  };
  std::cout << MedianRatio(click_huge, click) << '\n';

  // A window whose editor knows nothing of its image marks nothing.
  const std::filesystem::path lost_image = folder.ImageOf(morlek::bench::kGameBytes + 1);
  Program unmarked(lost_image);
  std::filesystem::remove(lost_image);
  unmarked.Pick("Braves");
  unmarked.window.findChild<QWidget*>("Frame1")->show();
  unmarked.editor.ImportTeam(folder.path("Braves"));

  QLineEdit& number = program.Box("Text3(7)");
  QLineEdit& unmarked_number = unmarked.Box("Text3(7)");
  PaintWatcher number_watcher(number);
  PaintWatcher unmarked_number_watcher(unmarked_number);
  const auto type = [&](int round) {
    return number_watcher.TimeOf([&] { TypeOver(number, round); });
  };
  const auto type_unmarked = [&](int round) {
    return unmarked_number_watcher.TimeOf([&] { TypeOver(unmarked_number, round); });
  };
  std::cout << MedianRatio(type, type_unmarked) << '\n';

  const auto import = [&](int /*round*/) {
    return last_row.TimeOf([&] { program.editor.ImportTeam(folder.path("Braves")); });
  };
  std::cout << MedianRatio(import, [&](int /*round*/) { return click(1); }) << '\n';
  return 0;
}
