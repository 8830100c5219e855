#include "team/save_preview.h"

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

SavePreview::SavePreview(const RosterGrid& grid, const CodecState& state, const RecordBytes& known)
    : are_rows_independent_(Rehearse(kAllRows, grid, state, known)) {}

bool SavePreview::FollowRow(int row, const RosterGrid& grid, const CodecState& state,
                            const RecordBytes& known) {
  if (!are_rows_independent_) return false;
  written_.ClearRow(row);
  are_rows_independent_ =
      Rehearse(kAllRows.subspan(static_cast<std::size_t>(row), 1), grid, state, known);
  return are_rows_independent_;
}

bool SavePreview::Rehearse(Rows rows, const RosterGrid& grid, CodecState state,
                           const RecordBytes& known) {
  ReuseListener listener;
  const auto sink = [this](int row, int offset, std::uint8_t byte) {
    written_.Put(row, offset, byte);
  };
  end_row_ = EncodeRecord(grid, state, sink, listener, rows);

  const auto source = [&](int row, int offset) {
    return written_.At(row, offset).value_or(known.At(row, offset).value_or(0));
  };
  DecodeRecord(source, state, after_, listener, rows);
  return !listener.has_heard();
}

SavePreview::Fate SavePreview::FateOf(Cell cell) const {
  if (end_row_ && cell.row >= *end_row_) {
    return cell == Cell{Column::kName, *end_row_} ? Fate::kEndsSave : Fate::kNotReached;
  }
  return written_.HasAny(cell.row, BytesOf(cell.column)) ? Fate::kStored : Fate::kSkipped;
}

}  // namespace morlek
