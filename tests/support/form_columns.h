#pragma once

#include <array>
#include <cstddef>

#include "team/cell.h"

namespace morlek {

/// The cell that the text box array of this number (1 to 14) shows in a row (0 to 24).
[[nodiscard]] inline Cell CellOfArray(int number, int row) {
  using enum Column;
  constexpr std::array<Column, 14> kBatterArrays = {
      kName,     kPosition,       kUniformNumber, kBattingSide,  kBatting, kPower, kSpeed,
      kFielding, kBattingAverage, kHomeRuns,      kRunsBattedIn, kFace,    kBody,  kLegs};
  constexpr std::array<Column, 14> kPitcherArrays = {
      kName, kPosition,         kUniformNumber, kThrowingHand, kPitchSpeed, kControl, kFatigue,
      kWins, kEarnedRunAverage, kLosses,        kSaves,        kFace,       kBody,    kLegs};
  const auto place = static_cast<std::size_t>(number - 1);
  return {row < 15 ? kBatterArrays.at(place) : kPitcherArrays.at(place), row};
}

}  // namespace morlek
