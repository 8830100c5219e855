#include "team/record_encoder.h"

#include <string>

#include "codecs/hex_text.h"
#include "codecs/number_text.h"
#include "codecs/rating_digit_codec.h"
#include "image/record_layout.h"
#include "team/column_bytes.h"

namespace morlek {
namespace {

using enum Column;

constexpr std::size_t kLongestName = kNameBytes + 1;  // with the period

/// Results of the last conversions of one save, carried from row to row. Initial and surname
/// letters share a value, and so do wins and saves.
struct WorkingValues {
  std::int32_t letter = 0;
  std::int32_t position = 0;
  std::int32_t batting_side = 0;
  std::int32_t batter_second_ratings = 0;
  std::int32_t pitcher_second_rating = 0;
  std::int32_t batting_average_low = 0;
  std::int32_t earned_run_average_low = 0;
  std::int32_t home_runs_or_losses = 0;
  std::int32_t runs_batted_in = 0;
  std::int32_t wins_or_saves = 0;
  std::int32_t face = 0;
  std::int32_t hand = 0;
  std::int32_t marks = 0;
  std::int32_t body = 0;
  std::int32_t legs = 0;
  std::string face_code;
  PitcherHandEncoder hand_encoder;
};

/// One run over the grid.
class RecordEncoder {
 public:
  RecordEncoder(const RosterGrid& grid, CodecState& state, const RecordSink& sink,
                EncodingListener& listener)
      : grid_(grid), state_(state), sink_(sink), listener_(listener) {}

  void SaveInitial(int row) { SaveLetter(row, 0, Text({kName, row}).substr(0, 1)); }

  /// False when the row's name is too long; nothing of the row has been offered then.
  [[nodiscard]] bool SaveRow(int row);

 private:
  [[nodiscard]] bool SaveName(int row);
  void SaveLetter(int row, int letter, std::string_view character);
  void SaveBatter(int row);
  void SavePitcher(int row);
  void SaveRatings(Cell first, Cell second, auto& value);
  void SaveAverage(Cell source, CodecAnswer low, std::int32_t& value, std::uint8_t high);
  void SaveFace(int row);
  void SaveHandAndMarks(int row);
  void SaveAppearance(Cell source, std::int32_t& value);

  /// Assigns when there is a value, to a working value of the save or of the codec state.
  void Assign(auto& target, std::optional<std::int32_t> converted) {
    if (converted) {
      target = *converted;
    } else {
      listener_.ConversionFailed();
    }
  }
  void Assign(auto& target, const CodecAnswer& code) {
    if (!code.is_known) listener_.ConversionFailed();
    Assign(target, ByteTextToNumber(code.text));
  }

  /// Converts a field into its working value, and offers that when the cell is filled.
  void Save(Cell source, auto& value, const auto& converted) {
    Assign(value, converted);
    WriteFilled(source, OffsetOf(source.column), value);
  }

  /// Passes a count through the number byte buffer and the encoder.
  void EncodeCount(Cell source, std::int32_t& value);
  void SaveCount(Cell source, std::int32_t& value);

  [[nodiscard]] const std::string& Text(Cell cell) const { return grid_.Text(cell); }

  /// Offers a value that fits into a byte to the sink when the cell that it belongs to is filled.
  void WriteFilled(Cell source, int offset, std::optional<std::int32_t> value);
  void Write(int row, int offset, std::int32_t value);

  const RosterGrid& grid_;
  CodecState& state_;
  const RecordSink& sink_;
  EncodingListener& listener_;
  WorkingValues values_;
};

bool RecordEncoder::SaveRow(int row) {
  if (!SaveName(row)) return false;
  const std::string& position = Text({kPosition, row});
  Save({kPosition, row}, values_.position,
       state_.fielding_position.EncodeFieldingPosition(position));
  const std::string& number = Text({kUniformNumber, row});
  Save({kUniformNumber, row}, state_.uniform_number,
       state_.small_number.EncodeUniformNumber(row, number));
  if (kBatters.Contains(row)) {
    SaveBatter(row);
  } else {
    SavePitcher(row);
  }
  SaveAppearance({kBody, row}, values_.body);
  SaveAppearance({kLegs, row}, values_.legs);
  return true;
}

bool RecordEncoder::SaveName(int row) {
  std::string name = Text({kName, row});
  if (name.size() > kLongestName) {
    listener_.NameTooLong(row);
    return false;
  }
  name.resize(kLongestName, ' ');
  for (int letter = 1; letter < kNameBytes; ++letter) {
    // The second character is the period, which has no letter code.
    SaveLetter(row, letter, std::string_view(name).substr(static_cast<std::size_t>(letter) + 1, 1));
  }
  return true;
}

void RecordEncoder::SaveLetter(int row, int letter, std::string_view character) {
  const CodecAnswer code = state_.name_letter.EncodeNameLetter(character);
  if (!code.is_known) listener_.UnknownLetter(row, character);
  Assign(values_.letter, code);
  WriteFilled({kName, row}, OffsetOf(kName) + letter, values_.letter);
}

void RecordEncoder::SaveBatter(int row) {
  const std::string& side = Text({kBattingSide, row});
  Save({kBattingSide, row}, values_.batting_side, state_.batting_side.EncodeBattingSide(row, side));
  SaveRatings({kBatting, row}, {kPower, row}, state_.first_ratings);
  SaveRatings({kSpeed, row}, {kFielding, row}, values_.batter_second_ratings);
  const std::string& average = Text({kBattingAverage, row});
  SaveAverage({kBattingAverage, row}, state_.batting_average.EncodeBattingAverage(average),
              values_.batting_average_low, BattingAverageCodec::HighByte(average));
  // Four counts pass through the shared number text in every row, written or not: when one cannot
  // be converted, the result of the one before it is used.
  SaveCount({kHomeRuns, row}, values_.home_runs_or_losses);
  SaveCount({kRunsBattedIn, row}, values_.runs_batted_in);
  EncodeCount({kFielding, row}, values_.wins_or_saves);
  EncodeCount({kRunsBattedIn, row}, values_.wins_or_saves);
  SaveFace(row);
}

void RecordEncoder::SavePitcher(int row) {
  // Written for an empty cell too.
  Write(row, offset::kPitcherSFlag, EncodePitcherSFlag(Text({kThrowingHand, row})));
  SaveRatings({kPitchSpeed, row}, {kControl, row}, state_.first_ratings);
  const std::string& fatigue = Text({kFatigue, row});
  Save({kFatigue, row}, values_.pitcher_second_rating, PackSingleRating(fatigue));
  const std::string& average = Text({kEarnedRunAverage, row});
  SaveAverage({kEarnedRunAverage, row}, state_.earned_run_average.EncodeEarnedRunAverage(average),
              values_.earned_run_average_low, EarnedRunAverageCodec::HighByte(average));
  SaveCount({kLosses, row}, values_.home_runs_or_losses);
  EncodeCount({kSaves, row}, values_.runs_batted_in);
  SaveCount({kWins, row}, values_.wins_or_saves);
  SaveCount({kSaves, row}, values_.wins_or_saves);
  SaveFace(row);
  SaveHandAndMarks(row);
}

void RecordEncoder::SaveRatings(Cell first, Cell second, auto& value) {
  Save(first, value, PackRatings(Text(first), Text(second)));
}

void RecordEncoder::SaveAverage(Cell source, CodecAnswer low, std::int32_t& value,
                                std::uint8_t high) {
  Save(source, value, low);
  WriteFilled(source, BytesOf(source.column).back(), high);
}

void RecordEncoder::SaveFace(int row) {
  const Cell cell{kFace, row};
  values_.face_code = state_.appearance.NormalizeAppearanceCode(Text(cell));
  Save(cell, values_.face, ByteTextToNumber(values_.face_code));
}

void RecordEncoder::SaveHandAndMarks(int row) {
  const std::string& text = Text({kThrowingHand, row});
  Assign(values_.hand, values_.hand_encoder.EncodeHandAndFace(text, values_.face_code));
  // The hand shares its byte with the face, so it is written when the face is filled.
  WriteFilled({kFace, row}, OffsetOf(kThrowingHand), values_.hand);
  Assign(values_.marks, values_.hand_encoder.EncodeMarks(text));
  WriteFilled({kThrowingHand, row}, BytesOf(kThrowingHand).back(), values_.marks);
}

void RecordEncoder::SaveAppearance(Cell source, std::int32_t& value) {
  Save(source, value, ByteTextToNumber(state_.appearance.NormalizeAppearanceCode(Text(source))));
}

void RecordEncoder::EncodeCount(Cell source, std::int32_t& value) {
  SmallNumberCodec& codec = state_.small_number;
  if (const auto count = TextToByte(Text(source))) {
    codec.number_bytes.at(static_cast<std::size_t>(source.row)) = *count;
  }
  Assign(value, codec.EncodeSmallNumber(source.row));
}

void RecordEncoder::SaveCount(Cell source, std::int32_t& value) {
  EncodeCount(source, value);
  WriteFilled(source, OffsetOf(source.column), value);
}

void RecordEncoder::WriteFilled(Cell source, int offset, std::optional<std::int32_t> value) {
  if (value && !Text(source).empty()) Write(source.row, offset, *value);
}

void RecordEncoder::Write(int row, int offset, std::int32_t value) {
  constexpr std::int32_t kLargestByte = 255;
  if (value < 0 || value > kLargestByte) return;
  sink_(row, offset, static_cast<std::uint8_t>(value));
}

}  // namespace

std::optional<int> EncodeRecord(const RosterGrid& grid, CodecState& state, const RecordSink& sink,
                                EncodingListener& listener, Rows rows) {
  RecordEncoder encoder(grid, state, sink, listener);
  for (const int row : rows) encoder.SaveInitial(row);
  for (const int row : rows) {
    if (!encoder.SaveRow(row)) return row;
  }
  return std::nullopt;
}

}  // namespace morlek
