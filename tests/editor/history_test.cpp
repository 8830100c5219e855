#include "editor/history.h"

#include <gtest/gtest.h>

#include <random>

namespace morlek {
namespace {

using enum Column;

constexpr Cell kFirst{kName, 0};
constexpr Cell kSeventh{kUniformNumber, 7};

/// A grid with its history, of which every step is made at once.
struct Edited {
  RosterGrid grid;
  History history;

  void Type(Cell cell, const std::string& text) {
    if (grid.Text(cell) == text) return;
    history.AddTyping({cell, grid.Text(cell), text});
    grid.SetText(cell, text);
  }
  void Leaf(Cell cell, const std::string& text) {
    history.AddLeafing({cell, grid.Text(cell), text});
    grid.SetText(cell, text);
  }
  void Replace(const RosterGrid& next) {
    const GridChange change = ChangeBetween(grid, next);
    if (!change.empty()) history.Add({.texts = change, .scenes = {}});
    grid = next;
  }
  /// The first cell that changed, or nothing when there was no step.
  std::optional<Cell> Undo() { return Apply(history.Undo()); }
  std::optional<Cell> Redo() { return Apply(history.Redo()); }

 private:
  std::optional<Cell> Apply(const std::optional<Step>& step) {
    if (!step) return std::nullopt;
    for (const CellChange& part : step->texts) {
      EXPECT_EQ(grid.Text(part.cell), part.before);
      grid.SetText(part.cell, part.after);
    }
    return step->texts.front().cell;
  }
};

/// The grid with one text in it.
RosterGrid With(RosterGrid grid, Cell cell, const std::string& text) {
  grid.SetText(cell, text);
  return grid;
}

TEST(History, TypingInOneVisitIsOneStep) {
  Edited edited;
  for (const char* text : {"4", "42"}) edited.Type(kSeventh, text);
  edited.history.EndVisit();
  edited.Type(kSeventh, "421");
  edited.Type(kFirst, "A.B");
  edited.Type(kSeventh, "4217");

  EXPECT_EQ(edited.Undo(), kSeventh);
  EXPECT_EQ(edited.grid.Text(kSeventh), "421");
  EXPECT_EQ(edited.Undo(), kFirst);
  EXPECT_EQ(edited.Undo(), kSeventh);
  EXPECT_EQ(edited.grid.Text(kSeventh), "42");
  EXPECT_EQ(edited.Redo(), kSeventh);
  EXPECT_EQ(edited.grid.Text(kSeventh), "421");
  edited.Type(kSeventh, "9");
  EXPECT_EQ(edited.Redo(), std::nullopt) << "another way was taken";
  for (int step = 0; step < 3; ++step) EXPECT_EQ(edited.Undo(), kSeventh);
  EXPECT_EQ(edited.Undo(), std::nullopt);
  EXPECT_EQ(edited.grid, RosterGrid());

  edited.Type(kSeventh, "1");
  edited.Type(kSeventh, "");
  EXPECT_EQ(edited.Undo(), std::nullopt) << "typed and taken back by hand";
}

TEST(History, LeafingIsOneStepAVisitBesideTyping) {
  Edited edited;
  edited.Type(kSeventh, "5");
  for (const char* text : {"6", "7", "10"}) edited.Leaf(kSeventh, text);
  edited.Type(kSeventh, "101");
  edited.Leaf(kSeventh, "57");
  edited.history.EndVisit();
  edited.Leaf(kSeventh, "56");
  for (const char* text : {"57", "101", "10", "5", ""}) {
    EXPECT_EQ(edited.Undo(), kSeventh);
    EXPECT_EQ(edited.grid.Text(kSeventh), text);
  }
  EXPECT_EQ(edited.Undo(), std::nullopt);
}

/// Types into a cell, or replaces two cells in one step.
void ChangeAnything(Edited& edited, std::mt19937& random) {
  const auto any_cell = [&random] { return kAllCells.at(random() % kCellCount); };
  const std::string text(random() % 4, 'x');
  edited.history.EndVisit();
  if (random() % 2 == 0) {
    edited.Type(any_cell(), text);
  } else {
    edited.Replace(With(With(edited.grid, any_cell(), text), any_cell(), "y"));
  }
}

TEST(History, UndoAndRedoInAnyOrderComeBack) {
  std::mt19937 random(7);
  for (int session = 0; session < 50; ++session) {
    Edited edited;
    std::vector<RosterGrid> states = {edited.grid};
    std::size_t now = 0;
    for (int step = 0; step < 60; ++step) {
      if (random() % 3 == 0) {
        EXPECT_EQ(edited.history.can_undo(), now > 0);
        EXPECT_EQ(edited.Undo().has_value(), now > 0);
        if (now > 0) --now;
      } else if (random() % 3 == 0) {
        EXPECT_EQ(edited.history.can_redo(), now + 1 < states.size());
        EXPECT_EQ(edited.Redo().has_value(), now + 1 < states.size());
        if (now + 1 < states.size()) ++now;
      } else {
        const RosterGrid before = edited.grid;
        ChangeAnything(edited, random);
        if (edited.grid == before) continue;
        states.resize(++now);
        states.push_back(edited.grid);
      }
      ASSERT_EQ(edited.grid, states.at(now));
    }
    while (edited.Undo()) {
    }
    EXPECT_EQ(edited.grid, states.front());
  }
}

TEST(History, ALongOneDropsItsOldestStepsAndNoMore) {
  // Each step holds a little more than 7 MiB, so 32 MiB take four of them.
  Edited edited;
  const auto text_of = [](int step) { return std::string(32767, static_cast<char>('a' + step)); };
  for (int step = 0; step < 7; ++step) {
    RosterGrid grid;
    for (std::size_t index = 0; index < 120; ++index) {
      grid.SetText(kAllCells.at(index), text_of(step));
    }
    edited.Replace(grid);
  }
  int undone = 0;
  while (edited.Undo()) ++undone;
  EXPECT_EQ(undone, 4);
  EXPECT_EQ(edited.grid.Text(kFirst), text_of(2));

  // What is typed counts as it grows and shrinks.
  Edited typed;
  typed.Type(kFirst, "first");
  typed.history.EndVisit();
  for (int round = 0; round < 2000; ++round) {
    typed.Type(kSeventh, text_of(round % 2));
    typed.Type(kSeventh, "short" + std::to_string(round % 2));
  }
  EXPECT_EQ(typed.Undo(), kSeventh);
  EXPECT_EQ(typed.Undo(), kFirst) << "one visit never fills the history";
}

}  // namespace
}  // namespace morlek
