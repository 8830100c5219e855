#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "codecs/message_port.h"
#include "image/cartridge_image.h"
#include "team/codecs.h"
#include "team/roster_grid.h"

namespace morlek {

/// Writes the roster grid into the image, the program's only write path. It skips a step that
/// fails and goes on with the next one: a conversion that fails leaves its working value as it was,
/// so the following write repeats what the same field had in the row before.
class TeamSaver {
 public:
  TeamSaver(CartridgeImage& image, Codecs& codecs, const RosterGrid& grid, MessagePort& messages)
      : image_(image), codecs_(codecs), grid_(grid), messages_(messages) {}

  /// Saves the grid into the current record and says so, also when nothing could be written. A name
  /// of more than 10 characters is told instead and ends the save; what was written stays.
  void Save();

 private:
  struct WorkingValues;

  void SaveInitials(WorkingValues& values);
  [[nodiscard]] bool SaveName(int row, WorkingValues& values);
  void SavePosition(int row, WorkingValues& values);
  void SaveUniformNumber(int row);
  void SaveBattingSide(int row, WorkingValues& values);
  void SavePitcherSFlag(int row);
  void SaveFirstRatings(int row);
  void SaveSecondRatings(int row, WorkingValues& values);
  void SaveBattingAverage(int row, WorkingValues& values);
  void SaveEarnedRunAverage(int row, WorkingValues& values);
  void SaveCounts(int row, WorkingValues& values);
  void SaveFace(int row, WorkingValues& values);
  void SaveThrowingHand(int row, WorkingValues& values);
  void SavePitcherMarks(int row, WorkingValues& values);
  void SaveBodyAndLegs(int row, WorkingValues& values);
  [[nodiscard]] bool SaveRow(int row, WorkingValues& values);

  /// Passes a count through the number byte buffer and the encoder.
  [[nodiscard]] std::optional<std::int32_t> EncodeCount(Column source, int row);

  /// Writes a value that fits into a byte when the cell that it stands for is filled.
  void WriteFilled(Column source, int row, int offset, std::int32_t value);
  void Write(int row, int offset, std::int32_t value);

  CartridgeImage& image_;
  Codecs& codecs_;
  const RosterGrid& grid_;
  MessagePort& messages_;

  // These two outlive a save; until one has been converted at all, its write is not made.
  std::optional<std::int32_t> uniform_number_;
  std::optional<std::int32_t> first_ratings_;
};

}  // namespace morlek
