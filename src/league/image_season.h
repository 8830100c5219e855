#pragma once

#include <filesystem>
#include <optional>
#include <vector>

#include "image/cartridge_image.h"
#include "league/disk.h"
#include "league/season.h"
#include "team/codec_state.h"
#include "team/record_bytes.h"

namespace morlek {

/// A team as an image has it.
struct ImageTeam {
  /// What the editor would show: for a byte that no codec knows, an earlier result.
  RosterGrid shown;
  /// All bytes that a load reads or a save writes.
  RecordBytes bytes;
  /// What the codecs keep after this load, the first one of a run.
  CodecState state;
};

/// All teams of an image in the order of the directory.
struct ImageSeason {
  Season season;
  std::vector<ImageTeam> teams;
};

/// Opens the image at `path` for reading, reads all its teams and closes it. When it is not the
/// game's, adds a complaint with the identity byte and, as far as the size shows it, what is
/// missing, and gives nothing. Throws OperationFailed when it cannot be opened or read.
[[nodiscard]] std::optional<ImageSeason> ReadImage(const Disk& disk,
                                                   const std::filesystem::path& path,
                                                   Complaints& complaints);

}  // namespace morlek
