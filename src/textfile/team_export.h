#pragma once

#include <filesystem>

#include "image/channel.h"
#include "team/roster_grid.h"

namespace morlek {

/// The result of an export.
enum class ExportResult {
  kWritten,
  kNotOpened,   // channel 1 and the file are as they were
  kEndedEarly,  // a line could not be written: channel 1 stays open, the file partly written
  kNotClosed,   // channel 1 is closed, but some of the file may be lost
};

/// Writes the grid to a team data file, created or emptied before: 25 lines in slot order, each
/// cell's text followed by a comma, the cells in the order of their columns on the screen.
[[nodiscard]] ExportResult ExportTeamData(Channel& channel, const std::filesystem::path& path,
                                          const RosterGrid& grid);

}  // namespace morlek
