#include "editor/history.h"

#include <gtest/gtest.h>

namespace morlek {
namespace {

const std::string kLong(32767, 'x');

int StepsBack(History& history) {
  int steps = 0;
  while (history.Undo()) ++steps;
  return steps;
}

TEST(History, ALongOneDropsItsOldestStepsAndNoMore) {
  // Each step but the first holds a little more than 8 MiB, so 32 MiB take three of them.
  GridChange change;
  for (std::size_t index = 0; index < 131; ++index) {
    change.push_back({kAllCells.at(index), kLong, kLong});
  }
  History history;
  history.Add({.texts = {change.front()}, .scenes = {}});
  for (int step = 0; step < 7; ++step) {
    change.front().after = std::to_string(step);
    history.Add({.texts = change, .scenes = {}});
  }
  EXPECT_EQ(history.Undo()->texts.front().before, "6") << "the last one is there";
  EXPECT_EQ(StepsBack(history), 2);
}

TEST(History, OneVisitNeverFillsIt) {
  constexpr Cell kFirst{Column::kName, 0};
  constexpr Cell kSeventh{Column::kUniformNumber, 7};
  History history;
  history.AddTyping({kFirst, "", "first"});
  history.EndVisit();
  // What is typed counts as it grows and shrinks.
  for (int round = 0; round < 2000; ++round) {
    history.AddTyping({kSeventh, "short", kLong});
    history.AddTyping({kSeventh, kLong, "short" + std::to_string(round)});
  }
  EXPECT_EQ(StepsBack(history), 2);
}

TEST(History, TakingBackEndsAVisit) {
  History history;
  for (const char* text : {"taken back", "stays"}) {
    static_cast<void>(history.Undo());
    history.AddTyping({{Column::kName, 0}, "", text});
  }
  EXPECT_EQ(StepsBack(history), 1);
}

}  // namespace
}  // namespace morlek
