#include "team/refusal.h"

#include <algorithm>
#include <string_view>

#include "codecs/name_letter_codec.h"
#include "image/record_layout.h"
#include "team/accepted_texts.h"
#include "team/column_bytes.h"
#include "team/record_bytes.h"
#include "team/record_decoder.h"
#include "team/same_text.h"

namespace morlek {
namespace {

/// Whether SAVE keeps the text of a cell, and what shares a byte with it, beside neighbours that do
/// not stand in its way: those of a record of zeros.
bool IsTakenAlone(Cell cell, const std::string& text) {
  RecordBytes zeros;
  for (int row = 0; row < kSlotCount; ++row) {
    for (int offset = 0; offset < kSlotBytes; ++offset) zeros.Put(row, offset, 0);
  }
  CodecState state;
  RosterGrid grid;
  DecodeRecord([](int /*row*/, int /*offset*/) { return std::uint8_t{0}; }, state, grid);
  grid.SetText(cell, text);
  const SavePreview alone(grid, state, zeros);
  return IsSameText(cell.column, text, alone.TextAfter(cell)) &&
         std::ranges::all_of(BlockOf(cell.row).columns, [&](const BlockColumn& each) {
           const Cell other{each.column, cell.row};
           return other == cell || !ShareAByte(cell, other) ||
                  grid.Text(other) == alone.TextAfter(other);
         });
}

/// What is wrong with a name, by its first fault.
std::optional<std::string> FaultOfName(std::string_view name) {
  constexpr std::size_t kPoint = 1;
  for (std::size_t place = 0; place < name.size(); ++place) {
    const char character = name[place];
    if (place == kPoint ? character != '.' : character == '.') {
      return place == kPoint ? "no period follows the initial"
                             : "a second period stands in the name";
    }
    if (!NameLetterCodec().EncodeNameLetter(name.substr(place, 1)).is_known) {
      return "character " + std::to_string(place + 1) + " is no letter that the game has";
    }
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::string> ReasonOfRefusal(const RosterGrid& grid, const SavePreview& preview,
                                           Cell cell) {
  const SavePreview::Fate fate = preview.FateOf(cell);
  if (fate == SavePreview::Fate::kEndsSave) return "the name is too long";
  if (fate == SavePreview::Fate::kNotReached) {
    return "the name of " + PlayerText(*preview.end_row()) + " is too long and ends the save";
  }
  const std::string& text = grid.Text(cell);
  if (cell.column == Column::kName) return FaultOfName(text);
  if (!IsTakenAlone(cell, text)) return std::nullopt;

  const Block& block = BlockOf(cell.row);
  const auto caption = [&block](Column column) {
    return std::string(block.columns.at(block.PlaceOf(column).value_or(0)).caption);
  };
  for (const BlockColumn& each : block.columns) {
    const Cell other{each.column, cell.row};
    if (other == cell || !ShareAByte(cell, other)) continue;
    if (IsTakenAlone(other, grid.Text(other))) continue;
    const bool is_first = *block.PlaceOf(cell.column) < *block.PlaceOf(other.column);
    std::string reason = caption(is_first ? cell.column : other.column);
    reason.append(" and ").append(caption(is_first ? other.column : cell.column));
    reason.append(" share a byte, and ").append(caption(other.column));
    return reason.append(" is not ").append(AcceptedTexts(other.column));
  }
  return std::nullopt;
}

}  // namespace morlek
