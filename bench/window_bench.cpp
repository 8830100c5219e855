// Runs the window programs beside it by turns and prints how their start and memory compare.

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
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

struct Clicks {
  double first = 0;
  double later = 0;
  double huge_image = 0;
};

Clicks OutputOf(const std::filesystem::path& program) {
  FILE* pipe = popen(program.c_str(), "r");
  Clicks clicks;
  if (pipe == nullptr ||
      std::fscanf(pipe, "%lf %lf %lf", &clicks.first, &clicks.later, &clicks.huge_image) != 3) {
    throw std::runtime_error("no figures from " + program.string());
  }
  pclose(pipe);
  return clicks;
}

}  // namespace

int main(int /*argument_count*/, char** arguments) {
  constexpr int kRounds = 21;
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
  const double empty_start = Median(empty.milliseconds);
  const double editor_start = Median(editor.milliseconds);
  const double empty_memory = Median(empty.mebibytes);
  const double editor_memory = Median(editor.mebibytes);
  const double team_memory = Median(team.mebibytes);
  using morlek::bench::PrintRow;
  bool within = PrintRow("start to painted window / empty window", editor_start / empty_start, 1.6);
  within &= PrintRow("peak memory above the empty window, MiB", editor_memory - empty_memory, 10);
  within &= PrintRow("the same with a team on the screen, MiB", team_memory - empty_memory, 10);
  const Clicks clicks = OutputOf(folder / "click_team");
  within &= PrintRow("click on a team to painted grid, ms", clicks.later, 10);
  within &= PrintRow("the same with 4 GiB / with 1.5 MiB", clicks.huge_image / clicks.later, 1.1);
  std::cout << "\nThe empty window took " << empty_start << " ms and " << empty_memory
            << " MiB, the editor " << editor_start << " ms and " << editor_memory
            << " MiB; the first\nclick on a team, which also shows the grid, " << clicks.first
            << " ms.\n";
  return within ? 0 : 1;
}
