#include "team/record_decoder.h"

#include <string>

#include "codecs/average_word.h"
#include "codecs/hex_text.h"
#include "codecs/rating_digit_codec.h"
#include "image/failure.h"
#include "image/record_layout.h"

namespace morlek {
namespace {

using enum Column;

std::string WhereText(int row, int offset) {
  return " at offset " + std::to_string(offset) + " of player slot " + std::to_string(row) + " (" +
         PlayerText(row) + ")";
}

/// The first character, a point, and the rest: the form of names and earned run averages.
std::string WithPoint(const std::string& text) {
  return text.substr(0, 1) + "." + (text.empty() ? "" : text.substr(1));
}

/// One run over the record, a pass for each field.
class RecordDecoder {
 public:
  RecordDecoder(const RecordSource& source, KeptState& kept, RosterGrid& grid)
      : source_(source), kept_(kept), grid_(grid) {}

  void LoadAll();

 private:
  void LoadNames();
  void LoadFieldingPositions();
  void LoadUniformNumbers();
  void LoadHands();
  void LoadPitcherMarks();
  void LoadFirstRatings();
  void LoadSecondRatings();
  void LoadAppearance(Column column, int offset);
  void LoadBattingAverages();
  void LoadEarnedRunAverages();

  /// Which block of the grid shows what a pass has decoded.
  enum class Rows { kAll, kBatters, kPitchers };
  void LoadNumbers(Column column, Rows rows, int offset);

  void ShowRating(Column column, int row, int offset, std::string_view digits);
  [[nodiscard]] std::uint8_t Read(int row, int offset);

  const RecordSource& source_;
  KeptState& kept_;
  RosterGrid& grid_;
};

void RecordDecoder::LoadAll() {
  LoadNames();
  LoadFieldingPositions();
  LoadUniformNumbers();
  LoadHands();
  LoadPitcherMarks();
  LoadFirstRatings();
  LoadSecondRatings();
  LoadAppearance(kText12, offset::kFace);
  LoadAppearance(kText13, offset::kBody);
  LoadAppearance(kText14, offset::kLegs);
  LoadBattingAverages();
  LoadEarnedRunAverages();
  LoadNumbers(kText10, Rows::kBatters, offset::kHomeRuns);
  LoadNumbers(kText11, Rows::kBatters, offset::kRunsBattedIn);
  LoadNumbers(kText8, Rows::kPitchers, offset::kWins);
  LoadNumbers(kText10, Rows::kPitchers, offset::kLosses);
  LoadNumbers(kText11, Rows::kPitchers, offset::kSaves);
}

void RecordDecoder::LoadNames() {
  for (int row = 0; row < kSlotCount; ++row) {
    std::string letters;
    for (int letter = 0; letter < kNameBytes; ++letter) {
      letters += kept_.name_letter.DecodeNameLetter(Read(row, offset::kName + letter));
    }
    grid_.SetText({kText1, row}, WithPoint(letters));
  }
}

void RecordDecoder::LoadFieldingPositions() {
  for (int row = 0; row < kSlotCount; ++row) {
    const std::uint8_t code = Read(row, offset::kFieldingPosition);
    grid_.SetText({kText2, row}, kept_.fielding_position.DecodeFieldingPosition(code));
  }
}

void RecordDecoder::LoadUniformNumbers() {
  LoadNumbers(kText3, Rows::kAll, offset::kUniformNumber);
}

void RecordDecoder::LoadHands() {
  for (int row = 0; row < kSlotCount; ++row) {
    grid_.SetText({kText4, row},
                  IsPitcher(row)
                      ? DecodeThrowingHand(Read(row, offset::kThrowingHand))
                      : kept_.batting_side.DecodeBattingSide(Read(row, offset::kBattingSide)));
  }
}

void RecordDecoder::LoadPitcherMarks() {
  for (int row = 0; row < kSlotCount; ++row) {
    const std::uint8_t byte = Read(row, offset::kPitcherMarks);
    const std::string& marks = kept_.pitcher_marks.DecodePitcherMarks(byte);
    if (IsPitcher(row)) grid_.SetText({kText4, row}, grid_.Text({kText4, row}) + marks);
  }
}

void RecordDecoder::LoadFirstRatings() {
  for (int row = 0; row < kSlotCount; ++row) {
    const std::string digits = FormatRatingBytes({.first = Read(row, offset::kFirstRatings)}).first;
    ShowRating(kText5, row, offset::kFirstRatings, digits.substr(0, 1));
    ShowRating(kText6, row, offset::kFirstRatings, digits.substr(1));
  }
}

void RecordDecoder::LoadSecondRatings() {
  for (int row = 0; row < kSlotCount; ++row) {
    const std::string digits =
        FormatRatingBytes({.second = Read(row, offset::kSecondRatings)}).second;
    if (IsPitcher(row)) {
      ShowRating(kText7, row, offset::kSecondRatings, digits);
    } else {
      ShowRating(kText7, row, offset::kSecondRatings, digits.substr(0, 1));
      ShowRating(kText8, row, offset::kSecondRatings, digits.substr(1));
    }
  }
}

void RecordDecoder::LoadAppearance(Column column, int offset) {
  for (int row = 0; row < kSlotCount; ++row) {
    grid_.SetText({column, row}, ByteToText(Read(row, offset)));
  }
}

void RecordDecoder::LoadBattingAverages() {
  for (int row = 0; row < kSlotCount; ++row) {
    const std::uint8_t low = Read(row, offset::kBattingAverage);
    const std::uint8_t high = Read(row, offset::kBattingAverage + 1);
    const std::string& average = kept_.batting_average.DecodeBattingAverage(PairKey(low, high));
    if (!IsPitcher(row)) grid_.SetText({kText9, row}, average);
  }
}

void RecordDecoder::LoadEarnedRunAverages() {
  for (int row = 0; row < kSlotCount; ++row) {
    const std::uint8_t low = Read(row, offset::kEarnedRunAverage);
    const std::uint8_t high = Read(row, offset::kEarnedRunAverage + 1);
    const std::string& digits = kept_.earned_run_average.DecodeEarnedRunAverage(PairKey(low, high));
    if (!IsPitcher(row)) continue;
    grid_.SetText({kText9, row}, WithPoint(digits));
  }
}

void RecordDecoder::LoadNumbers(Column column, Rows rows, int offset) {
  for (int row = 0; row < kSlotCount; ++row) {
    SmallNumberCodec& codec = kept_.small_number;
    codec.number_bytes.at(static_cast<std::size_t>(row)) = Read(row, offset);
    const std::string& number = codec.DecodeSmallNumber(row);
    if (rows == Rows::kAll || IsPitcher(row) == (rows == Rows::kPitchers)) {
      grid_.SetText({column, row}, number);
    }
  }
}

void RecordDecoder::ShowRating(Column column, int row, int offset, std::string_view digits) {
  const std::optional<std::string> shown = ShownRating(digits);
  if (!shown) {
    throw OperationFailed("The team could not be loaded, because the rating" +
                          WhereText(row, offset) + " holds a digit that is no number.");
  }
  grid_.SetText({column, row}, *shown);
}

std::uint8_t RecordDecoder::Read(int row, int offset) {
  try {
    return source_(row, offset);
  } catch (const OperationFailed& failure) {
    throw OperationFailed("The team could not be loaded, because the byte" +
                          WhereText(row, offset) + " could not be read. " + failure.what());
  }
}

}  // namespace

void DecodeRecord(const RecordSource& source, KeptState& kept, RosterGrid& grid) {
  RecordDecoder(source, kept, grid).LoadAll();
}

}  // namespace morlek
