#include "team/roster_document.h"

#include <gtest/gtest.h>

#include <random>

namespace morlek {
namespace {

using enum Column;

constexpr Cell kName{kText1, 0};
constexpr Cell kNumber{kText3, 7};

/// The grid with one text in it.
RosterGrid With(RosterGrid grid, Cell cell, const std::string& text) {
  grid.SetText(cell, text);
  return grid;
}

TEST(RosterDocument, TypingInOneVisitIsOneStep) {
  RosterDocument document;
  for (const char* text : {"4", "42"}) document.Type(kNumber, text);
  document.EndVisit();
  document.Type(kNumber, "421");
  document.Type(kName, "A.B");
  document.Type(kNumber, "4217");

  EXPECT_EQ(document.Undo(), kNumber);
  EXPECT_EQ(document.grid().Text(kNumber), "421");
  EXPECT_EQ(document.Undo(), kName);
  EXPECT_EQ(document.Undo(), kNumber);
  EXPECT_EQ(document.grid().Text(kNumber), "42");
  EXPECT_EQ(document.Redo(), kNumber);
  EXPECT_EQ(document.grid().Text(kNumber), "421");
  document.Type(kNumber, "9");
  EXPECT_EQ(document.Redo(), std::nullopt) << "another way was taken";
  for (int step = 0; step < 3; ++step) EXPECT_EQ(document.Undo(), kNumber);
  EXPECT_EQ(document.Undo(), std::nullopt);
  EXPECT_EQ(document.grid(), RosterGrid());

  document.Type(kNumber, "1");
  document.Type(kNumber, "");
  EXPECT_EQ(document.Undo(), std::nullopt) << "typed and taken back by hand";
}

TEST(RosterDocument, ALoadOrAnotherImageBeginsANewHistory) {
  RosterDocument document;
  document.Type(kName, "A.B");
  document.Restart(With(document.grid(), kNumber, "7"));
  EXPECT_EQ(document.Undo(), std::nullopt);
  document.Replace(With(document.grid(), kNumber, "8"));
  document.ForgetHistory();
  EXPECT_EQ(document.Undo(), std::nullopt);
  EXPECT_EQ(document.grid().Text(kNumber), "8");
}

TEST(RosterDocument, EveryObserverIsToldOfOneChangeUntilItsSubscriptionEnds) {
  auto document = std::make_unique<RosterDocument>();
  std::vector<GridChange> told;
  int others = 0;
  RosterDocument::Subscription other = document->Subscribe([&](const GridChange&) { ++others; });
  // It ends itself and another one while it is told.
  RosterDocument::Subscription passing;
  passing = document->Subscribe([&](const GridChange&) {
    other.reset();
    passing.reset();
  });
  const auto subscription =
      document->Subscribe([&](const GridChange& change) { told.push_back(change); });

  RosterGrid grid = With(document->grid(), kName, "A.B");
  grid.SetText(kNumber, "7");
  document->Replace(grid);
  document->Replace(grid);
  document->Restart({});
  ASSERT_EQ(told.size(), 2U) << "a change that changes nothing is none";
  ASSERT_EQ(told[0].size(), 2U);
  EXPECT_EQ(told[0][1].cell, kNumber);
  EXPECT_EQ(told[0][1].before, "");
  EXPECT_EQ(told[0][1].after, "7");
  EXPECT_EQ(others, 1);
  document.reset();
}

/// Types into a cell, or replaces two cells in one step.
void ChangeAnything(RosterDocument& document, std::mt19937& random) {
  const auto any_cell = [&random] { return kAllCells.at(random() % kCellCount); };
  const std::string text(random() % 4, 'x');
  document.EndVisit();
  if (random() % 2 == 0) {
    document.Type(any_cell(), text);
  } else {
    document.Replace(With(With(document.grid(), any_cell(), text), any_cell(), "y"));
  }
}

TEST(RosterDocument, UndoAndRedoInAnyOrderComeBack) {
  std::mt19937 random(7);
  for (int session = 0; session < 50; ++session) {
    RosterDocument document;
    document.Restart(With({}, kName, "L.OADED"));
    std::vector<RosterGrid> states = {document.grid()};
    std::size_t now = 0;
    for (int step = 0; step < 60; ++step) {
      if (random() % 3 == 0) {
        EXPECT_EQ(document.Undo().has_value(), now > 0);
        if (now > 0) --now;
      } else if (random() % 3 == 0) {
        EXPECT_EQ(document.Redo().has_value(), now + 1 < states.size());
        if (now + 1 < states.size()) ++now;
      } else {
        const RosterGrid before = document.grid();
        ChangeAnything(document, random);
        if (document.grid() == before) continue;
        states.resize(++now);
        states.push_back(document.grid());
      }
      ASSERT_EQ(document.grid(), states.at(now));
    }
    while (document.Undo()) {
    }
    EXPECT_EQ(document.grid(), states.front());
  }
}

TEST(RosterDocument, ALongHistoryDropsItsOldestSteps) {
  RosterDocument document;
  RosterGrid grid;
  for (int step = 0; step < 40; ++step) {
    for (const Cell cell : kAllCells) {
      grid.SetText(cell, std::string(32767, static_cast<char>('a' + step % 2)));
    }
    document.Replace(grid);
  }
  int undone = 0;
  while (document.Undo()) ++undone;
  EXPECT_GE(undone, 1);
  EXPECT_LT(undone, 4) << "each step holds 22 MiB";
}

}  // namespace
}  // namespace morlek
