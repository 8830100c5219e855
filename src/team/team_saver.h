#pragma once

#include <optional>

#include "image/cartridge_image.h"
#include "team/codec_state.h"
#include "team/record_bytes.h"
#include "team/record_encoder.h"
#include "team/roster_grid.h"

namespace morlek {

/// The result of a save.
struct SaveResult {
  /// The bytes that the image took, and those that it refused.
  RecordBytes taken;
  RecordBytes refused;
  /// The row of the name that ended the save; nothing when the save was complete.
  std::optional<int> end_row;
};

/// Writes a grid into a record, the program's only write path. A step that fails is skipped; when
/// the image cannot be opened every write fails, but the codecs still run. At the end channel 1 is
/// closed, whatever was open on it. `listener` is notified of letters and names that cannot be
/// saved while the image is still open.
[[nodiscard]] SaveResult SaveTeam(CartridgeImage& image, const RecordLocation& location,
                                  const RosterGrid& grid, CodecState& state,
                                  EncodingListener& listener);

}  // namespace morlek
