#include "textfile/pasted_block.h"

#include <gtest/gtest.h>

#include <map>

namespace morlek {
namespace {

using enum Column;

struct Block {
  Cell start;
  std::string text;
  std::vector<std::pair<Cell, std::string>> cells;
};

// clang-format off
const std::vector<Block> kBlocks = {
    {{kText3, 2}, "7\t\tR\n8\t9\n",
     {{{kText3, 2}, "7"}, {{kText4, 2}, ""}, {{kText5, 2}, "R"}, {{kText3, 3}, "8"},
      {{kText4, 3}, "9"}}},
    {{kText13, 13}, "a\tb\tc\r\nd\re\nf",
     {{{kText13, 13}, "a"}, {{kText14, 13}, "b"}, {{kText13, 14}, "d"}}},
    {{kText4, 23}, "RS\t2.50\t3\nL\n\nX",
     {{{kText4, 23}, "RS"}, {{kText9, 23}, "2.50"}, {{kText5, 23}, "3"}, {{kText4, 24}, "L"}}},
    {{kText1, 0}, "\n\nC.X\t",
     {{{kText1, 0}, ""}, {{kText1, 1}, ""}, {{kText1, 2}, "C.X"}, {{kText2, 2}, ""}}},
    {{kText1, 24}, std::string("\t\0,", 3), {{{kText1, 24}, ""}, {{kText2, 24}, {"\0,", 2}}}}};
// clang-format on

TEST(PastedBlock, IsLaidRightAndDownAndEndsAtTheEdgesOfItsHalf) {
  RosterGrid old;
  for (const Cell cell : kAllCells) old.SetText(cell, "old");
  for (const Block& block : kBlocks) {
    RosterGrid expected = old;
    for (const auto& [cell, text] : block.cells) expected.SetText(cell, text);
    EXPECT_EQ(WithBlock(old, block.start, block.text), expected) << block.text;
  }
  std::string huge;
  huge.resize(10000000, 'x');
  const RosterGrid laid = WithBlock(old, {kText2, 0}, huge + "\t" + huge);
  EXPECT_EQ(laid.Text({kText2, 0}).size(), 32767U);
  EXPECT_EQ(laid.Text({kText3, 0}).size(), 32767U);
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
