#include "textfile/team_import.h"

#include <string>

#include "image/failure.h"

namespace morlek {
namespace {

/// The characters of one line after the other.
class LineReader {
 public:
  explicit LineReader(Channel& channel) : channel_(channel) {}

  /// Throws OperationFailed when there is no further line.
  void RequireLine() {
    if (!channel_.PeekCharacter()) throw OperationFailed("The file has too few lines.");
  }

  /// The next character of the line, or nothing at its end.
  std::optional<char> NextCharacter() {
    const std::optional<char> character = channel_.ReadCharacter();
    if (character != '\r') return character;
    if (channel_.PeekCharacter() == '\n') static_cast<void>(channel_.ReadCharacter());
    return std::nullopt;
  }

 private:
  Channel& channel_;
};

}  // namespace

void ClearRosterGrid(RosterGrid& grid) {
  for (const Cell cell : kAllCells) grid.SetText(cell, {});
}

void ImportTeamData(Channel& channel, const std::filesystem::path& path, RosterGrid& grid) {
  if (!channel.OpenTextInput(path)) throw OperationFailed("The file could not be opened.");
  ClearRosterGrid(grid);

  LineReader reader(channel);
  std::string field;
  for (int row = 0; row < kSlotCount; ++row) {
    reader.RequireLine();
    const BlockColumns& columns = ColumnsOfRow(row);
    std::size_t index = 0;
    while (const std::optional<char> character = reader.NextCharacter()) {
      if (*character != ',') {
        if (field.size() < kLongestField) field += *character;
        continue;
      }
      if (index < columns.size()) grid.SetText({columns.at(index).column, row}, field);
      ++index;
      field.clear();
    }
  }
  channel.Close();
}

}  // namespace morlek
