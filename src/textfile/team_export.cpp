#include "textfile/team_export.h"

#include <string>

#include "image/failure.h"

namespace morlek {

void ExportTeamData(Channel& channel, const std::filesystem::path& path, const RosterGrid& grid) {
  if (!channel.OpenTextOutput(path)) throw OperationFailed("The file could not be opened.");
  for (int row = 0; row < kSlotCount; ++row) {
    std::string line;
    for (const GridColumn& column : ColumnsOfRow(row)) {
      line += grid.Text({column.column, row});
      line += ',';
    }
    channel.WriteLine(line);
  }
  if (!channel.Close()) throw OperationFailed("The file could not be written to its end.");
}

}  // namespace morlek
