#include "team/team_saver.h"

#include "team/record_encoder.h"

namespace morlek {

void TeamSaver::Save(const RosterGrid& grid,
                     const std::function<void(const SavedBytes&)>& settled) {
  SavedBytes saved;
  const auto sink = [this, &saved](Cell cell, int offset, std::uint8_t byte) {
    const bool taken = image_.WriteField(cell.row, offset, byte);
    (taken ? saved.taken : saved.refused).Put(cell.row, offset, byte);
    return taken;
  };
  // When the image cannot be opened every write fails, and the save runs on all the same.
  static_cast<void>(image_.Open());
  const bool ended_at_name = EncodeRecord(grid, kept_, sink, messages_).has_value();
  if (ended_at_name) {
    messages_.Show({"You are only allowed 10 player letters per name counting the period."});
  }
  if (!image_.Close()) {
    // Any of it may be lost.
    saved.refused.PutAll(saved.taken);
    saved.taken = {};
  }
  settled(saved);
  if (!ended_at_name) messages_.Show({"Your changes have been saved."});
}

}  // namespace morlek
