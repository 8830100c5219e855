#pragma once

#include <cstdint>
#include <vector>

namespace morlek {

/// A synthetic cartridge image of the game's size: the identity byte, 28 team records of invented
/// players with plausible figures that the editor can show and save exactly, and noise everywhere
/// else, so that a stray write would show. The same bytes every time. Slot 0 of the Braves is
/// C.WHITAKER, number 21.
[[nodiscard]] std::vector<std::uint8_t> MakeSampleImage();

}  // namespace morlek
