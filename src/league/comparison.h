#pragma once

#include <vector>

#include "league/season.h"

namespace morlek {

/// The cells in which two seasons differ, team by team as the cells stand on the screen. Where a
/// file says nothing there is no difference, nor between texts that stand for the same.
[[nodiscard]] std::vector<SeasonChange> Differences(const Season& one, const Season& other);

}  // namespace morlek
