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

/// Fills a row from the next line. What follows the line's last comma stays in `field`.
void ReadRow(LineReader& reader, int row, std::string& field, RosterGrid& grid) {
  reader.RequireLine();
  const auto& columns = BlockOf(row).columns;
  std::size_t index = 0;
  while (const std::optional<char> character = reader.NextCharacter()) {
    if (*character != ',') {
      if (field.size() < kLongestText) field += *character;
      continue;
    }
    if (index < columns.size()) grid.SetText({columns.at(index).column, row}, field);
    ++index;
    field.clear();
  }
}

}  // namespace

void ClearRosterGrid(RosterGrid& grid) {
  for (const Cell cell : kAllCells) grid.SetText(cell, {});
}

ImportResult ImportTeamData(Channel& channel, const std::filesystem::path& path, RosterGrid& grid) {
  using enum ImportResult::Outcome;
  ImportResult result;
  if (!channel.OpenTextInput(path)) {
    result.outcome = kNotOpened;
    return result;
  }
  ClearRosterGrid(grid);
  try {
    LineReader reader(channel);
    std::string field;
    for (; result.lines < kSlotCount; ++result.lines) ReadRow(reader, result.lines, field, grid);
    channel.Close();
  } catch (const OperationFailed&) {
    result.outcome = kEndedEarly;
  }
  return result;
}

}  // namespace morlek
