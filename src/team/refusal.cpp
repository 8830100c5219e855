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

/// Whether SAVE keeps the text of a cell, and what shares a byte with it, beside a good text there;
/// of a column that shares none, anything.
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
    case kThrowingHand:
      return PitcherHandEncoder().EncodeMarks(text).is_known;
    default: {
      const std::optional<std::uint8_t> byte = AppearanceByte(text);
      return byte && IsSameText(column, text, ByteToText(*byte));
    }
  }
}

/// What is wrong with a name, by its first fault.
std::optional<std::string> FaultOfName(std::string_view name) {
  if (name.starts_with('.')) return "no initial stands before the period";
  for (std::size_t place = 0; place < name.size(); ++place) {
    const bool is_period = name[place] == '.';
    if (place == 1 && !is_period) return "no period follows the initial";
    if (place > 1 && is_period) return "a second period stands in the name";
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
  if (!IsTakenAlone(cell.column, grid.Text(cell))) return std::nullopt;
  for (const BlockColumn& each : BlockOf(cell.row).columns) {
    const Cell other{each.column, cell.row};
    if (ShareAByte(cell, other) && !IsTakenAlone(other.column, grid.Text(other))) return other;
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
  std::string columns;
  for (const BlockColumn& each : BlockOf(cell.row).columns) {
    if (each.column != cell.column && each.column != cause->column) continue;
    columns.append(columns.empty() ? "" : " and ").append(each.caption);
  }
  return columns + " share a byte, and " +
         std::string(CaptionOf(BlockOf(cell.row), cause->column)) + " is not " +
         AcceptedTexts(cause->column);
}

}  // namespace morlek
