#pragma once

#include <filesystem>
#include <functional>

#include "league/disk.h"
#include "league/season_writer.h"

namespace morlek {

/// The outcome of writing a new file.
enum class NewFileResult {
  kWritten,
  kExists,  // something stands there already, and stays as it is
};

/// Writes a file of lines that end in a carriage return and a line feed: under another name beside
/// it, which then becomes its own, so that a failure leaves at `path` what stood there. An existing
/// file is replaced only when `replaces` says so, and anything but a regular file never.
/// `write` gives the lines to its sink. Throws OperationFailed when the file cannot be written, and
/// what `write` throws.
[[nodiscard]] NewFileResult WriteNewFile(const Disk& disk, const std::filesystem::path& path,
                                         bool replaces,
                                         const std::function<void(const LineSink&)>& write);

}  // namespace morlek
