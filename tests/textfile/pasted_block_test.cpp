#include "textfile/pasted_block.h"

#include <gtest/gtest.h>

#include <map>

#include "support/form_columns.h"

namespace morlek {
namespace {

struct Block {
  Cell start;
  std::string text;
  std::vector<std::pair<Cell, std::string>> cells;
};

// clang-format off
const std::vector<Block> kBlocks = {
    {CellOfArray(3, 2), "7\t\tR\n8\t9\n",
     {{CellOfArray(3, 2), "7"}, {CellOfArray(4, 2), ""}, {CellOfArray(5, 2), "R"}, {CellOfArray(3, 3), "8"},
      {CellOfArray(4, 3), "9"}}},
    {CellOfArray(13, 13), "a\tb\tc\r\nd\re\nf",
     {{CellOfArray(13, 13), "a"}, {CellOfArray(14, 13), "b"}, {CellOfArray(13, 14), "d"}}},
    {CellOfArray(4, 23), "RS\t2.50\t3\nL\n\nX",
     {{CellOfArray(4, 23), "RS"}, {CellOfArray(9, 23), "2.50"}, {CellOfArray(5, 23), "3"}, {CellOfArray(4, 24), "L"}}},
    {CellOfArray(1, 0), "\n\nC.X\t",
     {{CellOfArray(1, 0), ""}, {CellOfArray(1, 1), ""}, {CellOfArray(1, 2), "C.X"}, {CellOfArray(2, 2), ""}}},
    {CellOfArray(1, 24), std::string("\t\0,", 3), {{CellOfArray(1, 24), ""}, {CellOfArray(2, 24), {"\0,", 2}}}}};
// clang-format on

TEST(PastedBlock, IsLaidRightAndDownAndEndsAtTheEdgesOfItsHalf) {
  RosterGrid old;
  for (const Cell cell : kAllCells) old.SetText(cell, "old");
  for (const Block& block : kBlocks) {
    RosterGrid expected = old;
    for (const auto& [cell, text] : block.cells) expected.SetText(cell, text);
    EXPECT_EQ(WithBlock(old, block.start, block.text).grid, expected) << block.text;
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
