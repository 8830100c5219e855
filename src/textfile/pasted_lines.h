#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "team/blocks.h"

namespace morlek {

/// A line of a pasted text.
struct PastedLine {
  /// Its cells from the first one on, at most as many as a row has.
  std::vector<std::string> cells;
  /// How many cells behind them hold a text.
  int more = 0;
};

/// Reads a text from a clipboard line by line. Tabs separate the cells. A cell in quotes may hold
/// tabs, line breaks and quotes written twice; quotes that do not end before a tab, a line break or
/// the end of the text stand for themselves. A line without a tab that is one of a team data file
/// is split at its commas. Nothing that a clipboard may hold makes the reading fail.
class PastedLines {
 public:
  /// The text outlives the reader. A line break at its end begins one more, empty line.
  explicit PastedLines(std::string_view text) : text_(text) {}

  /// The next line, or nothing at the end.
  [[nodiscard]] std::optional<PastedLine> Next();

 private:
  /// Take what they give off the front of the text, but not what ends it.
  [[nodiscard]] std::optional<PastedLine> TakeLineOfTeamFile();
  [[nodiscard]] std::string TakeCell();
  [[nodiscard]] std::optional<std::string> TakeQuotedCell();

  /// Takes the end of a line; at the end of the text there is none.
  void TakeLineEnd();

  std::string_view text_;
  bool is_over_ = false;
  bool has_quotes_ = true;
};

/// The text of a pasted cell as a column takes it: without line breaks, in AVG and ERA with the
/// digits that a spreadsheet has left out, and truncated to what a cell holds.
[[nodiscard]] std::string PastedText(Column column, std::string cell);

}  // namespace morlek
