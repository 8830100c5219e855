#include "textfile/pasted_block.h"

#include <gtest/gtest.h>

#include <map>

#include "support/form_columns.h"

namespace morlek {
namespace {

struct PastedCase {
  Cell start;
  std::string text;
  std::vector<std::pair<Cell, std::string>> cells;
  PasteResult without_place = {};
};

// clang-format off
const std::vector<PastedCase> kBlocks = {
    {CellOfArray(3, 2), "7\t\tR\n8\t9\n",
     {{CellOfArray(3, 2), "7"}, {CellOfArray(4, 2), ""}, {CellOfArray(5, 2), "R"}, {CellOfArray(3, 3), "8"},
      {CellOfArray(4, 3), "9"}}},
    {CellOfArray(13, 13), "a\tb\tc\r\nd\re\nf",
     {{CellOfArray(13, 13), "a"}, {CellOfArray(14, 13), "b"}, {CellOfArray(13, 14), "d"}},
     {.cells = 3, .lines = 2}},
    {CellOfArray(4, 23), "RS\t2.50\t3\nL\n\nX",
     {{CellOfArray(4, 23), "RS"}, {CellOfArray(9, 23), "2.50"}, {CellOfArray(5, 23), "3"}, {CellOfArray(4, 24), "L"}},
     {.cells = 1, .lines = 1}},
    {CellOfArray(1, 0), "\n\nC.X\t",
     {{CellOfArray(1, 0), ""}, {CellOfArray(1, 1), ""}, {CellOfArray(1, 2), "C.X"}, {CellOfArray(2, 2), ""}}},
    {CellOfArray(1, 24), std::string("\t\0,", 3), {{CellOfArray(1, 24), ""}, {CellOfArray(2, 24), {"\0,", 2}}}},
    // Quotes, also those that are none.
    {CellOfArray(1, 0), "\"A\tB\"\t\"P\"\"\"\t\"4\r\n2\"\t\"\"\n\"C\"D\te\"\n\"F\tG",
     {{CellOfArray(1, 0), "A\tB"}, {CellOfArray(2, 0), "P\""}, {CellOfArray(3, 0), "42"}, {CellOfArray(4, 0), ""},
      {CellOfArray(1, 1), "\"C\"D"}, {CellOfArray(2, 1), "e\""}, {CellOfArray(1, 2), "\"F"},
      {CellOfArray(2, 2), "G"}}},
    // Heads, also those that are none.
    {CellOfArray(1, 14), "p.name\tP\t#\t\nA\nName\tp\t#\tHand\tERA\nB",
     {{CellOfArray(1, 14), "A"}, {CellOfArray(1, 15), "B"}}},
    {CellOfArray(9, 0), "avg\tHR\n.25", {{CellOfArray(9, 0), ".250"}}},
    {CellOfArray(9, 0), "HR\tAVG", {{CellOfArray(9, 0), "HR"}, {CellOfArray(10, 0), "AVG"}}},
    {CellOfArray(2, 15), "P\nP", {{CellOfArray(2, 15), "P"}, {CellOfArray(2, 16), "P"}}},
    {CellOfArray(12, 3), "F\n\"\"", {{CellOfArray(12, 3), "F"}, {CellOfArray(12, 4), ""}}},
    // From the first column on into the next block, whose columns are others.
    {CellOfArray(1, 14), "A\t\t\t\t0.5\nB\t\t\t\t0.5",
     {{CellOfArray(1, 14), "A"}, {CellOfArray(2, 14), ""}, {CellOfArray(3, 14), ""}, {CellOfArray(4, 14), ""},
      {CellOfArray(5, 14), "0.5"}, {CellOfArray(1, 15), "B"}, {CellOfArray(2, 15), ""}, {CellOfArray(3, 15), ""},
      {CellOfArray(4, 15), ""}, {CellOfArray(9, 15), "0.50"}}},
    // Lines of a team data file, and one that lacks a comma.
    {CellOfArray(12, 0), "A,B,C,4,5,6,7,8,9,10,11,,13,14,\r\nA,B,C,4,5,6,7,8,9,10,11,12,13,\r\n",
     {{CellOfArray(12, 0), "A"}, {CellOfArray(13, 0), "B"}, {CellOfArray(14, 0), "C"},
      {CellOfArray(12, 1), "A,B,C,4,5,6,7,8,9,10,11,12,13,"}}, {.cells = 10, .lines = 0}},
    // Beyond the right edge, and below the last row; what is empty loses nothing.
    {CellOfArray(13, 24), "A" + std::string(14, '\t') + "x\t\ty\nB\t\tC\n\t\n",
     {{CellOfArray(13, 24), "A"}, {CellOfArray(14, 24), ""}}, {.cells = 4, .lines = 1}}};
// clang-format on

TEST(PastedBlock, IsLaidRightAndDownAsItIsMeant) {
  RosterGrid old;
  for (const Cell cell : kAllCells) old.SetText(cell, "old");
  for (const PastedCase& block : kBlocks) {
    RosterGrid expected = old;
    for (const auto& [cell, text] : block.cells) expected.SetText(cell, text);
    const GridWithBlock laid = WithBlock(old, block.start, block.text);
    EXPECT_EQ(laid.grid, expected) << block.text;
    EXPECT_EQ(laid.without_place, block.without_place) << block.text;
  }
  std::string huge;
  huge.resize(10000000, 'x');
  const RosterGrid laid = WithBlock(old, CellOfArray(2, 0), huge + "\t" + huge).grid;
  EXPECT_EQ(laid.Text(CellOfArray(2, 0)).size(), 32767U);
  EXPECT_EQ(laid.Text(CellOfArray(3, 0)).size(), 32767U);
}

TEST(PastedBlock, IsToldByATabOrALineBreakBeforeTheEnd) {
  for (const char* text : {"a\tb", "\t", "a\nb", "a\rb", "a\n\n", "\n\n"}) {
    EXPECT_TRUE(IsBlock(text)) << text;
  }
  const std::map<std::string, std::string> others = {
      {"", ""}, {"a", "a"}, {"a\n", "a"}, {"a\r\n", "a"}, {"a\r", "a"}, {"\n", ""}, {" a ", " a "}};
  for (const auto& [text, pasted] : others) {
    EXPECT_FALSE(IsBlock(text));
    EXPECT_EQ(WithoutLastLineBreak(text), pasted);
  }
}

}  // namespace
}  // namespace morlek
