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
  RecordDecoder(const RecordSource& source, CodecState& state, RosterGrid& grid)
      : source_(source), state_(state), grid_(grid) {}

  void LoadAll();

 private:
  void LoadPitcherMarks();
  void LoadRatingPairs(const Block& block, Column first, Column second);
  void LoadNumbers(Column column);

  /// One pass: shows what `decode` makes of the cell of every row.
  template <typename Decode>
  void ShowAll(Column column, Decode decode) {
    for (int row = 0; row < kSlotCount; ++row) Show({column, row}, decode(Cell{column, row}));
  }

  /// Shows a text, if the grid has the cell.
  void Show(Cell cell, std::string_view text);
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
};

void RecordDecoder::LoadAll() {
  ShowAll(kName, [this](Cell cell) {
    std::string letters;
    for (const int offset : BytesOf(kName)) {
      letters += state_.name_letter.DecodeNameLetter(Read(cell.row, offset)).text;
    }
    return WithPoint(letters);
  });
  ShowAll(kPosition, [this](Cell cell) {
    return state_.fielding_position.DecodeFieldingPosition(Read(cell)).text;
  });
  LoadNumbers(kUniformNumber);
  for (const Cell cell : kAllCells) {
    if (cell.column == kBattingSide) {
      Show(cell, state_.batting_side.DecodeBattingSide(Read(cell)).text);
    }
    if (cell.column == kThrowingHand) Show(cell, DecodeThrowingHand(Read(cell)));
  }
  LoadPitcherMarks();
  LoadRatingPairs(kBatters, kBatting, kPower);
  LoadRatingPairs(kPitchers, kPitchSpeed, kControl);
  LoadRatingPairs(kBatters, kSpeed, kFielding);
  for (int row = kPitchers.first_row; row < kPitchers.end_row; ++row) {
    ShowRating({kFatigue, row}, RatingDigits({kFatigue, row}));
  }
  for (const Column column : kFeatures) {
    ShowAll(column, [this](Cell cell) { return ByteToText(Read(cell)); });
  }
  ShowAll(kBattingAverage, [this](Cell cell) {
    return state_.batting_average.DecodeBattingAverage(ReadPairKey(cell)).text;
  });
  ShowAll(kEarnedRunAverage, [this](Cell cell) {
    return WithPoint(state_.earned_run_average.DecodeEarnedRunAverage(ReadPairKey(cell)).text);
  });
  for (const Column column : {kHomeRuns, kRunsBattedIn, kWins, kLosses, kSaves}) {
    LoadNumbers(column);
  }
}

void RecordDecoder::LoadPitcherMarks() {
  for (int row = 0; row < kSlotCount; ++row) {
    const std::uint8_t byte = Read(row, BytesOf(kThrowingHand).back());
    const std::string_view marks = state_.pitcher_marks.DecodePitcherMarks(byte).text;
    if (!kPitchers.Contains(row)) continue;
    const Cell cell{kThrowingHand, row};
    Show(cell, grid_.Text(cell) + std::string(marks));
  }
}

void RecordDecoder::LoadRatingPairs(const Block& block, Column first, Column second) {
  for (int row = block.first_row; row < block.end_row; ++row) {
    const std::string digits = RatingDigits({first, row});
    ShowRating({first, row}, digits.substr(0, 1));
    ShowRating({second, row}, digits.substr(1));
  }
}

void RecordDecoder::LoadNumbers(Column column) {
  ShowAll(column, [this](Cell cell) {
    SmallNumberCodec& codec = state_.small_number;
    codec.number_bytes.at(static_cast<std::size_t>(cell.row)) = Read(cell);
    return codec.DecodeSmallNumber(cell.row).text;
  });
}

void RecordDecoder::Show(Cell cell, std::string_view text) {
  if (IndexOf(cell) < kCellCount) grid_.SetText(cell, std::string(text));
}

void RecordDecoder::ShowRating(Cell cell, std::string_view digits) {
  const std::optional<std::string> shown = ShownRating(digits);
  if (!shown) {
    throw OperationFailed("The team could not be loaded, because the rating" +
                          WhereText(cell.row, OffsetOf(cell.column)) +
                          " holds a digit that is no number.");
  }
  Show(cell, *shown);
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
  return PairKey(low, Read(cell.row, OffsetOf(cell.column) + 1));
}

}  // namespace

void DecodeRecord(const RecordSource& source, CodecState& state, RosterGrid& grid) {
  RecordDecoder(source, state, grid).LoadAll();
}

}  // namespace morlek
