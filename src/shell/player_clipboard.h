#pragma once

#include <optional>

#include "team/player.h"

namespace morlek {

/// Puts a player on the clipboard: a line for a spreadsheet, and all that this program, also in
/// another window, needs to paste him.
void CopyPlayer(const Player& player);

/// The player on the clipboard for a row of `block`: one that was copied here, who may be of the
/// other block, or a line of texts for each of its columns. Nothing when it holds no player.
[[nodiscard]] std::optional<Player> CopiedPlayer(const Block& block);

/// Puts all players on the clipboard as lines for a spreadsheet.
void CopyTeam(const RosterGrid& grid);

}  // namespace morlek
