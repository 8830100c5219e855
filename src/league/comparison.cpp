#include "league/comparison.h"

#include "team/same_text.h"

namespace morlek {
namespace {

/// Whether the texts differ. An image may show a small letter where a file can only say a capital.
bool Differ(Column column, const std::string& one, const std::string& other) {
  return one != other && CanonicalText(column, one) != other && one != CanonicalText(column, other);
}

}  // namespace

std::vector<SeasonChange> Differences(const Season& one, const Season& other) {
  std::vector<SeasonChange> changes;
  for (const Team& team : kTeamDirectory) {
    const RosterGrid& before = one.teams.at(PlaceOf(team)).texts;
    const RosterGrid& after = other.teams.at(PlaceOf(team)).texts;
    for (const Cell cell : kCellsOnScreen) {
      const std::string& old_text = before.Text(cell);
      const std::string& new_text = after.Text(cell);
      const bool says_nothing =
          (old_text.empty() && !one.is_image) || (new_text.empty() && !other.is_image);
      if (says_nothing || !Differ(cell.column, old_text, new_text)) continue;
      const Cell name{Column::kName, cell.row};
      const std::string& old_name = before.Text(name);
      changes.push_back(
          {&team, cell, old_name.empty() ? after.Text(name) : old_name, old_text, new_text});
    }
  }
  return changes;
}

}  // namespace morlek
