// Loads, saves, exports and imports against the bare system calls that they cannot do without.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "bench_files.h"
#include "image/team_directory.h"
#include "ratio_table.h"
#include "team/save_preview.h"
#include "team/team_loader.h"
#include "team/team_saver.h"
#include "textfile/team_export.h"
#include "textfile/team_import.h"

namespace morlek::bench {
namespace {

/// Records the position of every single-byte access of an operation.
class CountingFile : public File, private std::streambuf {
 public:
  explicit CountingFile(std::vector<std::int64_t>& positions) : positions_(positions) {}

  std::streambuf& bytes() override { return *this; }
  bool Close() override { return true; }

 protected:
  pos_type seekpos(pos_type position, std::ios_base::openmode /*which*/) override {
    positions_.push_back(std::streamoff(position));
    return position;
  }
  int_type underflow() override { return 0; }
  int_type overflow(int_type character) override { return traits_type::not_eof(character); }

 private:
  std::vector<std::int64_t>& positions_;
};

const BenchFolder& Folder() {
  static const BenchFolder folder;
  return folder;
}

/// The Braves of an image, loaded.
struct LoadedTeam {
  explicit LoadedTeam(std::uintmax_t image_bytes)
      : location{Folder().ImageOf(image_bytes), FindTeam("Braves")->base} {
    Load();
  }

  void Load() { known = LoadTeam(image, location, state, grid).read; }
  void Save() { benchmark::DoNotOptimize(SaveTeam(image, location, grid, state, listener)); }

  EncodingListener listener;
  Channel channel;
  CartridgeImage image{channel};
  RecordLocation location;
  CodecState state;
  RosterGrid grid;
  RecordBytes known;
};

/// The offsets that one load or save of a team accesses, in its order.
std::vector<std::int64_t> OffsetsOf(bool save) {
  std::vector<std::int64_t> offsets;
  LoadedTeam loaded(kGameBytes);
  Channel channel([&offsets](const auto& /*path*/, auto /*mode*/) {
    return std::make_unique<CountingFile>(offsets);
  });
  CartridgeImage image(channel);
  if (save) {
    static_cast<void>(SaveTeam(image, loaded.location, loaded.grid, loaded.state, loaded.listener));
  } else {
    static_cast<void>(LoadTeam(image, loaded.location, loaded.state, loaded.grid));
  }
  return offsets;
}

void BareReads(benchmark::State& state) {
  const std::vector<std::int64_t> offsets = OffsetsOf(false);
  const std::string image = Folder().ImageOf(kGameBytes).string();
  for (auto _ : state) {
    const int file = open(image.c_str(), O_RDWR | O_CLOEXEC);
    std::uint8_t byte = 0;
    for (const std::int64_t offset : offsets) {
      benchmark::DoNotOptimize(pread(file, &byte, 1, offset));
    }
    close(file);
  }
  state.counters["calls"] = static_cast<double>(offsets.size());
}

void BareWrites(benchmark::State& state) {
  const std::vector<std::int64_t> offsets = OffsetsOf(true);
  // The very file that is saved into: how long a write takes depends on how the system holds a file
  // in memory. It writes what the file holds already.
  const std::string image = Folder().ImageOf(kGameBytes).string();
  std::vector<std::uint8_t> bytes(offsets.size());
  const int read_file = open(image.c_str(), O_RDONLY | O_CLOEXEC);
  for (std::size_t place = 0; place < offsets.size(); ++place) {
    benchmark::DoNotOptimize(pread(read_file, &bytes.at(place), 1, offsets.at(place)));
  }
  close(read_file);
  for (auto _ : state) {
    const int file = open(image.c_str(), O_RDWR | O_CLOEXEC);
    for (std::size_t place = 0; place < offsets.size(); ++place) {
      benchmark::DoNotOptimize(pwrite(file, &bytes[place], 1, offsets[place]));
    }
    close(file);
  }
  state.counters["calls"] = static_cast<double>(offsets.size());
}

void Load(benchmark::State& state, std::uintmax_t image_bytes) {
  LoadedTeam loaded(image_bytes);
  for (auto _ : state) loaded.Load();
}

void Save(benchmark::State& state, std::uintmax_t image_bytes) {
  LoadedTeam loaded(image_bytes);
  for (auto _ : state) loaded.Save();
}

void Preview(benchmark::State& state) {
  const LoadedTeam loaded(kGameBytes);
  for (auto _ : state) {
    benchmark::DoNotOptimize(SavePreview(loaded.grid, loaded.state, loaded.known));
  }
}

std::string ExportedText() {
  LoadedTeam loaded(kGameBytes);
  const auto path = Folder().path("team.txt");
  static_cast<void>(ExportTeamData(loaded.channel, path, loaded.grid));
  std::string text(std::filesystem::file_size(path), '\0');
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (read(file, text.data(), text.size()) != static_cast<ssize_t>(text.size())) text.clear();
  close(file);
  return text;
}

/// Writes the same bytes line by line, as an export must to notice a full disk in time.
void BareExport(benchmark::State& state) {
  const std::string text = ExportedText();
  const std::string path = Folder().path("bare.txt").string();
  for (auto _ : state) {
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    for (std::size_t from = 0; from < text.size();) {
      const std::size_t end = text.find('\n', from) + 1;
      benchmark::DoNotOptimize(write(file, text.data() + from, end - from));
      from = end;
    }
    close(file);
  }
}

void Export(benchmark::State& state) {
  LoadedTeam loaded(kGameBytes);
  const auto path = Folder().path("exported.txt");
  for (auto _ : state) {
    benchmark::DoNotOptimize(ExportTeamData(loaded.channel, path, loaded.grid));
  }
}

/// Reads the same bytes and puts them into 350 texts of a grid, which is the least to be done.
void BareImport(benchmark::State& state) {
  const std::string text = ExportedText();
  const std::string path = Folder().path("team.txt").string();
  RosterGrid grid;
  std::array<char, 8192> buffer{};
  for (auto _ : state) {
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    while (read(file, buffer.data(), buffer.size()) > 0) {
    }
    close(file);
    ClearRosterGrid(grid);
    for (int row = 0; row < kSlotCount; ++row) {
      for (const BlockColumn& column : BlockOf(row).columns) {
        grid.SetText({column.column, row}, std::string(buffer.data(), 4));
      }
    }
  }
}

void Import(benchmark::State& state) {
  LoadedTeam loaded(kGameBytes);
  ExportedText();
  const auto path = Folder().path("team.txt");
  for (auto _ : state) {
    benchmark::DoNotOptimize(ImportTeamData(loaded.channel, path, loaded.grid));
  }
}

constexpr std::array<Ratio, 7> kRatios = {{
    {"load a team / the same single-byte reads", "load", "bare_reads", 2.5},
    {"save a team / the same single-byte writes", "save", "bare_writes", 2.5},
    {"preview of a save / load a team", "preview", "load", 0.5},
    {"load from 4 GiB / from 1.5 MiB", "load_4gib", "load", 1.1},
    {"save into 4 GiB / into 1.5 MiB", "save_4gib", "save", 1.1},
    {"export / writing the same lines", "export", "bare_export", 2.0},
    {"import / reading the same bytes into a grid", "import", "bare_import", 2.5},
}};

}  // namespace
}  // namespace morlek::bench

int main(int argument_count, char** arguments) {
  using namespace morlek::bench;
  benchmark::Initialize(&argument_count, arguments);
  const auto add = [](const char* name, auto run) {
    benchmark::RegisterBenchmark(name, run)
        ->Repetitions(31)
        ->ReportAggregatesOnly()
        ->UseRealTime()
        ->ComputeStatistics("least", [](const std::vector<double>& times) {
          return *std::ranges::min_element(times);
        });
  };
  add("bare_reads", BareReads);
  add("load", [](benchmark::State& state) { Load(state, kGameBytes); });
  add("load_4gib", [](benchmark::State& state) { Load(state, kHugeBytes); });
  add("preview", Preview);
  add("bare_writes", BareWrites);
  add("save", [](benchmark::State& state) { Save(state, kGameBytes); });
  add("save_4gib", [](benchmark::State& state) { Save(state, kHugeBytes); });
  add("bare_export", BareExport);
  add("export", Export);
  add("bare_import", BareImport);
  add("import", Import);
  LeastCollector collector;
  benchmark::RunSpecifiedBenchmarks(&collector);
  return collector.PrintRows(kRatios) ? 0 : 1;
}
