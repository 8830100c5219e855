#include "league/import_plan.h"

#include <algorithm>
#include <string>

#include "league/season_columns.h"
#include "team/accepted_texts.h"
#include "team/column_bytes.h"
#include "team/refusal.h"
#include "team/same_text.h"
#include "team/save_preview.h"

namespace morlek {
namespace {

/// The plan for one team.
class TeamPlanner {
 public:
  TeamPlanner(const Team& team, const ImageSeason& image, const Season& season,
              Complaints& complaints)
      : team_(team),
        image_(image.teams.at(PlaceOf(team))),
        known_(image.season.teams.at(PlaceOf(team)).texts),
        asked_(season.teams.at(PlaceOf(team))),
        complaints_(complaints),
        grid_(image_.shown) {}

  void AddTo(ImportPlan& plan) {
    FindEdits();
    if (edits_.empty()) return;
    SavePreview preview = PreviewWithoutLongNames();
    std::erase_if(edits_, [&](Cell cell) {
      if (IsKept(cell, preview)) return false;
      Refuse(cell, preview);
      return true;
    });
    TakeBytes(preview.written(), plan);
  }

 private:
  void FindEdits() {
    for (const Cell cell : kCellsOnScreen) {
      const std::string& text = asked_.texts.Text(cell);
      const std::string& known = known_.Text(cell);
      if (text.empty() || text == known || CanonicalText(cell.column, text) == known) continue;
      edits_.push_back(cell);
      grid_.SetText(cell, text);
    }
  }

  /// Whether the edit of a cell comes back as it was asked for, and spoils no cell that shares a
  /// byte with it.
  [[nodiscard]] bool IsKept(Cell cell, const SavePreview& preview) const {
    return std::ranges::all_of(BlockOf(cell.row).columns, [&](const BlockColumn& each) {
      const Cell other{each.column, cell.row};
      const bool is_known = other == cell || !known_.Text(other).empty();
      return !is_known || !ShareAByte(cell, other) ||
             IsSameText(each.column, grid_.Text(other), preview.TextAfter(other));
    });
  }

  /// A name that is too long would end a save, and nothing could be said of the players below: it
  /// is refused, and the image's name stands in its place.
  [[nodiscard]] SavePreview PreviewWithoutLongNames() {
    while (true) {
      SavePreview preview(grid_, image_.state, image_.bytes);
      if (!preview.end_row()) return preview;
      const Cell name{Column::kName, *preview.end_row()};
      Refuse(name, preview);
      grid_.SetText(name, image_.shown.Text(name));
      std::erase(edits_, name);
    }
  }

  void Refuse(Cell cell, const SavePreview& preview) {
    const std::string header(HeaderOf(cell.column));
    const std::string why = ReasonOfRefusal(grid_.Text(cell), cell, preview.FateOf(cell),
                                            CauseElsewhere(grid_, preview, cell))
                                .value_or("the game cannot hold it");
    complaints_.push_back("line " +
                          std::to_string(asked_.lines.at(static_cast<std::size_t>(cell.row))) +
                          ": " + PlayerOf(team_, cell.row, known_.Text({Column::kName, cell.row})) +
                          ", " + header + " " + Quoted(asked_.texts.Text(cell)) + ": " + why +
                          "; " + header + " takes " + AcceptedTexts(cell.column));
  }

  void TakeBytes(const RecordBytes& written, ImportPlan& plan) {
    RecordBytes taken;
    for (const Cell cell : edits_) {
      bool changes = false;
      for (const int offset : WrittenBytesOf(cell)) {
        const auto after = written.At(cell.row, offset);
        const auto before = image_.bytes.At(cell.row, offset);
        if (!after || after == before) continue;
        changes = true;
        // Two ratings share a byte.
        if (taken.At(cell.row, offset)) continue;
        taken.Put(cell.row, offset, *after);
        plan.bytes.push_back({&team_, cell.row, offset, before.value_or(0), *after});
      }
      if (!changes) continue;
      plan.cells.push_back({&team_, cell, known_.Text({Column::kName, cell.row}), known_.Text(cell),
                            asked_.texts.Text(cell)});
    }
  }

  const Team& team_;
  const ImageTeam& image_;
  const RosterGrid& known_;
  const SeasonTeam& asked_;
  Complaints& complaints_;
  // As the image shows it, with the edits.
  RosterGrid grid_;
  std::vector<Cell> edits_;
};

}  // namespace

int PlayersOf(const std::vector<SeasonChange>& cells) {
  int players = 0;
  const SeasonChange* last = nullptr;
  for (const SeasonChange& each : cells) {
    const bool is_same =
        last != nullptr && last->team == each.team && last->cell.row == each.cell.row;
    players += is_same ? 0 : 1;
    last = &each;
  }
  return players;
}

void RequireAllTeams(const Disk& disk, const std::filesystem::path& path, Complaints& complaints) {
  const int last_base = std::ranges::max(kTeamDirectory, {}, &Team::base).base;
  const std::int64_t end = FieldPosition(last_base, kSlotCount - 1, kSlotBytes - 1);
  const auto size = disk.size(path);
  if (!size || *size >= static_cast<std::uintmax_t>(end)) return;
  complaints.push_back("the image ends at byte " + std::to_string(*size) +
                       ", before the last team does at " + std::to_string(end));
}

std::optional<ImportPlan> PlanImport(const ImageSeason& image, const Season& season,
                                     Complaints& complaints) {
  const std::size_t before = complaints.size();
  ImportPlan plan;
  for (const Team& team : kTeamDirectory) {
    TeamPlanner(team, image, season, complaints).AddTo(plan);
  }
  if (complaints.size() > before) return std::nullopt;
  return plan;
}

}  // namespace morlek
