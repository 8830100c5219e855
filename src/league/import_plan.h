#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "league/image_season.h"
#include "league/season.h"

namespace morlek {

/// A byte of a record that an import changes.
struct ByteChange {
  const Team* team;
  int row;
  int offset;
  std::uint8_t before;
  std::uint8_t after;

  /// Its 1-based position in the image.
  [[nodiscard]] std::int64_t position() const { return FieldPosition(team->base, row, offset); }
};

/// What an import does to an image.
struct ImportPlan {
  std::vector<SeasonChange> cells;
  std::vector<ByteChange> bytes;
};

/// How many players the cells belong to.
[[nodiscard]] int PlayersOf(const std::vector<SeasonChange>& cells);

/// Adds a complaint when the image at `path` ends within its teams: an import never makes it
/// longer.
void RequireAllTeams(const Disk& disk, const std::filesystem::path& path, Complaints& complaints);

/// Works out what `season`, of a file, changes in an image: only cells that say something else than
/// the image shows, and of those the bytes that a save of the editor writes for them.
/// When the game cannot hold a text, adds to `complaints` which, why and what its column takes, for
/// every such cell, and gives nothing.
[[nodiscard]] std::optional<ImportPlan> PlanImport(const ImageSeason& image, const Season& season,
                                                   Complaints& complaints);

}  // namespace morlek
