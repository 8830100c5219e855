#include "team/team_saver.h"

#include "codecs/hex_text.h"
#include "codecs/number_text.h"
#include "codecs/rating_digit_codec.h"
#include "image/record_layout.h"

namespace morlek {
namespace {

using enum Column;

constexpr std::size_t kLongestName = 10;

/// Assigns when there is a value. `Target` is a working value of the save or an optional one.
template <typename Target>
void Assign(Target& target, std::optional<std::int32_t> converted) {
  if (converted) target = *converted;
}

}  // namespace

/// What the conversions of one save have given last, carried from row to row. Initial and surname
/// letters share a value, and so do wins and saves.
struct TeamSaver::WorkingValues {
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

void TeamSaver::Save() {
  WorkingValues values;
  // When the image cannot be opened every write fails, and the save runs on all the same.
  static_cast<void>(image_.Open());

  SaveInitials(values);
  for (int row = 0; row < kSlotCount; ++row) {
    if (!SaveRow(row, values)) {
      messages_.Show({"You are only allowed 10 player letters per name counting the period."});
      image_.Close();
      return;
    }
  }
  image_.Close();
  messages_.Show({"Your changes have been saved."});
}

void TeamSaver::SaveInitials(WorkingValues& values) {
  for (int row = 0; row < kSlotCount; ++row) {
    const std::string initial = grid_.Text(kText1, row).substr(0, 1);
    Assign(values.letter, ByteTextToNumber(codecs_.name_letter.EncodeNameLetter(initial)));
    WriteFilled(kText1, row, offset::kName, values.letter);
  }
}

bool TeamSaver::SaveRow(int row, WorkingValues& values) {
  if (!SaveName(row, values)) return false;
  SavePosition(row, values);
  SaveUniformNumber(row);
  if (IsPitcher(row)) {
    SavePitcherSFlag(row);
  } else {
    SaveBattingSide(row, values);
  }
  SaveFirstRatings(row);
  SaveSecondRatings(row, values);
  if (IsPitcher(row)) {
    SaveEarnedRunAverage(row, values);
  } else {
    SaveBattingAverage(row, values);
  }
  SaveCounts(row, values);
  SaveFace(row, values);
  if (IsPitcher(row)) {
    SaveThrowingHand(row, values);
    SavePitcherMarks(row, values);
  }
  SaveBodyAndLegs(row, values);
  return true;
}

bool TeamSaver::SaveName(int row, WorkingValues& values) {
  std::string name = grid_.Text(kText1, row);
  if (name.size() > kLongestName) return false;
  name.resize(kLongestName, ' ');

  for (int letter = 1; letter < kNameBytes; ++letter) {
    // The second character, where the period stands, has no letter code.
    const std::string character = name.substr(static_cast<std::size_t>(letter) + 1, 1);
    Assign(values.letter, ByteTextToNumber(codecs_.name_letter.EncodeNameLetter(character)));
    WriteFilled(kText1, row, offset::kName + letter, values.letter);
  }
  return true;
}

void TeamSaver::SavePosition(int row, WorkingValues& values) {
  FieldingPositionCodec& codec = codecs_.fielding_position;
  Assign(values.position, ByteTextToNumber(codec.EncodeFieldingPosition(grid_.Text(kText2, row))));
  WriteFilled(kText2, row, offset::kFieldingPosition, values.position);
}

void TeamSaver::SaveUniformNumber(int row) {
  SmallNumberCodec& codec = codecs_.small_number;
  Assign(uniform_number_,
         ByteTextToNumber(codec.EncodeUniformNumber(row, grid_.Text(kText3, row))));
  if (uniform_number_) WriteFilled(kText3, row, offset::kUniformNumber, *uniform_number_);
}

void TeamSaver::SaveBattingSide(int row, WorkingValues& values) {
  BattingSideCodec& codec = codecs_.batting_side;
  Assign(values.batting_side,
         ByteTextToNumber(codec.EncodeBattingSide(row, grid_.Text(kText4, row))));
  WriteFilled(kText4, row, offset::kBattingSide, values.batting_side);
}

void TeamSaver::SavePitcherSFlag(int row) {
  const std::optional<std::int32_t> flag =
      ByteTextToNumber(EncodePitcherSFlag(grid_.Text(kText4, row)));
  // Written for an empty cell too.
  if (flag) Write(row, offset::kPitcherSFlag, *flag);
}

void TeamSaver::SaveFirstRatings(int row) {
  Assign(first_ratings_, PackRatings(grid_.Text(kText5, row), grid_.Text(kText6, row)));
  if (first_ratings_) WriteFilled(kText5, row, offset::kFirstRatings, *first_ratings_);
}

void TeamSaver::SaveSecondRatings(int row, WorkingValues& values) {
  if (IsPitcher(row)) {
    Assign(values.pitcher_second_rating, PackSingleRating(grid_.Text(kText7, row)));
    WriteFilled(kText7, row, offset::kSecondRatings, values.pitcher_second_rating);
  } else {
    Assign(values.batter_second_ratings,
           PackRatings(grid_.Text(kText7, row), grid_.Text(kText8, row)));
    WriteFilled(kText7, row, offset::kSecondRatings, values.batter_second_ratings);
  }
}

void TeamSaver::SaveBattingAverage(int row, WorkingValues& values) {
  const std::string& average = grid_.Text(kText9, row);
  Assign(values.batting_average_low,
         ByteTextToNumber(codecs_.batting_average.EncodeBattingAverage(average)));
  WriteFilled(kText9, row, offset::kBattingAverage, values.batting_average_low);
  WriteFilled(kText9, row, offset::kBattingAverage + 1, BattingAverageCodec::HighByte(average));
}

void TeamSaver::SaveEarnedRunAverage(int row, WorkingValues& values) {
  const std::string& average = grid_.Text(kText9, row);
  Assign(values.earned_run_average_low,
         ByteTextToNumber(codecs_.earned_run_average.EncodeEarnedRunAverage(average)));
  WriteFilled(kText9, row, offset::kEarnedRunAverage, values.earned_run_average_low);
  WriteFilled(kText9, row, offset::kEarnedRunAverage + 1, EarnedRunAverageCodec::HighByte(average));
}

void TeamSaver::SaveCounts(int row, WorkingValues& values) {
  // All four pass through the shared number text in every row; what one leaves there the next one
  // may fall back on.
  Assign(values.home_runs_or_losses, EncodeCount(kText10, row));
  WriteFilled(kText10, row, offset::kHomeRuns, values.home_runs_or_losses);

  Assign(values.runs_batted_in, EncodeCount(kText11, row));
  if (!IsPitcher(row)) WriteFilled(kText11, row, offset::kRunsBattedIn, values.runs_batted_in);

  Assign(values.wins_or_saves, EncodeCount(kText8, row));
  if (IsPitcher(row)) WriteFilled(kText8, row, offset::kWins, values.wins_or_saves);

  Assign(values.wins_or_saves, EncodeCount(kText11, row));
  if (IsPitcher(row)) WriteFilled(kText11, row, offset::kSaves, values.wins_or_saves);
}

void TeamSaver::SaveFace(int row, WorkingValues& values) {
  values.face_code = codecs_.appearance.NormalizeAppearanceCode(grid_.Text(kText12, row));
  Assign(values.face, ByteTextToNumber(values.face_code));
  WriteFilled(kText12, row, offset::kFace, values.face);
}

void TeamSaver::SaveThrowingHand(int row, WorkingValues& values) {
  Assign(values.hand, ByteTextToNumber(values.hand_encoder.EncodeHandAndFace(
                          grid_.Text(kText4, row), values.face_code)));
  // The hand shares its byte with the face, so it is written when the face is filled.
  WriteFilled(kText12, row, offset::kThrowingHand, values.hand);
}

void TeamSaver::SavePitcherMarks(int row, WorkingValues& values) {
  Assign(values.marks, ByteTextToNumber(values.hand_encoder.EncodeMarks(grid_.Text(kText4, row))));
  WriteFilled(kText4, row, offset::kPitcherMarks, values.marks);
}

void TeamSaver::SaveBodyAndLegs(int row, WorkingValues& values) {
  AppearanceCodec& codec = codecs_.appearance;
  Assign(values.body, ByteTextToNumber(codec.NormalizeAppearanceCode(grid_.Text(kText13, row))));
  WriteFilled(kText13, row, offset::kBody, values.body);
  Assign(values.legs, ByteTextToNumber(codec.NormalizeAppearanceCode(grid_.Text(kText14, row))));
  WriteFilled(kText14, row, offset::kLegs, values.legs);
}

std::optional<std::int32_t> TeamSaver::EncodeCount(Column source, int row) {
  SmallNumberCodec& codec = codecs_.small_number;
  if (const auto count = TextToByte(grid_.Text(source, row))) {
    codec.number_bytes.at(static_cast<std::size_t>(row)) = *count;
  }
  return ByteTextToNumber(codec.EncodeSmallNumber(row));
}

void TeamSaver::WriteFilled(Column source, int row, int offset, std::int32_t value) {
  if (!grid_.Text(source, row).empty()) Write(row, offset, value);
}

void TeamSaver::Write(int row, int offset, std::int32_t value) {
  constexpr std::int32_t kLargestByte = 255;
  if (value < 0 || value > kLargestByte) return;
  // A write that fails is skipped like every other step.
  static_cast<void>(image_.WriteField(row, offset, static_cast<std::uint8_t>(value)));
}

}  // namespace morlek
