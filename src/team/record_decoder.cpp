#include "team/record_decoder.h"

#include <string>
#include <string_view>

#include "codecs/average_codec.h"
#include "codecs/hex_text.h"
#include "codecs/rating_digit_codec.h"
#include "image/failure.h"
#include "team/column_bytes.h"

namespace morlek {
namespace {

using enum Column;

std::string WhereText(int row, int offset) {
  return " at offset " + std::to_string(offset) + " of player slot " + std::to_string(row) + " (" +
         PlayerText(row) + ")";
}

/// The first character, a point, and the rest: the form of names and earned run averages.
std::string WithPoint(std::string_view text) {
  return std::string(text.substr(0, 1)) + "." + std::string(text.empty() ? "" : text.substr(1));
}

/// One run over the record, a pass for each field. Every pass reads and decodes the bytes of all
/// rows, because decoders keep their results, but shows them only in rows that have the column.
class RecordDecoder {
 public:
  RecordDecoder(const RecordSource& source, CodecState& state, RosterGrid& grid,
                DecodingListener& listener, Rows rows)
      : source_(source), state_(state), grid_(grid), listener_(listener), rows_(rows) {}

  void LoadAll();

 private:
  void LoadNames();
  void LoadFieldingPositions();
  void LoadHands();
  void LoadPitcherMarks();
  void LoadRatingPairs(const Block& block, Column first, Column second);
  void LoadFatigueRatings();
  void LoadAppearance(Column column);
  void LoadBattingAverages();
  void LoadEarnedRunAverages();
  void LoadNumbers(Column column);

  void Show(Cell cell, std::string_view text);
  /// The text of an answer for a cell; reports when it belongs to another input.
  [[nodiscard]] std::string_view Hear(Cell cell, CodecAnswer answer);
  void ShowRating(Cell cell, std::string_view digits);
  [[nodiscard]] std::uint8_t Read(int row, int offset);
  [[nodiscard]] std::uint8_t Read(Cell cell) { return Read(cell.row, OffsetOf(cell.column)); }
  [[nodiscard]] std::string ReadPairKey(Cell cell);
  /// The digits of the rating byte of a cell. Both bytes of a slot have the same form.
  [[nodiscard]] std::string RatingDigits(Cell cell) {
    return FormatRatingBytes({.first = Read(cell)}).first;
  }

  const RecordSource& source_;
  CodecState& state_;
  RosterGrid& grid_;
  DecodingListener& listener_;
  Rows rows_;
};

void RecordDecoder::LoadAll() {
  LoadNames();
  LoadFieldingPositions();
  LoadNumbers(kUniformNumber);
  LoadHands();
  LoadPitcherMarks();
  LoadRatingPairs(kBatters, kBatting, kPower);
  LoadRatingPairs(kPitchers, kPitchSpeed, kControl);
  LoadRatingPairs(kBatters, kSpeed, kFielding);
  LoadFatigueRatings();
  for (const Column column : kFeatures) LoadAppearance(column);
  LoadBattingAverages();
  LoadEarnedRunAverages();
  for (const Column column : {kHomeRuns, kRunsBattedIn, kWins, kLosses, kSaves}) {
    LoadNumbers(column);
  }
}

void RecordDecoder::LoadNames() {
  for (const int row : rows_) {
    std::string letters;
    for (const int offset : BytesOf(kName)) {
      letters += Hear({kName, row}, state_.name_letter.DecodeNameLetter(Read(row, offset)));
    }
    Show({kName, row}, WithPoint(letters));
  }
}

void RecordDecoder::LoadFieldingPositions() {
  for (const int row : rows_) {
    const Cell cell{kPosition, row};
    Show(cell, Hear(cell, state_.fielding_position.DecodeFieldingPosition(Read(cell))));
  }
}

void RecordDecoder::LoadHands() {
  for (const int row : rows_) {
    const Cell side{kBattingSide, row};
    const Cell hand{kThrowingHand, row};
    if (kBatters.Contains(row)) {
      Show(side, Hear(side, state_.batting_side.DecodeBattingSide(Read(side))));
    } else {
      Show(hand, DecodeThrowingHand(Read(hand)));
    }
  }
}

void RecordDecoder::LoadPitcherMarks() {
  for (const int row : rows_) {
    const std::uint8_t byte = Read(row, BytesOf(kThrowingHand).back());
    const Cell cell{kThrowingHand, row};
    const std::string_view marks = Hear(cell, state_.pitcher_marks.DecodePitcherMarks(byte));
    if (!kPitchers.Contains(row)) continue;
    Show(cell, grid_.Text(cell) + std::string(marks));
  }
}

void RecordDecoder::LoadRatingPairs(const Block& block, Column first, Column second) {
  for (const int row : rows_) {
    if (!block.Contains(row)) continue;
    const std::string digits = RatingDigits({first, row});
    ShowRating({first, row}, digits.substr(0, 1));
    ShowRating({second, row}, digits.substr(1));
  }
}

void RecordDecoder::LoadFatigueRatings() {
  for (const int row : rows_) {
    if (!kPitchers.Contains(row)) continue;
    ShowRating({kFatigue, row}, RatingDigits({kFatigue, row}));
  }
}

void RecordDecoder::LoadAppearance(Column column) {
  for (const int row : rows_) Show({column, row}, ByteToText(Read({column, row})));
}

void RecordDecoder::LoadBattingAverages() {
  for (const int row : rows_) {
    const Cell cell{kBattingAverage, row};
    Show(cell, Hear(cell, state_.batting_average.DecodeBattingAverage(ReadPairKey(cell))));
  }
}

void RecordDecoder::LoadEarnedRunAverages() {
  for (const int row : rows_) {
    const Cell cell{kEarnedRunAverage, row};
    const std::string key = ReadPairKey(cell);
    Show(cell, WithPoint(Hear(cell, state_.earned_run_average.DecodeEarnedRunAverage(key))));
  }
}

void RecordDecoder::LoadNumbers(Column column) {
  for (const int row : rows_) {
    SmallNumberCodec& codec = state_.small_number;
    const Cell cell{column, row};
    codec.number_bytes.at(static_cast<std::size_t>(row)) = Read(cell);
    Show(cell, Hear(cell, codec.DecodeSmallNumber(row)));
  }
}

void RecordDecoder::Show(Cell cell, std::string_view text) {
  if (IndexOf(cell) < kCellCount) grid_.SetText(cell, std::string(text));
}

std::string_view RecordDecoder::Hear(Cell cell, CodecAnswer answer) {
  if (!answer.is_known && IndexOf(cell) < kCellCount) listener_.UnknownByte(cell);
  return answer.text;
}

void RecordDecoder::ShowRating(Cell cell, std::string_view digits) {
  const std::optional<std::string> shown = ShownRating(digits);
  if (!shown && !listener_.NoRating(cell)) {
    throw OperationFailed("The team could not be loaded, because the rating" +
                          WhereText(cell.row, OffsetOf(cell.column)) +
                          " holds a digit that is no number.");
  }
  Show(cell, shown.value_or(""));
}

std::uint8_t RecordDecoder::Read(int row, int offset) {
  try {
    return source_(row, offset);
  } catch (const OperationFailed& failure) {
    throw OperationFailed("The team could not be loaded, because the byte" +
                          WhereText(row, offset) + " could not be read. " + failure.what());
  }
}

std::string RecordDecoder::ReadPairKey(Cell cell) {
  const std::uint8_t low = Read(cell);
  return PairKey(low, Read(cell.row, BytesOf(cell.column).back()));
}

}  // namespace

void DecodeRecord(const RecordSource& source, CodecState& state, RosterGrid& grid,
                  DecodingListener& listener, Rows rows) {
  RecordDecoder(source, state, grid, listener, rows).LoadAll();
}

}  // namespace morlek
