#pragma once

#include <filesystem>

#include "image/channel.h"
#include "team/roster_grid.h"

namespace morlek {

/// The result of an import.
struct ImportResult {
  enum class Outcome {
    kRead,
    kNotOpened,   // grid and channel 1 are as they were
    kEndedEarly,  // too few lines, or a read failed: later rows are empty, channel 1 stays open
  };
  Outcome outcome = Outcome::kRead;
  /// How many lines were read to their ends, 0 to 25.
  int lines = 0;
};

/// Empties every cell of the grid.
void ClearRosterGrid(RosterGrid& grid);

/// Fills the grid from the first 25 lines of a team data file, whatever they hold. A line ends at a
/// carriage return, which a line feed may follow. Characters after a line's last comma are carried
/// over to the first cell of the next line. Longer texts than a cell holds are truncated.
[[nodiscard]] ImportResult ImportTeamData(Channel& channel, const std::filesystem::path& path,
                                          RosterGrid& grid);

}  // namespace morlek
