#pragma once

#include <string>

#include "image/cartridge_image.h"
#include "team/codec_state.h"
#include "team/record_bytes.h"
#include "team/roster_grid.h"

namespace morlek {

/// The result of a load.
struct LoadResult {
  enum class Outcome {
    kLoaded,
    kNotOpened,   // the image could not be opened; grid, state and channel are as they were
    kEndedEarly,  // the grid is filled up to the field that failed, and the image is open
  };
  Outcome outcome = Outcome::kLoaded;
  /// The bytes that were read.
  RecordBytes read;
  /// Why and where the load failed, in plain words; empty after a successful load.
  std::string failure;
};

/// Fills a grid from a record, without writing to the image.
[[nodiscard]] LoadResult LoadTeam(CartridgeImage& image, const RecordLocation& location,
                                  CodecState& state, RosterGrid& grid);

}  // namespace morlek
