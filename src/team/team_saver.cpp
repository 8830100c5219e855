#include "team/team_saver.h"

#include "team/record_encoder.h"

namespace morlek {

SavedBytes TeamSaver::Save(const RosterGrid& grid) {
  SavedBytes saved;
  const auto sink = [this, &saved](Cell cell, int offset, std::uint8_t byte) {
    const bool taken = image_.WriteField(cell.row, offset, byte);
    (taken ? saved.taken : saved.refused).Put(cell.row, offset, byte);
    return taken;
  };
  const auto close = [this, &saved] {
    if (image_.Close()) return;
    // Any of it may be lost.
    saved.refused.PutAll(saved.taken);
    saved.taken = {};
  };
  // When the image cannot be opened every write fails, and the save runs on all the same.
  static_cast<void>(image_.Open());
  if (EncodeRecord(grid, kept_, sink, messages_)) {
    messages_.Show({"You are only allowed 10 player letters per name counting the period."});
    close();
    return saved;
  }
  close();
  messages_.Show({"Your changes have been saved."});
  return saved;
}

}  // namespace morlek
