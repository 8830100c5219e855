#include "league/season.h"

#include <algorithm>

#include "league/season_columns.h"

namespace morlek {
namespace {

/// Text from outside, made safe to show.
std::string Shown(std::string_view text) {
  constexpr std::size_t kLongest = 40;
  constexpr unsigned char kFirstVisible = 0x20;
  constexpr unsigned char kDelete = 0x7F;
  const auto is_inside_character = [](char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
  };
  std::string shown(text.substr(0, kLongest));
  if (text.size() > kLongest) {
    // Never a part of a character.
    if (is_inside_character(text[kLongest])) {
      while (!shown.empty() && is_inside_character(shown.back())) shown.pop_back();
      if (!shown.empty()) shown.pop_back();
    }
    shown += "...";
  }
  std::ranges::replace_if(
      shown,
      [](char byte) {
        const auto code = static_cast<unsigned char>(byte);
        return code < kFirstVisible || code == kDelete;
      },
      '?');
  return shown;
}

std::string KnownOr(std::string_view text) { return text.empty() ? "?" : Shown(text); }

}  // namespace

std::string PlayerOf(const Team& team, int row, std::string_view name) {
  std::string player = std::string(team.key) + " " + std::to_string(row + 1);
  if (!name.empty()) player.append(" ").append(Shown(name));
  return player;
}

std::string ChangeText(const SeasonChange& change) {
  const bool is_name = change.cell.column == Column::kName;
  std::string text = PlayerOf(*change.team, change.cell.row, change.name);
  text.append(": ").append(is_name ? "name" : HeaderOf(change.cell.column));
  return text.append(" ")
      .append(KnownOr(change.before))
      .append(" -> ")
      .append(KnownOr(change.after));
}

std::string Quoted(std::string_view text) { return std::string(1, '"').append(Shown(text)) += '"'; }

}  // namespace morlek
