// Runs the window programs beside it by turns and prints how their start and memory compare.

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench_files.h"
#include "ratio_table.h"

namespace {

struct Measured {
  std::vector<double> milliseconds;
  std::vector<double> mebibytes;
};

double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::ranges::nth_element(values, middle);
  return *middle;
}

void RunOnce(const std::filesystem::path& program, Measured& measured, std::string argument = {}) {
  std::string name = program.string();
  char* const arguments[] = {name.data(), argument.empty() ? nullptr : argument.data(), nullptr};
  const auto start = std::chrono::steady_clock::now();
  pid_t process = 0;
  if (posix_spawn(&process, name.c_str(), nullptr, nullptr, arguments, environ) != 0) {
    throw std::runtime_error("cannot start " + name);
  }
  int status = 0;
  rusage usage{};
  wait4(process, &status, 0, &usage);
  if (status != 0) throw std::runtime_error(name + " failed");
  const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
  measured.milliseconds.push_back(time.count());
  measured.mebibytes.push_back(static_cast<double>(usage.ru_maxrss) / 1024);
}

/// A row of the table whose figure the program window_steps prints.
struct Step {
  const char* name;
  double limit;
};

constexpr std::array<Step, 4> kSteps = {{
    {"click on a team to painted grid / plain line edits", 1.3},
    {"click with 4 GiB / with 1.5 MiB", 1.1},
    {"a typed character to its painting / without marks", 1.3},
    {"import to painted grid / a click on a team", 1.3},
}};

/// The figures that a program prints.
std::vector<double> FiguresOf(const std::filesystem::path& program) {
  FILE* pipe = popen(program.c_str(), "r");
  std::vector<double> figures;
  double figure = 0;
  while (pipe != nullptr && std::fscanf(pipe, "%lf", &figure) == 1) figures.push_back(figure);
  if (pipe != nullptr) pclose(pipe);
  if (figures.size() != kSteps.size() + 1) {
    throw std::runtime_error("no figures from " + program.string());
  }
  return figures;
}

/// The median of how long each start took against the one beside it.
double MedianRatio(const std::vector<double>& values, const std::vector<double>& others) {
  std::vector<double> ratios;
  for (std::size_t round = 0; round < values.size(); ++round) {
    ratios.push_back(values[round] / others[round]);
  }
  return Median(ratios);
}

}  // namespace

int main(int /*argument_count*/, char** arguments) {
  constexpr int kRounds = 31;
  const std::filesystem::path folder = std::filesystem::path(arguments[0]).parent_path();
  Measured empty;
  Measured editor;
  Measured team;
  const morlek::bench::BenchFolder files;
  const std::string image = files.ImageOf(morlek::bench::kGameBytes).string();
  for (int round = 0; round < kRounds; ++round) {
    RunOnce(folder / "empty_window", empty);
    RunOnce(folder / "start_editor", editor);
    RunOnce(folder / "start_editor", team, image);
  }
  const double empty_memory = Median(empty.mebibytes);
  const double editor_memory = Median(editor.mebibytes);
  const double team_memory = Median(team.mebibytes);
  using morlek::bench::PrintRow;
  bool within = PrintRow("start to painted window / empty window",
                         MedianRatio(editor.milliseconds, empty.milliseconds), 1.5);
  within &= PrintRow("peak memory above the empty window, MiB", editor_memory - empty_memory, 10);
  within &= PrintRow("the same with a team on the screen, MiB", team_memory - empty_memory, 10);
  const std::vector<double> figures = FiguresOf(folder / "window_steps");
  for (std::size_t row = 0; row < kSteps.size(); ++row) {
    within &= PrintRow(kSteps.at(row).name, figures.at(row + 1), kSteps.at(row).limit);
  }
  std::cout << "\nThe empty window took " << Median(empty.milliseconds) << " ms and "
            << empty_memory << " MiB, the editor " << Median(editor.milliseconds) << " ms and "
            << editor_memory << " MiB; the first\nclick on a team, which also shows the grid, "
            << figures.front() << " ms.\n";
  return within ? 0 : 1;
}
