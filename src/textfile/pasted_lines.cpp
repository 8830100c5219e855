#include "textfile/pasted_lines.h"

#include <algorithm>
#include <utility>

#include "team/roster_grid.h"
#include "textfile/average_form.h"

namespace morlek {
namespace {

constexpr char kQuotationMark = '"';
constexpr std::string_view kCellEnds = "\t\r\n";

void AddCell(PastedLine& line, std::string cell) {
  if (line.cells.size() < kColumnCount) {
    line.cells.push_back(std::move(cell));
  } else if (!cell.empty()) {
    ++line.more;
  }
}

/// Takes what stands before the first of `ends` off the front of a text.
std::string_view TakeUpTo(std::string_view& text, std::string_view ends) {
  const std::string_view taken = text.substr(0, text.find_first_of(ends));
  text.remove_prefix(taken.size());
  return taken;
}

}  // namespace

std::optional<PastedLine> PastedLines::Next() {
  if (is_over_) return std::nullopt;
  PastedLine line;
  if (auto split = TakeLineOfTeamFile()) {
    line = *std::move(split);
  } else {
    AddCell(line, TakeCell());
    while (text_.starts_with('\t')) {
      text_.remove_prefix(1);
      AddCell(line, TakeCell());
    }
  }
  TakeLineEnd();
  return line;
}

std::optional<PastedLine> PastedLines::TakeLineOfTeamFile() {
  std::string_view rest = text_;
  std::string_view fields = TakeUpTo(rest, "\r\n");
  if (!fields.ends_with(',') || std::ranges::count(fields, ',') != kColumnCount ||
      fields.find('\t') != std::string_view::npos) {
    return std::nullopt;
  }
  text_ = rest;
  PastedLine line;
  while (!fields.empty()) {
    AddCell(line, std::string(TakeUpTo(fields, ",")));
    fields.remove_prefix(1);
  }
  return line;
}

std::string PastedLines::TakeCell() {
  if (has_quotes_ && text_.starts_with(kQuotationMark)) {
    if (auto cell = TakeQuotedCell()) return *std::move(cell);
  }
  return std::string(TakeUpTo(text_, kCellEnds));
}

std::optional<std::string> PastedLines::TakeQuotedCell() {
  std::string_view rest = text_.substr(1);
  std::string cell;
  while (true) {
    cell += TakeUpTo(rest, "\"");
    if (rest.empty()) {
      // No later quotes end either, and are not to be searched for again.
      has_quotes_ = false;
      return std::nullopt;
    }
    rest.remove_prefix(1);
    if (!rest.starts_with(kQuotationMark)) break;
    cell += kQuotationMark;
    rest.remove_prefix(1);
  }
  if (!rest.empty() && kCellEnds.find(rest.front()) == std::string_view::npos) return std::nullopt;
  text_ = rest;
  return cell;
}

void PastedLines::TakeLineEnd() {
  is_over_ = text_.empty();
  if (!is_over_) text_.remove_prefix(text_.starts_with("\r\n") ? 2 : 1);
}

std::string PastedText(Column column, std::string cell) {
  std::erase_if(cell, [](char character) { return character == '\r' || character == '\n'; });
  cell = InAverageForm(column, cell);
  cell.resize(std::min(cell.size(), kLongestText));
  return cell;
}

}  // namespace morlek
