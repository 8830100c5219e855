#pragma once

#include <string>

#include "image/cartridge_image.h"
#include "team/codec_state.h"
#include "team/record_bytes.h"
#include "team/roster_grid.h"

namespace morlek {

/// What came of a load.
struct LoadResult {
  enum class Outcome {
    kLoaded,
    kNotOpened,   // the image could not be opened; grid, state and channel are as they were
    kEndedEarly,  // the grid is filled up to the field that failed, and the image is open
  };
  Outcome outcome = Outcome::kLoaded;
  /// The bytes that were read.
  RecordBytes read;
  /// Says in plain words why the load failed, and where; empty for a load that came through.
  std::string failure;
};

/// Fills a grid from a record, which it only reads.
[[nodiscard]] LoadResult LoadTeam(CartridgeImage& image, const RecordLocation& location,
                                  CodecState& state, RosterGrid& grid);

}  // namespace morlek
