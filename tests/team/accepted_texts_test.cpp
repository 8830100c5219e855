#include "team/accepted_texts.h"

#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <string>

#include "team/save_preview.h"

namespace morlek {
namespace {

/// Whether SAVE keeps a text and all that stands beside it.
bool IsKept(Cell cell, const std::string& text) {
  using enum Column;
  const std::map<Column, std::string> others = {
      {kName, "A.B"},       {kPosition, "P"},          {kBattingSide, "R"},
      {kThrowingHand, "R"}, {kBattingAverage, ".001"}, {kEarnedRunAverage, "0.01"}};
  RosterGrid grid;
  for (const Cell each : kAllCells) {
    const auto other = others.find(each.column);
    grid.SetText(each, other == others.end() ? "1" : other->second);
  }
  grid.SetText(cell, text);
  return SavePreview(grid, CodecState(), RecordBytes()).after() == grid;
}

TEST(AcceptedTexts, RangesEndWhereSaveDoesAndListsHoldWhatItKeeps) {
  const std::map<std::string, std::string> next = {
      {"9", "10"},      {"10", "11"},     {"100", "101"}, {"200", "201"},
      {".511", ".512"}, {"5.11", "5.12"}, {"FF", "100"}};
  for (const Cell cell : kAllCells) {
    if (cell.row % 15 != 0 || cell.column == Column::kName) continue;
    const std::string texts = AcceptedTexts(cell.column);
    SCOPED_TRACE(texts);
    if (const std::size_t to = texts.find(" to "); to != std::string::npos) {
      const std::string last = texts.substr(to + 4, texts.find(' ', to + 4) - to - 4);
      EXPECT_TRUE(IsKept(cell, texts.substr(0, to)) && IsKept(cell, last));
      EXPECT_FALSE(IsKept(cell, next.at(last)));
      EXPECT_EQ(IsKept(cell, "0"), texts.front() == '0' && texts.at(1) == ' ');
      continue;
    }
    static const std::regex listed("[0-9A-Z<>]+");
    int count = 0;
    for (std::sregex_iterator each(texts.begin(), texts.end(), listed), end; each != end; ++each) {
      const bool is_mark = cell.column == Column::kThrowingHand && count > 1;
      EXPECT_TRUE(IsKept(cell, (is_mark ? "R" : "") + each->str())) << each->str();
      ++count;
    }
    EXPECT_EQ(count, cell.column == Column::kPosition ? 12 : cell.row == 0 ? 3 : 7);
  }
}

}  // namespace
}  // namespace morlek
