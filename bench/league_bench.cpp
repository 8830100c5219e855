// Whole seasons against loads of their teams, and the process of an export against one that only
// reads.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <span>
#include <sstream>
#include <string>
#include <vector>

#include "bench_files.h"
#include "cli/run.h"
#include "image/team_directory.h"
#include "ratio_table.h"
#include "team/team_loader.h"

namespace morlek::bench {
namespace {

const BenchFolder& Folder() {
  static const BenchFolder folder;
  return folder;
}

std::string Image() { return Folder().ImageOf(kGameBytes).string(); }
std::string Season() { return Folder().path("season.csv").string(); }

void LoadAllTeams(benchmark::State& state) {
  const std::filesystem::path path = Image();
  Channel channel;
  CartridgeImage image(channel);
  CodecState codecs;
  RosterGrid grid;
  for (auto _ : state) {
    for (const Team& team : kTeamDirectory) {
      benchmark::DoNotOptimize(LoadTeam(image, {path, team.base}, codecs, grid));
    }
  }
}

/// Runs the program within this process and gives its messages when it fails.
std::string FailureOf(const std::vector<std::string>& arguments) {
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream messages;
  const bool is_done =
      cli::Run(arguments, RealDisk(), {in, out, messages}) == cli::ExitStatus::kDone;
  return is_done ? "" : messages.str();
}

void RunLeague(benchmark::State& state, const std::vector<std::string>& arguments) {
  for (auto _ : state) {
    const std::string failure = FailureOf(arguments);
    if (!failure.empty()) state.SkipWithError(failure.c_str());
  }
}

/// A process from its start to its end; what it prints goes nowhere.
void RunProcess(benchmark::State& state, std::vector<std::string> arguments) {
  std::vector<char*> texts;
  texts.reserve(arguments.size() + 1);
  for (std::string& each : arguments) texts.push_back(each.data());
  texts.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  for (auto _ : state) {
    pid_t process = 0;
    int status = -1;
    if (posix_spawn(&process, texts.front(), &actions, nullptr, texts.data(), environ) != 0 ||
        waitpid(process, &status, 0) != process || status != 0) {
      state.SkipWithError("the process failed");
    }
  }
  posix_spawn_file_actions_destroy(&actions);
}

constexpr std::array<Ratio, 3> kRatios = {{
    {"export a season / load its 28 teams", "export", "load_28", 1.3},
    {"import an unchanged season / export it", "import", "export", 2.0},
    {"process of an export / one that only reads", "export_process", "bare_process", 3.0},
}};

}  // namespace
}  // namespace morlek::bench

int main(int argument_count, char** arguments) {
  using namespace morlek::bench;
  const std::filesystem::path own = *arguments;
  const std::string bare_reader = (own.parent_path() / "bare_reader").string();
  const std::string league = (own.parent_path() / ".." / "src" / "morlek-league").string();
  benchmark::Initialize(&argument_count, arguments);
  // Repetitions are in random order, and the first may be an import.
  if (!FailureOf({"export", Image(), Season()}).empty()) return 1;
  const auto add = [](const char* name, auto run) {
    benchmark::RegisterBenchmark(name, run)
        ->Repetitions(31)
        ->ReportAggregatesOnly()
        ->UseRealTime()
        ->ComputeStatistics("least", [](const std::vector<double>& times) {
          return *std::ranges::min_element(times);
        });
  };
  add("load_28", LoadAllTeams);
  add("export", [](benchmark::State& state) {
    RunLeague(state, {"export", "--force", Image(), Season()});
  });
  add("import", [](benchmark::State& state) { RunLeague(state, {"import", Season(), Image()}); });
  add("bare_process", [&](benchmark::State& state) { RunProcess(state, {bare_reader, Image()}); });
  add("export_process", [&](benchmark::State& state) {
    RunProcess(state, {league, "export", Image()});
  });
  LeastCollector collector;
  benchmark::RunSpecifiedBenchmarks(&collector);
  return collector.PrintRows(kRatios) ? 0 : 1;
}
