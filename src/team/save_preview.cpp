#include "team/save_preview.h"

#include <algorithm>

#include "image/failure.h"
#include "team/column_bytes.h"
#include "team/record_decoder.h"
#include "team/record_encoder.h"

namespace morlek {
namespace {

/// Notes whether earlier results, which may be another row's, stand in for what cannot be
/// converted. A rating that is no number needs none.
class ReuseListener : public EncodingListener, public DecodingListener {
 public:
  void NameTooLong(int /*row*/) override { has_heard_ = true; }
  void ConversionFailed() override { has_heard_ = true; }
  void UnknownByte(Cell /*cell*/) override { has_heard_ = true; }
  bool NoRating(Cell /*cell*/) override { return true; }

  [[nodiscard]] bool has_heard() const { return has_heard_; }

 private:
  bool has_heard_ = false;
};

}  // namespace

SavePreview::SavePreview(const RosterGrid& grid, const CodecState& state,
                         const RecordBytes& known) {
  Rehearse(kAllRows, grid, state, known);
}

bool SavePreview::FollowRow(int row, const RosterGrid& grid, const CodecState& state,
                            const RecordBytes& known) {
  if (!are_rows_independent_) return false;
  written_.ClearRow(row);
  Rehearse(kAllRows.subspan(static_cast<std::size_t>(row), 1), grid, state, known);
  return are_rows_independent_;
}

void SavePreview::Rehearse(Rows rows, const RosterGrid& grid, CodecState state,
                           const RecordBytes& known) {
  ReuseListener listener;
  const auto sink = [this](int row, int offset, std::uint8_t byte) {
    written_.Put(row, offset, byte);
    return true;
  };
  end_row_ = EncodeRecord(grid, state, sink, listener, rows);

  const auto source = [&](int row, int offset) {
    std::optional<std::uint8_t> byte = written_.At(row, offset);
    if (!byte) byte = known.At(row, offset);
    if (!byte) throw OperationFailed("The byte is not known.");
    return *byte;
  };
  try {
    DecodeRecord(source, state, after_, listener, rows);
    are_rows_independent_ = !listener.has_heard();
  } catch (const OperationFailed&) {
    after_ = grid;
    are_rows_independent_ = false;
  }
}

SavePreview::Fate SavePreview::FateOf(Cell cell) const {
  if (end_row_ && cell.row >= *end_row_) {
    return cell == Cell{Column::kName, *end_row_} ? Fate::kEndsSave : Fate::kNotReached;
  }
  return written_.HasAny(cell.row, BytesOf(cell.column)) ? Fate::kStored : Fate::kSkipped;
}

}  // namespace morlek
