// Clicks on teams in the real window, each measured until the grid has been painted.

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

double MedianOfClicks(morlek::MainWindow& window) {
  constexpr int kRounds = 40;
  std::vector<double> milliseconds;
  for (int round = 0; round < kRounds; ++round) {
    const QString team = round % 2 == 0 ? "Mets" : "Braves";
    auto* button = window.findChild<QAbstractButton*>(team);
    const auto start = std::chrono::steady_clock::now();
    button->click();
    QCoreApplication::processEvents();
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    milliseconds.push_back(time.count());
  }
  std::ranges::nth_element(milliseconds, milliseconds.begin() + kRounds / 2);
  return milliseconds.at(kRounds / 2);
}

}  // namespace

int main(int argument_count, char** arguments) {
  const QApplication application(argument_count, arguments);
  morlek::ApplyLook();
  const morlek::bench::BenchFolder folder;
  morlek::bench::SilentUser user(QString::fromStdU16String(folder.ImageOf(0).u16string()));
  morlek::MainWindow window(user);
  window.show();
  QCoreApplication::processEvents();
  QCoreApplication::processEvents();
  std::cout << MedianOfClicks(window) << '\n';
  return 0;
}
