#pragma once

#include <filesystem>
#include <optional>

#include "league/disk.h"
#include "league/season.h"

namespace morlek {

/// Reads the file of a season as ReadSeason does. Throws OperationFailed when it cannot be opened
/// or read.
[[nodiscard]] std::optional<Season> ReadSeasonFile(const Disk& disk,
                                                   const std::filesystem::path& path,
                                                   Complaints& complaints);

/// Reads the season of an image or of a file, whichever stands at `path`. When it is neither, the
/// complaints are about the one that it is likely meant to be. Throws as above.
[[nodiscard]] std::optional<Season> ReadImageOrFile(const Disk& disk,
                                                    const std::filesystem::path& path,
                                                    Complaints& complaints);

}  // namespace morlek
