#pragma once

#include <functional>
#include <string_view>

#include "league/season.h"

namespace morlek {

/// Takes a line, without its end. Throws OperationFailed when it cannot.
using LineSink = std::function<void(std::string_view line)>;

/// Writes the table of a season: a line of headers, then one for each player, team by team. Throws
/// what the sink throws.
void WriteSeason(const Season& season, const LineSink& sink);

}  // namespace morlek
