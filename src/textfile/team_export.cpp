#include "textfile/team_export.h"

#include <string>

#include "image/failure.h"

namespace morlek {

ExportResult ExportTeamData(Channel& channel, const std::filesystem::path& path,
                            const RosterGrid& grid) {
  if (!channel.OpenTextOutput(path)) return ExportResult::kNotOpened;
  for (int row = 0; row < kSlotCount; ++row) {
    std::string line;
    for (const BlockColumn& each : BlockOf(row).columns) {
      line += grid.Text({each.column, row});
      line += ',';
    }
    try {
      channel.WriteLine(line);
    } catch (const OperationFailed&) {
      return ExportResult::kEndedEarly;
    }
  }
  return channel.Close() ? ExportResult::kWritten : ExportResult::kNotClosed;
}

}  // namespace morlek
