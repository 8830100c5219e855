#include "team/refusal.h"

#include <cstdint>
#include <sstream>
#include <string_view>

#include "codecs/appearance_codec.h"
#include "codecs/hand_codec.h"
#include "codecs/hex_text.h"
#include "codecs/name_letter_codec.h"
#include "codecs/rating_digit_codec.h"
#include "team/accepted_texts.h"
#include "team/column_bytes.h"
#include "team/same_text.h"

namespace morlek {
namespace {

using enum Column;

/// Whether SAVE keeps the text of a cell, and what shares a byte with it, beside a good text there.
/// Only of columns that share a byte; this is asked for with every key.
bool IsTakenAlone(Column column, const std::string& text) {
  constexpr char kGoodRating[] = "1";
  switch (column) {
    case kBatting:
    case kPitchSpeed:
    case kSpeed:
      return KeepsRatings(text, kGoodRating);
    case kPower:
    case kControl:
    case kFielding:
      return KeepsRatings(kGoodRating, text);
    case kThrowingHand: {
      PitcherHandEncoder encoder;
      return encoder.EncodeHandAndFace(text, ByteToTwoDigits(0)).is_known &&
             encoder.EncodeMarks(text).is_known;
    }
    case kFace: {
      const std::optional<std::uint8_t> byte = AppearanceByte(text);
      return byte && IsSameText(column, text, ByteToText(*byte));
    }
    default:
      return true;
  }
}

/// What is wrong with a name, by its first fault.
std::optional<std::string> FaultOfName(std::string_view name) {
  if (name.starts_with('.')) return "no initial stands before the period";
  constexpr std::size_t kPoint = 1;
  for (std::size_t place = 0; place < name.size(); ++place) {
    const char character = name[place];
    if (place == kPoint ? character != '.' : character == '.') {
      return place == kPoint ? "no period follows the initial"
                             : "a second period stands in the name";
    }
    if (!NameLetterCodec().EncodeNameLetter(name.substr(place, 1)).is_known) {
      std::ostringstream reason;
      reason << "character " << place + 1 << " is no letter that the game has";
      return reason.str();
    }
  }
  return std::nullopt;
}

}  // namespace

std::optional<Cell> CauseElsewhere(const RosterGrid& grid, const SavePreview& preview, Cell cell) {
  if (preview.FateOf(cell) == SavePreview::Fate::kNotReached) {
    return Cell{kName, *preview.end_row()};
  }
  for (const BlockColumn& each : BlockOf(cell.row).columns) {
    const Cell other{each.column, cell.row};
    if (other == cell || !ShareAByte(cell, other)) continue;
    if (!IsTakenAlone(cell.column, grid.Text(cell))) return std::nullopt;
    if (!IsTakenAlone(other.column, grid.Text(other))) return other;
  }
  return std::nullopt;
}

std::optional<std::string> ReasonOfRefusal(const std::string& text, Cell cell,
                                           SavePreview::Fate fate, std::optional<Cell> cause) {
  if (fate == SavePreview::Fate::kEndsSave) return "the name is too long";
  if (!cause) return cell.column == kName ? FaultOfName(text) : std::nullopt;
  if (cause->column == kName) {
    return "the name of " + PlayerText(cause->row) + " is too long and ends the save";
  }
  const Block& block = BlockOf(cell.row);
  const bool is_first = *block.PlaceOf(cell.column) < *block.PlaceOf(cause->column);
  const std::string_view caption = CaptionOf(block, cell.column);
  const std::string_view bad = CaptionOf(block, cause->column);
  std::string reason(is_first ? caption : bad);
  reason.append(" and ").append(is_first ? bad : caption);
  reason.append(" share a byte, and ").append(bad);
  return reason.append(" is not ").append(AcceptedTexts(cause->column));
}

}  // namespace morlek
