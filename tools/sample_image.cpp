#include "sample_image.h"

#include <array>
#include <span>
#include <string_view>

#include "image/cartridge_image.h"
#include "image/record_layout.h"
#include "image/team_directory.h"

namespace morlek {
namespace {

constexpr std::size_t kImageBytes = 1573376;
constexpr std::size_t kRecordBytes = std::size_t{kSlotBytes} * kSlotCount;

constexpr std::array<std::string_view, 50> kSurnames = {
    "ALDERSON", "ASHWORTH", "BARROW",   "BELLAMY",  "BIRCH",    "BRANNIGA", "CALLOWAY", "CARDEW",
    "CASTILLO", "CROWE",    "DELGADO",  "DRUMMOND", "ECKHART",  "ESPINOZA", "FAIRFAX",  "FINCH",
    "GALLO",    "GRIMSBY",  "HARGROVE", "HOLLIS",   "IBARRA",   "INGRAM",   "JESSUP",   "KESTREL",
    "KWAN",     "LINDQUIS", "LOCKHART", "MARLOWE",  "MERCADO",  "NAVARRO",  "NORWOOD",  "OAKES",
    "OYELARAN", "PENDERGA", "PRUITT",   "QUIGLEY",  "QUINTERO", "RADCLIFF", "ROSARIO",  "SALCEDO",
    "STANTON",  "THORNE",   "TREMBLAY", "UNDERHIL", "VELASCO",  "VOSS",     "WINSLOW",  "XAVIER",
    "YARROW",   "ZIMMER"};

// LF, 1B, DH, 3B, SS, 2B, CF, RF and C, then the bench: C, IF, IF, OF, OF and 1B.
constexpr std::array<std::uint8_t, kBatterCount> kBatterPositions = {
    0x04, 0x10, 0x12, 0x0A, 0x0C, 0x0E, 0x06, 0x08, 0x02, 0x02, 0x14, 0x14, 0x16, 0x16, 0x10};

constexpr std::array<std::uint8_t, 10> kLegs = {0x00, 0x01, 0x02, 0x03, 0x04,
                                                0x10, 0x11, 0x12, 0x13, 0x14};
constexpr std::array<std::uint8_t, 6> kMarks = {0x00, 0x01, 0x10, 0x11, 0x20, 0x21};
constexpr std::array<std::uint8_t, 3> kBattingSides = {0x00, 0x11, 0x20};

/// A small generator of our own: the standard library's distributions differ between platforms.
class Dice {
 public:
  /// A number from `low` to `high`.
  int Between(int low, int high) {
    constexpr std::uint32_t kMultiplier = 1664525;
    constexpr std::uint32_t kIncrement = 1013904223;
    state_ = state_ * kMultiplier + kIncrement;
    return low + static_cast<int>((state_ >> 8U) % static_cast<std::uint32_t>(high - low + 1));
  }

  std::uint8_t Byte(int low, int high) { return static_cast<std::uint8_t>(Between(low, high)); }

  template <typename Table>
  auto OneOf(const Table& table) {
    return table.at(static_cast<std::size_t>(Between(0, static_cast<int>(table.size()) - 1)));
  }

 private:
  std::uint32_t state_ = 1995;
};

/// One slot of a record; fields are named by their offset.
class Slot {
 public:
  explicit Slot(std::span<std::uint8_t> bytes) : bytes_(bytes) {}

  void Put(int offset, std::uint8_t byte) { bytes_[static_cast<std::size_t>(offset)] = byte; }

  void PutWord(int offset, int word) {
    Put(offset, static_cast<std::uint8_t>(word % 256));
    Put(offset + 1, static_cast<std::uint8_t>(word / 256));
  }

  void PutName(char initial, std::string_view surname) {
    for (int place = 0; place < kNameBytes; ++place) Put(offset::kName + place, 0);
    Put(offset::kName, LetterCode(initial));
    for (std::size_t place = 0; place < surname.size(); ++place) {
      Put(offset::kName + 1 + static_cast<int>(place), LetterCode(surname[place]));
    }
  }

 private:
  static std::uint8_t LetterCode(char letter) {
    return static_cast<std::uint8_t>(0x0B + (letter - 'A'));
  }

  std::span<std::uint8_t> bytes_;
};

/// A byte of two digits, each up to its limit. Every random number is drawn on a line of its own:
/// in one expression their order would be the compiler's choice, and the image with it.
std::uint8_t TwoDigits(Dice& dice, int highest_first, int highest_second) {
  const int first = dice.Between(0, highest_first);
  const int second = dice.Between(0, highest_second);
  return static_cast<std::uint8_t>(first * 16 + second);
}

/// Two ratings; the second stops short of the one value that saving cannot give back.
std::uint8_t RatingPair(Dice& dice) { return TwoDigits(dice, 9, 8); }

std::uint8_t PictureCode(Dice& dice) { return TwoDigits(dice, 5, 7); }

void PutBatter(Slot& slot, Dice& dice, int number) {
  slot.Put(offset::kFieldingPosition, kBatterPositions.at(static_cast<std::size_t>(number)));
  slot.Put(offset::kSecondRatings, RatingPair(dice));
  slot.Put(offset::kBattingSide, dice.OneOf(kBattingSides));
  slot.PutWord(offset::kBattingAverage, 0x3000 + dice.Between(205, 345));
  slot.Put(offset::kHomeRuns, dice.Byte(0, 46));
  slot.Put(offset::kRunsBattedIn, dice.Byte(8, 130));
}

void PutPitcher(Slot& slot, Dice& dice, std::uint8_t face) {
  const std::uint8_t marks = dice.OneOf(kMarks);
  const int hand = dice.Between(0, 2) == 0 ? 0x10 : 0x00;
  slot.Put(offset::kFieldingPosition, 0x00);
  slot.Put(offset::kSecondRatings, TwoDigits(dice, 1, 9));
  slot.Put(offset::kPitcherSFlag, marks % 16 == 1 ? 0x01 : 0x00);
  slot.Put(offset::kThrowingHand, static_cast<std::uint8_t>(hand + face / 16));
  slot.Put(offset::kPitcherMarks, marks);
  slot.Put(offset::kWins, dice.Byte(0, 22));
  slot.Put(offset::kLosses, dice.Byte(0, 18));
  slot.PutWord(offset::kEarnedRunAverage, 0x2000 + dice.Between(180, 511));
  slot.Put(offset::kSaves, dice.Byte(0, 45));
}

void PutTeam(std::span<std::uint8_t> record, Dice& dice) {
  constexpr int kUniformStep = 37;  // prime to 99, so that no number comes twice
  int uniform_number = dice.Between(1, 99);
  for (int row = 0; row < kSlotCount; ++row) {
    Slot slot(record.subspan(std::size_t{kSlotBytes} * static_cast<std::size_t>(row), kSlotBytes));
    const auto initial = static_cast<char>('A' + dice.Between(0, 25));
    slot.PutName(initial, dice.OneOf(kSurnames));
    slot.Put(offset::kUniformNumber, static_cast<std::uint8_t>(uniform_number));
    uniform_number = (uniform_number + kUniformStep - 1) % 99 + 1;
    slot.Put(offset::kFirstRatings, RatingPair(dice));
    const std::uint8_t face = PictureCode(dice);
    slot.Put(offset::kFace, face);
    slot.Put(offset::kBody, PictureCode(dice));
    slot.Put(offset::kLegs, dice.OneOf(kLegs));
    if (row >= kBatterCount) {
      PutPitcher(slot, dice, face);
    } else {
      PutBatter(slot, dice, row);
    }
  }
}

}  // namespace

std::vector<std::uint8_t> MakeSampleImage() {
  Dice dice;
  std::vector<std::uint8_t> image(kImageBytes);
  for (std::uint8_t& byte : image) byte = dice.Byte(0, 255);
  image.at(static_cast<std::size_t>(kIdentityPosition) - 1) = kIdentityByte;

  const std::span<std::uint8_t> bytes(image);
  for (const Team& team : kTeamDirectory) {
    const auto start = static_cast<std::size_t>(team.base) - 1;
    PutTeam(bytes.subspan(start, kRecordBytes), dice);
  }
  Slot first_brave(
      bytes.subspan(static_cast<std::size_t>(kTeamDirectory.front().base) - 1, kSlotBytes));
  first_brave.PutName('C', "WHITAKER");
  first_brave.Put(offset::kUniformNumber, 21);
  return image;
}

}  // namespace morlek
