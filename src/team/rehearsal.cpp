#include "team/rehearsal.h"

#include <algorithm>

#include "image/failure.h"
#include "team/record_decoder.h"
#include "team/record_encoder.h"
#include "team/shown_bytes.h"

namespace morlek {
namespace {

class NobodyListens : public MessagePort {
 public:
  void Show(const Message& /*message*/) override {}
};

}  // namespace

Rehearsal::Rehearsal(const RosterGrid& grid, KeptState kept, const RecordBytes& known) {
  NobodyListens messages;
  const auto sink = [this](Cell cell, int offset, std::uint8_t byte) {
    written_.Put(cell.row, offset, byte);
    return true;
  };
  end_row_ = EncodeRecord(grid, kept, sink, messages);

  RecordBytes record = known;
  record.PutAll(written_);
  const auto source = [&record](int row, int offset) {
    const std::optional<std::uint8_t> byte = record.At(row, offset);
    if (!byte) throw OperationFailed("The byte is not known.");
    return *byte;
  };
  try {
    DecodeRecord(source, kept, after_);
  } catch (const OperationFailed&) {
    after_ = grid;
  }
}

Rehearsal::Fate Rehearsal::FateOf(Cell cell) const {
  if (end_row_ && cell.row >= *end_row_) {
    return cell == Cell{Column::kText1, *end_row_} ? Fate::kEndsSave : Fate::kNotReached;
  }
  const bool is_written = std::ranges::any_of(ShownOffsets(cell), [this, cell](int offset) {
    return written_.At(cell.row, offset).has_value();
  });
  return is_written ? Fate::kStored : Fate::kSkipped;
}

}  // namespace morlek
