#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "cli/run.h"
#include "support/editor_fixture.h"

namespace morlek {

inline constexpr char kSeason[] = "season.csv";

/// Whole runs of morlek-league over the image in memory, whose Braves and Orioles have the plain
/// record.
class LeagueTest : public TeamTest {
 protected:
  LeagueTest() {
    using Path = std::filesystem::path;
    whole_files.open = disk.Opener();
    whole_files.look = [this](const Path& path) {
      return disk.files.contains(path) ? Disk::Entry::kFile : Disk::Entry::kNone;
    };
    whole_files.size = [this](const Path& path) -> std::optional<std::uintmax_t> {
      const auto found = disk.files.find(path);
      if (found == disk.files.end()) return std::nullopt;
      return found->second.size();
    };
    whole_files.move = [this](const Path& from, const Path& to) {
      if (disk.FailsNow()) return false;
      disk.files[to] = disk.files.at(from);
      disk.files.erase(from);
      return true;
    };
    whole_files.remove = [this](const Path& path) { disk.files.erase(path); };
  }

  /// Runs the program and gives its exit status; what it printed is in `out` and `messages_text`.
  int Run(std::vector<std::string> arguments, const std::string& standard_input = {}) {
    std::istringstream in(standard_input);
    std::ostringstream out_stream;
    std::ostringstream message_stream;
    disk.reads.clear();
    disk.writes.clear();
    const auto status =
        cli::Run(std::move(arguments), whole_files, {in, out_stream, message_stream});
    out = out_stream.str();
    messages_text = message_stream.str();
    return static_cast<int>(status);
  }

  int Import(const std::string& table) { return Run({"import", "-", kImage}, table); }

  /// The table of the image as it stands.
  std::string Exported() {
    EXPECT_EQ(Run({"export", kImage}), 0) << messages_text;
    return out;
  }

  void PutText(const std::string& path, const std::string& text) {
    disk.files[path].assign(text.begin(), text.end());
  }
  [[nodiscard]] std::string TextOf(const std::string& path) {
    const auto& bytes = disk.files.at(path);
    return {bytes.begin(), bytes.end()};
  }

  /// The bytes at which the image differs from an earlier one, by position and value.
  [[nodiscard]] std::vector<ByteAccess> ChangesSince(const std::vector<std::uint8_t>& earlier) {
    std::vector<ByteAccess> changes;
    const std::vector<std::uint8_t>& now = file();
    auto [old_place, new_place] = std::ranges::mismatch(earlier, now);
    while (new_place != now.end()) {
      changes.push_back({new_place - now.begin() + 1, *new_place});
      const auto next = std::ranges::mismatch(++old_place, earlier.end(), ++new_place, now.end());
      old_place = next.in1;
      new_place = next.in2;
    }
    return changes;
  }

  Disk whole_files;
  std::string out;
  std::string messages_text;
};

}  // namespace morlek
