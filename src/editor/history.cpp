#include "editor/history.h"

#include <utility>

namespace morlek {
namespace {

constexpr std::size_t kMostBytes = std::size_t{32} << 20U;

std::size_t BytesOf(const Step& step) {
  std::size_t bytes = sizeof(step);
  for (const CellChange& part : step.texts) {
    bytes += sizeof(part) + part.before.size() + part.after.size();
  }
  return bytes;
}

}  // namespace

void History::Add(Step step) {
  EndVisit();
  if (step.texts.empty() && !step.scenes) return;
  while (can_redo()) DropLastStep();
  bytes_ += BytesOf(step);
  steps_.push_back(std::move(step));
  // No step alone, a change of all cells at most, holds so much.
  while (bytes_ > kMostBytes) {
    bytes_ -= BytesOf(steps_.front());
    steps_.pop_front();
  }
  done_ = steps_.size();
}

void History::AddToVisit(const CellChange& change, Way way) {
  const Visit visit{change.cell, way};
  if (visited_ != visit) {
    Add({.texts = {change}, .scenes = {}});
    visited_ = visit;
    return;
  }
  CellChange& step = steps_.back().texts.at(0);
  bytes_ += change.after.size();
  bytes_ -= step.after.size();
  step.after = change.after;
  if (step.after == step.before) {
    DropLastStep();
    done_ = steps_.size();
    EndVisit();
  }
}

std::optional<Step> History::Undo() {
  EndVisit();
  if (!can_undo()) return std::nullopt;
  Step step = steps_.at(--done_);
  step.texts = Reverse(std::move(step.texts));
  if (step.scenes) std::swap(step.scenes->before, step.scenes->after);
  return step;
}

std::optional<Step> History::Redo() {
  if (!can_redo()) return std::nullopt;
  return steps_.at(done_++);
}

void History::DropLastStep() {
  bytes_ -= BytesOf(steps_.back());
  steps_.pop_back();
}

}  // namespace morlek
