#include "textfile/team_import.h"

#include <string>

#include "image/failure.h"

namespace morlek {
namespace {

/// The next character of a line, or nothing at its end.
std::optional<char> NextOfLine(Channel& channel) {
  const std::optional<char> character = channel.ReadCharacter();
  if (character != '\r') return character;
  if (channel.PeekCharacter() == '\n') static_cast<void>(channel.ReadCharacter());
  return std::nullopt;
}

/// Fills a row from the next line. What follows the line's last comma stays in `field`. Throws
/// OperationFailed when there is no further line.
void ReadRow(Channel& channel, int row, std::string& field, RosterGrid& grid) {
  if (!channel.PeekCharacter()) throw OperationFailed("The file has too few lines.");
  const auto& columns = BlockOf(row).columns;
  std::size_t index = 0;
  while (const std::optional<char> character = NextOfLine(channel)) {
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
    std::string field;
    for (; result.lines < kSlotCount; ++result.lines) ReadRow(channel, result.lines, field, grid);
    channel.Close();
  } catch (const OperationFailed&) {
    result.outcome = kEndedEarly;
  }
  return result;
}

}  // namespace morlek
