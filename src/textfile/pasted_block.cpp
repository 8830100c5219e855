#include "textfile/pasted_block.h"

#include <algorithm>

namespace morlek {
namespace {

/// Takes what stands before the first of `ends` off the front of `text`, and the end with it. A
/// carriage return and a line feed behind it are one end.
std::string_view TakeUpTo(std::string_view& text, std::string_view ends) {
  const std::size_t length = std::min(text.find_first_of(ends), text.size());
  const std::string_view taken = text.substr(0, length);
  const bool is_pair = text.substr(length, 2) == "\r\n";
  text.remove_prefix(std::min(length + (is_pair ? 2 : 1), text.size()));
  return taken;
}

}  // namespace

bool IsBlock(std::string_view text) {
  return WithoutLastLineBreak(text).find_first_of("\t\r\n") != std::string_view::npos;
}

std::string_view WithoutLastLineBreak(std::string_view text) {
  if (text.ends_with("\r\n")) return text.substr(0, text.size() - 2);
  if (text.ends_with('\n') || text.ends_with('\r')) return text.substr(0, text.size() - 1);
  return text;
}

RosterGrid WithBlock(RosterGrid grid, Cell start, std::string_view text) {
  const Block& block = BlockOf(start.row);
  const std::size_t first = block.PlaceOf(start.column).value_or(block.columns.size());

  text = WithoutLastLineBreak(text);
  for (int row = start.row; row < block.end_row; ++row) {
    const std::size_t left = text.size();
    std::string_view line = TakeUpTo(text, "\r\n");
    const bool is_last = line.size() == left;
    for (std::size_t place = first; place < block.columns.size(); ++place) {
      const std::size_t rest = line.size();
      const std::string_view cell_text = TakeUpTo(line, "\t");
      grid.SetText({block.columns.at(place).column, row},
                   std::string(cell_text.substr(0, kLongestText)));
      if (cell_text.size() == rest) break;
    }
    if (is_last) break;
  }
  return grid;
}

}  // namespace morlek
