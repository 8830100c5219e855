#pragma once

#include <cstddef>
#include <filesystem>

#include "image/channel.h"
#include "team/roster_grid.h"

namespace morlek {

/// No text box holds more characters, so no exported field is longer. Of a longer one in a file the
/// rest is passed over, which keeps memory small however long the file is.
inline constexpr std::size_t kLongestField = 32767;

/// Empties every cell of the grid.
void ClearRosterGrid(RosterGrid& grid);

/// Fills the grid from the first 25 lines of a team data file, whatever they hold. A line ends at a
/// carriage return, which a line feed may follow. Characters behind a line's last comma are carried
/// over to the first cell of the next line.
/// Throws OperationFailed when the file cannot be opened (the grid and channel 1 are as they were),
/// read, or has too few lines (the rows read so far stay, the others are empty, and channel 1 stays
/// open).
void ImportTeamData(Channel& channel, const std::filesystem::path& path, RosterGrid& grid);

}  // namespace morlek
