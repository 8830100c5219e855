// Starts the window programs beside it alternately and prints how their start and memory compare.
// It must not link the toolkit: the system counts the memory of a program as that of each it
// starts.

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
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

void RunOnce(const std::filesystem::path& program, Measured& measured,
             std::vector<std::string> words = {}) {
  const std::string name = program.string();
  words.insert(words.begin(), name);
  std::vector<char*> arguments;
  arguments.reserve(words.size() + 1);
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  const auto start = std::chrono::steady_clock::now();
  pid_t process = 0;
  if (posix_spawn(&process, name.c_str(), nullptr, nullptr, arguments.data(), environ) != 0) {
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

}  // namespace

int main(int /*argument_count*/, char** arguments) {
  constexpr int kRounds = 31;
  using morlek::bench::Median;
  using morlek::bench::PrintRow;
  const std::filesystem::path folder = std::filesystem::path(arguments[0]).parent_path();
  const morlek::bench::BenchFolder files;
  const std::string image = files.ImageOf(morlek::bench::kGameBytes).string();
  Measured word;
  Measured editor;
  Measured team;
  Measured day;
  for (int round = 0; round < kRounds; ++round) {
    RunOnce(folder / "word_window", word);
    RunOnce(folder / "start_editor", editor);
    RunOnce(folder / "start_editor", team, {image});
    RunOnce(folder / "start_editor", day, {image, "day"});
  }
  const double word_memory = Median(word.mebibytes);
  const double editor_memory = Median(editor.mebibytes);
  const double team_memory = Median(team.mebibytes);
  const double ratio = morlek::bench::MedianRatio(editor.milliseconds, word.milliseconds);
  bool within = PrintRow("start to painted window / a window with one word", ratio, 1.3);
  within &= PrintRow("peak memory above that window, MiB", editor_memory - word_memory, 10);
  within &= PrintRow("the same with a team on the screen, MiB", team_memory - word_memory, 10);
  within &= PrintRow("peak memory of a day of 28 teams above that of one, MiB",
                     Median(day.mebibytes) - team_memory, 2);
  std::cout << "The window with one word took " << Median(word.milliseconds) << " ms and "
            << word_memory << " MiB, the editor " << Median(editor.milliseconds) << " ms and "
            << editor_memory << " MiB.\n";
  return within ? 0 : 1;
}
