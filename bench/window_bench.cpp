// Steps in the real window, each measured until the grid has been painted, beside what they are
// compared with.

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QTimer>
#include <ctime>
#include <functional>
#include <iostream>
#include <vector>

#include "bench_files.h"
#include "ratio_table.h"
#include "shell/content_area.h"
#include "shell/look.h"
#include "shell/main_window.h"
#include "shell/roster_frame.h"
#include "silent_user.h"
#include "typing.h"

namespace {

class PaintWatcher : public QObject {
 public:
  explicit PaintWatcher(QWidget& watched) { watched.installEventFilter(this); }

  /// The milliseconds that the processor works from a step to the next painting of the watched
  /// widget, whose look the step has to change. Other programs add nothing to them.
  double TimeOf(const std::function<void()>& step) {
    painted_ = false;
    const std::clock_t start = std::clock();
    step();
    while (!painted_) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return 1e3 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
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
  Program(const std::filesystem::path& image, const std::filesystem::path& team_file)
      : user_(QString::fromStdU16String(image.u16string()),
              QString::fromStdU16String(team_file.u16string())) {
    window_.show();
    while (window_.findChild<QWidget*>("Text1(24)") == nullptr) QCoreApplication::processEvents();
  }

  void Pick(const char* team) { window_.findChild<QAbstractButton*>(team)->click(); }
  void Choose(const char* item) { window_.findChild<QAction*>(item)->trigger(); }
  void Undo() {
    for (QAction* action : frame().actions()) {
      if (action->text() == "&Undo") action->trigger();
    }
  }
  [[nodiscard]] QWidget& frame() { return *window_.findChild<QWidget*>("Frame1"); }
  [[nodiscard]] QLineEdit& Box(const char* name) { return *frame().findChild<QLineEdit*>(name); }

 private:
  morlek::bench::SilentUser user_;
  morlek::Editor editor_{user_};
  morlek::MainWindow window_{editor_, user_};
};

/// Plain line edits at the positions of the boxes of a grid.
class PlainGrid : public QWidget {
 public:
  explicit PlainGrid(const QWidget& frame) {
    for (const auto* box : frame.findChildren<QLineEdit*>()) {
      auto* edit = new QLineEdit(this);
      edit->setGeometry(box->geometry());
      edit->setTextMargins(box->textMargins());
      edits_ << edit;
      if (box->objectName() == "Text1(24)") last_row_ = edit;
    }
    setFixedSize(frame.size());
    show();
  }

  void Show(const QStringList& texts) {
    for (qsizetype place = 0; place < texts.size(); ++place) edits_[place]->setText(texts[place]);
  }
  [[nodiscard]] QWidget& last_row() { return *last_row_; }

 private:
  QList<QLineEdit*> edits_;
  QLineEdit* last_row_ = nullptr;
};

/// The grid in a window of its own. Its editor has no image, so that nothing is previewed or
/// marked, and nothing around the grid follows what is typed.
class BareWindow : public QMainWindow {
 public:
  explicit BareWindow(const std::filesystem::path& team_file) {
    editor_.ImportTeam(team_file);
    auto* area = new morlek::ContentArea(this);
    setCentralWidget(area);
    auto* frame = new morlek::RosterFrame(editor_, area->widget());
    frame->show();
    area->widget()->setFixedSize(frame->geometry().right(), morlek::kContentHeight);
    setFixedSize(area->FitInto(morlek::kContentHeight));
    show();
  }

  [[nodiscard]] QLineEdit& Box(const char* name) { return *findChild<QLineEdit*>(name); }

 private:
  morlek::bench::SilentUser nobody_{{}, {}};
  morlek::Editor editor_{nobody_};
};

QStringList TextsOf(const QWidget& frame) {
  QStringList texts;
  for (const auto* box : frame.findChildren<QLineEdit*>()) texts << box->text();
  return texts;
}

using Step = std::function<double(int round)>;

/// Compares two steps that take turns, and prints the row. After an even number of rounds the first
/// one changes the grid again.
bool PrintSteps(const char* what, const Step& step, const Step& other, double limit,
                int rounds = 100) {
  std::vector<double> times;
  std::vector<double> other_times;
  for (int round = 0; round < rounds; ++round) {
    times.push_back(step(round));
    other_times.push_back(other(round));
  }
  return morlek::bench::PrintRow(what, morlek::bench::MedianRatio(times, other_times), limit);
}

bool PrintAllSteps(const morlek::bench::BenchFolder& folder) {
  const std::filesystem::path team_file = folder.path("team.txt");
  Program program(folder.ImageOf(morlek::bench::kGameBytes), team_file);
  PaintWatcher last_row(program.Box("Text1(24)"));
  std::cout << "The first click on a team, which also shows the grid, took "
            << last_row.TimeOf([&] { program.Pick("Mets"); }) << " ms of the processor.\n";

  const auto team_of = [](int round) { return round % 2 == 0 ? "Braves" : "Mets"; };
  const auto click = [&](int round) {
    return last_row.TimeOf([&] { program.Pick(team_of(round)); });
  };
  const QStringList mets = TextsOf(program.frame());
  click(0);
  const QStringList braves = TextsOf(program.frame());
  program.Choose("mnuExport");
  click(1);

  PlainGrid plain(program.frame());
  PaintWatcher plain_row(plain.last_row());
  bool within = PrintSteps(
      "click on a team to painted grid / plain line edits", click,
      [&](int round) {
        return plain_row.TimeOf([&] { plain.Show(round % 2 == 0 ? braves : mets); });
      },
      1.3);

  within &= PrintSteps(
      "undo of a change of team / a click on a team",
      [&](int /*round*/) {
        click(0);
        return last_row.TimeOf([&] { program.Undo(); });
      },
      [&](int /*round*/) {
        click(0);
        return click(1);
      },
      1.2);

  Program huge(folder.ImageOf(morlek::bench::kHugeBytes), team_file);
  PaintWatcher huge_row(huge.Box("Text1(24)"));
  const auto click_huge = [&](int round) {
    return huge_row.TimeOf([&] { huge.Pick(team_of(round)); });
  };
  click_huge(1);
  within &= PrintSteps("click with 4 GiB / with 1.5 MiB", click_huge, click, 1.1);

  // The base is what any window does for a character: the line edit takes it, the history notes it,
  // and the box is painted in a scrolling area. The preview, the marks and the views that follow
  // them are left to the measured side.
  BareWindow bare(team_file);
  QLineEdit& box = program.Box("Text3(7)");
  QLineEdit& bare_box = bare.Box("Text3(7)");
  PaintWatcher number(box);
  PaintWatcher bare_number(bare_box);
  const auto digit_of = [](int round) { return QString::number(round % 9 + 1); };
  within &= PrintSteps(
      "a typed character to its painting / in a bare window",
      [&](int round) {
        return number.TimeOf([&] { morlek::bench::TypeOver(box, digit_of(round)); });
      },
      [&](int round) {
        return bare_number.TimeOf([&] { morlek::bench::TypeOver(bare_box, digit_of(round)); });
      },
      1.2, 1000);

  return PrintSteps(
             "import to painted grid / a click on a team",
             [&](int /*round*/) { return last_row.TimeOf([&] { program.Choose("mnuImport"); }); },
             [&](int /*round*/) { return click(1); }, 1.3) &&
         within;
}

}  // namespace

int main(int argument_count, char** arguments) {
  const QApplication application(argument_count, arguments);
  morlek::ApplyLook();
  // A step that paints nothing would never end.
  QTimer::singleShot(std::chrono::minutes(2), [] { std::_Exit(1); });
  return PrintAllSteps(morlek::bench::BenchFolder()) ? 0 : 1;
}
