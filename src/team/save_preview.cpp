#include "team/save_preview.h"

#include <algorithm>

#include "image/failure.h"
#include "team/column_bytes.h"
#include "team/record_decoder.h"
#include "team/record_encoder.h"

namespace morlek {
namespace {

/// Goes on past a rating that is no number.
class TolerantListener : public DecodingListener {
 public:
  void UnknownByte(Cell /*cell*/) override {}
  bool NoRating(Cell /*cell*/) override { return true; }
};

}  // namespace

SavePreview::SavePreview(const RosterGrid& grid, CodecState state, const RecordBytes& known) {
  EncodingListener deaf;
  const auto sink = [this](int row, int offset, std::uint8_t byte) {
    written_.Put(row, offset, byte);
    return true;
  };
  end_row_ = EncodeRecord(grid, state, sink, deaf);

  RecordBytes record = known;
  record.PutAll(written_);
  const auto source = [&record](int row, int offset) {
    const std::optional<std::uint8_t> byte = record.At(row, offset);
    if (!byte) throw OperationFailed("The byte is not known.");
    return *byte;
  };
  TolerantListener tolerant;
  try {
    DecodeRecord(source, state, after_, tolerant);
  } catch (const OperationFailed&) {
    after_ = grid;
  }
}

SavePreview::Fate SavePreview::FateOf(Cell cell) const {
  if (end_row_ && cell.row >= *end_row_) {
    return cell == Cell{Column::kName, *end_row_} ? Fate::kEndsSave : Fate::kNotReached;
  }
  return written_.HasAny(cell.row, BytesOf(cell.column)) ? Fate::kStored : Fate::kSkipped;
}

}  // namespace morlek
