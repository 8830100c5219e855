#include "team/roster_document.h"

#include <algorithm>
#include <utility>

namespace morlek {
namespace {

/// Imports of long texts would let a history grow without end; the oldest steps go first.
constexpr std::size_t kMostHistoryBytes = std::size_t{32} << 20U;

std::size_t BytesOf(const GridChange& change) {
  std::size_t bytes = 0;
  for (const CellChange& part : change) {
    bytes += sizeof(part) + part.before.size() + part.after.size();
  }
  return bytes;
}

GridChange Reverse(GridChange change) {
  for (CellChange& part : change) std::swap(part.before, part.after);
  return change;
}

}  // namespace

RosterDocument::Subscription RosterDocument::Subscribe(Observer observer) {
  auto subscription = std::make_shared<const Observer>(std::move(observer));
  std::erase_if(observers_, [](const auto& each) { return each.expired(); });
  observers_.emplace_back(subscription);
  return subscription;
}

void RosterDocument::Type(Cell cell, std::string text) {
  const std::string& before = grid_.Text(cell);
  if (before == text) return;
  const GridChange change = {{cell, before, std::move(text)}};
  if (visited_ == cell && done_ == steps_.size() && done_ > 0) {
    CellChange& typed = steps_.back().front();
    history_bytes_ += change.front().after.size();
    history_bytes_ -= typed.after.size();
    typed.after = change.front().after;
    if (typed.after == typed.before) {
      // Typed and taken back by hand: nothing is left to undo.
      DropLastStep();
      done_ = steps_.size();
      visited_.reset();
    }
  } else {
    AddStep(change);
    visited_ = cell;
  }
  Apply(change);
}

void RosterDocument::Put(Cell cell, std::string text) {
  EndVisit();
  Type(cell, std::move(text));
  EndVisit();
}

void RosterDocument::Replace(const RosterGrid& grid) {
  EndVisit();
  const GridChange change = ChangeTo(grid);
  if (change.empty()) return;
  AddStep(change);
  Apply(change);
}

void RosterDocument::Restart(const RosterGrid& grid) {
  ForgetHistory();
  Apply(ChangeTo(grid));
}

void RosterDocument::ForgetHistory() {
  EndVisit();
  steps_.clear();
  done_ = 0;
  history_bytes_ = 0;
}

std::optional<Cell> RosterDocument::Undo() {
  EndVisit();
  if (done_ == 0) return std::nullopt;
  --done_;
  const GridChange change = Reverse(steps_.at(done_));
  Apply(change);
  return change.front().cell;
}

std::optional<Cell> RosterDocument::Redo() {
  EndVisit();
  if (done_ == steps_.size()) return std::nullopt;
  const GridChange change = steps_.at(done_);
  ++done_;
  Apply(change);
  return change.front().cell;
}

void RosterDocument::Apply(const GridChange& change) {
  if (change.empty()) return;
  for (const CellChange& part : change) grid_.SetText(part.cell, part.after);
  // An observer may end a subscription, its own too, or begin one.
  const std::vector<std::weak_ptr<const Observer>> told = observers_;
  for (const std::weak_ptr<const Observer>& each : told) {
    if (const Subscription observer = each.lock()) (*observer)(change);
  }
}

void RosterDocument::AddStep(GridChange change) {
  while (steps_.size() > done_) DropLastStep();
  history_bytes_ += BytesOf(change);
  steps_.push_back(std::move(change));
  while (history_bytes_ > kMostHistoryBytes && steps_.size() > 1) {
    history_bytes_ -= BytesOf(steps_.front());
    steps_.pop_front();
  }
  done_ = steps_.size();
}

void RosterDocument::DropLastStep() {
  history_bytes_ -= BytesOf(steps_.back());
  steps_.pop_back();
}

GridChange RosterDocument::ChangeTo(const RosterGrid& grid) const {
  GridChange change;
  for (const Cell cell : kAllCells) {
    if (grid_.Text(cell) != grid.Text(cell)) {
      change.push_back({cell, grid_.Text(cell), grid.Text(cell)});
    }
  }
  return change;
}

}  // namespace morlek
