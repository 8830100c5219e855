#include "league/new_file.h"

#include <string>

#include "image/failure.h"

namespace morlek {
namespace {

/// A path beside `path` at which nothing stands.
std::filesystem::path FreePathBeside(const Disk& disk, const std::filesystem::path& path) {
  constexpr int kTries = 100;
  for (int number = 1; number <= kTries; ++number) {
    std::filesystem::path beside = path;
    beside += ".part" + std::to_string(number);
    if (disk.look(beside) == Disk::Entry::kNone) return beside;
  }
  throw OperationFailed("no free name was found beside it");
}

void Fill(const Disk& disk, const std::filesystem::path& path,
          const std::function<void(const LineSink&)>& write) {
  Channel channel(disk.open);
  if (!channel.OpenTextOutput(path)) throw OperationFailed("could not be created");
  try {
    write([&channel](std::string_view line) { channel.WriteLine(line); });
    if (!channel.Close()) throw OperationFailed("the disk did not take all of it");
  } catch (const OperationFailed&) {
    channel.Close();
    disk.remove(path);
    throw;
  }
}

}  // namespace

NewFileResult WriteNewFile(const Disk& disk, const std::filesystem::path& path, bool replaces,
                           const std::function<void(const LineSink&)>& write) {
  const auto may_be_written = [&] {
    const Disk::Entry entry = disk.look(path);
    if (replaces && entry == Disk::Entry::kOther) {
      throw OperationFailed("what stands there is no regular file");
    }
    return replaces || entry == Disk::Entry::kNone;
  };
  if (!may_be_written()) return NewFileResult::kExists;
  const std::filesystem::path beside = FreePathBeside(disk, path);
  Fill(disk, beside, write);
  if (!may_be_written()) {
    // It has been created in the meantime.
    disk.remove(beside);
    return NewFileResult::kExists;
  }
  if (!disk.move(beside, path)) {
    disk.remove(beside);
    throw OperationFailed("could not be put in its place");
  }
  return NewFileResult::kWritten;
}

}  // namespace morlek
