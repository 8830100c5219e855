#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "team/player.h"

namespace morlek {

/// A player as a line for a spreadsheet, without a line end: his texts with tabs between them. One
/// that holds a tab, a quote or a line break stands in quotes.
[[nodiscard]] std::string LineOf(const Player& player);

/// All players as such lines, each ended by a line feed.
[[nodiscard]] std::string LinesOf(const RosterGrid& grid);

/// A pasted line with a text for each column of a block, as a player of that block. Nothing when
/// there are more lines, or more or fewer texts.
[[nodiscard]] std::optional<Player> PlayerFromLine(const Block& block, std::string_view line);

/// A player with all that PlayerAt has found, and back; nothing when it is no such text.
[[nodiscard]] std::string PackPlayer(const Player& player);
[[nodiscard]] std::optional<Player> UnpackPlayer(std::string_view packed);

}  // namespace morlek
