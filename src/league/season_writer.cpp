#include "league/season_writer.h"

#include <string>

#include "league/season_columns.h"
#include "textfile/delimited_text.h"

namespace morlek {

void WriteSeason(const Season& season, const LineSink& sink) {
  std::vector<std::string> fields = {std::string(kTeamHeader), std::string(kSlotHeader)};
  for (const SeasonColumn& column : kSeasonColumns) fields.emplace_back(column.header);
  sink(JoinFields(fields));

  for (const Team& team : kTeamDirectory) {
    const RosterGrid& texts = season.teams.at(PlaceOf(team)).texts;
    for (int row = 0; row < kSlotCount; ++row) {
      fields = {std::string(team.key), std::to_string(row + 1)};
      for (const SeasonColumn& column : kSeasonColumns) {
        const std::optional<Column> shown = column.For(row);
        fields.push_back(shown ? texts.Text({*shown, row}) : std::string());
      }
      sink(JoinFields(fields));
    }
  }
}

}  // namespace morlek
