#pragma once

#include <filesystem>

#include "image/channel.h"
#include "team/roster_grid.h"

namespace morlek {

/// Writes the grid to a team data file, created or emptied before: 25 lines in slot order, each
/// cell's text followed by a comma, the cells in the order of their columns on the screen.
/// Throws OperationFailed when the file cannot be opened (channel 1 and the file are as they were),
/// when a line cannot be written (channel 1 stays open, the file partly written), or when the file
/// cannot be closed (channel 1 is closed, some of the file may be lost).
void ExportTeamData(Channel& channel, const std::filesystem::path& path, const RosterGrid& grid);

}  // namespace morlek
