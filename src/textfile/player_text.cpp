#include "textfile/player_text.h"

#include <algorithm>
#include <utility>

#include "textfile/delimited_text.h"
#include "textfile/pasted_block.h"
#include "textfile/pasted_lines.h"

namespace morlek {
namespace {

/// The only line of a text, if it has a cell for each column.
std::optional<PastedLine> OnlyLine(std::string_view text) {
  PastedLines lines(WithoutLastLineBreak(text));
  std::optional<PastedLine> line = lines.Next();
  if (!line || line->cells.size() != kColumnCount || line->more > 0) return std::nullopt;
  if (lines.Next()) return std::nullopt;
  return line;
}

}  // namespace

std::string LineOf(const Player& player) { return JoinFields(player.texts, '\t'); }

std::string LinesOf(const RosterGrid& grid) {
  std::string lines;
  for (int row = 0; row < kSlotCount; ++row) lines += LineOf(PlayerAt(grid, row)) + '\n';
  return lines;
}

std::optional<Player> PlayerFromLine(const Block& block, std::string_view line) {
  std::optional<PastedLine> found = OnlyLine(line);
  if (!found) return std::nullopt;
  Player player{.block = &block, .texts = {}};
  for (std::size_t place = 0; place < player.texts.size(); ++place) {
    const Column column = block.columns.at(place).column;
    player.texts.at(place) = PastedText(column, std::move(found->cells.at(place)));
  }
  return player;
}

std::string PackPlayer(const Player& player) {
  return std::string(player.block->player) + '\t' + LineOf(player);
}

std::optional<Player> UnpackPlayer(std::string_view packed) {
  const std::string_view kind = packed.substr(0, packed.find('\t'));
  packed.remove_prefix(std::min(kind.size() + 1, packed.size()));
  std::optional<PastedLine> line = OnlyLine(packed);
  if (!line) return std::nullopt;
  for (const Block* block : {&kBatters, &kPitchers}) {
    if (block->player != kind) continue;
    Player player{.block = block, .texts = {}};
    for (std::size_t place = 0; place < player.texts.size(); ++place) {
      // Another program may have written it. Line feeds stay: an import brings them in.
      std::string& text = line->cells.at(place);
      std::erase(text, '\r');
      player.texts.at(place) = text.substr(0, kLongestText);
    }
    return player;
  }
  return std::nullopt;
}

}  // namespace morlek
