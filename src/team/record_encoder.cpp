#include "team/record_encoder.h"

#include <string>

#include "codecs/hex_text.h"
#include "codecs/number_text.h"
#include "codecs/rating_digit_codec.h"
#include "image/record_layout.h"

namespace morlek {
namespace {

using enum Column;

constexpr std::size_t kLongestName = kNameBytes + 1;  // with the period

/// Assigns when there is a value. `Target` is a working value of the save or a kept one.
template <typename Target>
void Assign(Target& target, std::optional<std::int32_t> converted) {
  if (converted) target = *converted;
}

/// What the conversions of one save have given last, carried from row to row. Initial and surname
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
  RecordEncoder(const RosterGrid& grid, KeptState& kept, const RecordSink& sink,
                MessagePort& messages)
      : grid_(grid), kept_(kept), sink_(sink), messages_(messages) {}

  void SaveInitials();

  /// False when the row's name is too long; nothing of the row has been offered then.
  [[nodiscard]] bool SaveRow(int row);

 private:
  [[nodiscard]] bool SaveName(int row);
  void SavePosition(int row);
  void SaveUniformNumber(int row);
  void SaveBattingSide(int row);
  void SavePitcherSFlag(int row);
  void SaveFirstRatings(int row);
  void SaveSecondRatings(int row);
  void SaveBattingAverage(int row);
  void SaveEarnedRunAverage(int row);
  void SaveCounts(int row);
  void SaveFace(int row);
  void SaveThrowingHand(int row);
  void SavePitcherMarks(int row);
  void SaveBodyAndLegs(int row);

  /// Passes a count through the number byte buffer and the encoder.
  [[nodiscard]] std::optional<std::int32_t> EncodeCount(Cell source);

  /// Offers a value that fits into a byte to the sink when the cell that it stands for is filled.
  void WriteFilled(Cell source, int offset, std::int32_t value);
  void Write(Cell source, int offset, std::int32_t value);

  const RosterGrid& grid_;
  KeptState& kept_;
  const RecordSink& sink_;
  MessagePort& messages_;
  WorkingValues values_;
};

void RecordEncoder::SaveInitials() {
  for (int row = 0; row < kSlotCount; ++row) {
    const std::string initial = grid_.Text({kText1, row}).substr(0, 1);
    Assign(values_.letter,
           ByteTextToNumber(kept_.name_letter.EncodeNameLetter(initial, messages_)));
    WriteFilled({kText1, row}, offset::kName, values_.letter);
  }
}

bool RecordEncoder::SaveRow(int row) {
  if (!SaveName(row)) return false;
  SavePosition(row);
  SaveUniformNumber(row);
  if (IsPitcher(row)) {
    SavePitcherSFlag(row);
  } else {
    SaveBattingSide(row);
  }
  SaveFirstRatings(row);
  SaveSecondRatings(row);
  if (IsPitcher(row)) {
    SaveEarnedRunAverage(row);
  } else {
    SaveBattingAverage(row);
  }
  SaveCounts(row);
  SaveFace(row);
  if (IsPitcher(row)) {
    SaveThrowingHand(row);
    SavePitcherMarks(row);
  }
  SaveBodyAndLegs(row);
  return true;
}

bool RecordEncoder::SaveName(int row) {
  std::string name = grid_.Text({kText1, row});
  if (name.size() > kLongestName) return false;
  name.resize(kLongestName, ' ');

  for (int letter = 1; letter < kNameBytes; ++letter) {
    // The second character, where the period stands, has no letter code.
    const std::string character = name.substr(static_cast<std::size_t>(letter) + 1, 1);
    Assign(values_.letter,
           ByteTextToNumber(kept_.name_letter.EncodeNameLetter(character, messages_)));
    WriteFilled({kText1, row}, offset::kName + letter, values_.letter);
  }
  return true;
}

void RecordEncoder::SavePosition(int row) {
  FieldingPositionCodec& codec = kept_.fielding_position;
  Assign(values_.position,
         ByteTextToNumber(codec.EncodeFieldingPosition(grid_.Text({kText2, row}))));
  WriteFilled({kText2, row}, offset::kFieldingPosition, values_.position);
}

void RecordEncoder::SaveUniformNumber(int row) {
  SmallNumberCodec& codec = kept_.small_number;
  Assign(kept_.uniform_number,
         ByteTextToNumber(codec.EncodeUniformNumber(row, grid_.Text({kText3, row}))));
  if (kept_.uniform_number) {
    WriteFilled({kText3, row}, offset::kUniformNumber, *kept_.uniform_number);
  }
}

void RecordEncoder::SaveBattingSide(int row) {
  BattingSideCodec& codec = kept_.batting_side;
  Assign(values_.batting_side,
         ByteTextToNumber(codec.EncodeBattingSide(row, grid_.Text({kText4, row}))));
  WriteFilled({kText4, row}, offset::kBattingSide, values_.batting_side);
}

void RecordEncoder::SavePitcherSFlag(int row) {
  const std::optional<std::int32_t> flag =
      ByteTextToNumber(EncodePitcherSFlag(grid_.Text({kText4, row})));
  // Written for an empty cell too.
  if (flag) Write({kText4, row}, offset::kPitcherSFlag, *flag);
}

void RecordEncoder::SaveFirstRatings(int row) {
  Assign(kept_.first_ratings, PackRatings(grid_.Text({kText5, row}), grid_.Text({kText6, row})));
  if (kept_.first_ratings) WriteFilled({kText5, row}, offset::kFirstRatings, *kept_.first_ratings);
}

void RecordEncoder::SaveSecondRatings(int row) {
  if (IsPitcher(row)) {
    Assign(values_.pitcher_second_rating, PackSingleRating(grid_.Text({kText7, row})));
    WriteFilled({kText7, row}, offset::kSecondRatings, values_.pitcher_second_rating);
  } else {
    Assign(values_.batter_second_ratings,
           PackRatings(grid_.Text({kText7, row}), grid_.Text({kText8, row})));
    WriteFilled({kText7, row}, offset::kSecondRatings, values_.batter_second_ratings);
  }
}

void RecordEncoder::SaveBattingAverage(int row) {
  const std::string& average = grid_.Text({kText9, row});
  Assign(values_.batting_average_low,
         ByteTextToNumber(kept_.batting_average.EncodeBattingAverage(average)));
  WriteFilled({kText9, row}, offset::kBattingAverage, values_.batting_average_low);
  WriteFilled({kText9, row}, offset::kBattingAverage + 1, BattingAverageCodec::HighByte(average));
}

void RecordEncoder::SaveEarnedRunAverage(int row) {
  const std::string& average = grid_.Text({kText9, row});
  Assign(values_.earned_run_average_low,
         ByteTextToNumber(kept_.earned_run_average.EncodeEarnedRunAverage(average)));
  WriteFilled({kText9, row}, offset::kEarnedRunAverage, values_.earned_run_average_low);
  WriteFilled({kText9, row}, offset::kEarnedRunAverage + 1,
              EarnedRunAverageCodec::HighByte(average));
}

void RecordEncoder::SaveCounts(int row) {
  // All four pass through the shared number text in every row; what one leaves there the next one
  // may fall back on.
  Assign(values_.home_runs_or_losses, EncodeCount({kText10, row}));
  WriteFilled({kText10, row}, offset::kHomeRuns, values_.home_runs_or_losses);

  Assign(values_.runs_batted_in, EncodeCount({kText11, row}));
  if (!IsPitcher(row)) WriteFilled({kText11, row}, offset::kRunsBattedIn, values_.runs_batted_in);

  Assign(values_.wins_or_saves, EncodeCount({kText8, row}));
  if (IsPitcher(row)) WriteFilled({kText8, row}, offset::kWins, values_.wins_or_saves);

  Assign(values_.wins_or_saves, EncodeCount({kText11, row}));
  if (IsPitcher(row)) WriteFilled({kText11, row}, offset::kSaves, values_.wins_or_saves);
}

void RecordEncoder::SaveFace(int row) {
  values_.face_code = kept_.appearance.NormalizeAppearanceCode(grid_.Text({kText12, row}));
  Assign(values_.face, ByteTextToNumber(values_.face_code));
  WriteFilled({kText12, row}, offset::kFace, values_.face);
}

void RecordEncoder::SaveThrowingHand(int row) {
  Assign(values_.hand, ByteTextToNumber(values_.hand_encoder.EncodeHandAndFace(
                           grid_.Text({kText4, row}), values_.face_code)));
  // The hand shares its byte with the face, so it is written when the face is filled.
  WriteFilled({kText12, row}, offset::kThrowingHand, values_.hand);
}

void RecordEncoder::SavePitcherMarks(int row) {
  Assign(values_.marks,
         ByteTextToNumber(values_.hand_encoder.EncodeMarks(grid_.Text({kText4, row}))));
  WriteFilled({kText4, row}, offset::kPitcherMarks, values_.marks);
}

void RecordEncoder::SaveBodyAndLegs(int row) {
  AppearanceCodec& codec = kept_.appearance;
  Assign(values_.body, ByteTextToNumber(codec.NormalizeAppearanceCode(grid_.Text({kText13, row}))));
  WriteFilled({kText13, row}, offset::kBody, values_.body);
  Assign(values_.legs, ByteTextToNumber(codec.NormalizeAppearanceCode(grid_.Text({kText14, row}))));
  WriteFilled({kText14, row}, offset::kLegs, values_.legs);
}

std::optional<std::int32_t> RecordEncoder::EncodeCount(Cell source) {
  SmallNumberCodec& codec = kept_.small_number;
  if (const auto count = TextToByte(grid_.Text(source))) {
    codec.number_bytes.at(static_cast<std::size_t>(source.row)) = *count;
  }
  return ByteTextToNumber(codec.EncodeSmallNumber(source.row));
}

void RecordEncoder::WriteFilled(Cell source, int offset, std::int32_t value) {
  if (!grid_.Text(source).empty()) Write(source, offset, value);
}

void RecordEncoder::Write(Cell source, int offset, std::int32_t value) {
  constexpr std::int32_t kLargestByte = 255;
  if (value < 0 || value > kLargestByte) return;
  // A write that fails is skipped like every other step.
  static_cast<void>(sink_(source, offset, static_cast<std::uint8_t>(value)));
}

}  // namespace

std::optional<int> EncodeRecord(const RosterGrid& grid, KeptState& kept, const RecordSink& sink,
                                MessagePort& messages) {
  RecordEncoder encoder(grid, kept, sink, messages);
  encoder.SaveInitials();
  for (int row = 0; row < kSlotCount; ++row) {
    if (!encoder.SaveRow(row)) return row;
  }
  return std::nullopt;
}

}  // namespace morlek
