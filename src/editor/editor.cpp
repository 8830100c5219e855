#include "editor/editor.h"

#include <algorithm>
#include <cstdint>
#include <system_error>
#include <utility>

#include "codecs/code_page.h"
#include "codecs/hex_text.h"
#include "editor/name_reporter.h"
#include "team/column_bytes.h"

namespace morlek {
namespace {

constexpr char kImageFailureTitle[] = "Morlek Editor";

bool LacksHeader(const std::filesystem::path& path) {
  // The size that stands for a failure is not one of whole banks.
  std::error_code ignored;
  return LacksCopierHeader(std::filesystem::file_size(path, ignored));
}

}  // namespace

Editor::Editor(MessagePort& messages, FileOpener opener)
    : messages_(messages), channel_(std::move(opener)) {}

Editor::Subscription Editor::Subscribe(Observer observer) {
  auto subscription = std::make_shared<const Observer>(std::move(observer));
  observers_.emplace_back(subscription);
  return subscription;
}

OpenResult Editor::OpenFirstImage(const std::filesystem::path& path) {
  const std::optional<std::uint8_t> identity = image_.ReadIdentityByte(path);
  const bool accepted = ShowIdentity(identity.value_or(0));
  if (accepted) state_.scene.place.image = path;
  image_.Close();
  const OpenResult result = accepted   ? OpenResult::kOpened
                            : identity ? OpenResult::kRefused
                                       : OpenResult::kNotOpened;
  EndOpening(path, result);
  if (!accepted) {
    messages_.Show({"You must first open a Dale Harrow Baseball SNES rom.", kImageFailureTitle});
  }
  return result;
}

OpenResult Editor::OpenAnotherImage(const std::filesystem::path& path) {
  const std::optional<std::uint8_t> identity = image_.ReadIdentityByte(path);
  if (!identity) {
    // The image that was current stays so, and nothing is reported.
    EndOpening(path, OpenResult::kNotOpened);
    return OpenResult::kNotOpened;
  }
  if (!ShowIdentity(*identity)) {
    EndOpening(path, OpenResult::kRefused);
    messages_.Show({"This is not a Dale Harrow Baseball SNES rom.", kImageFailureTitle});
    return OpenResult::kRefused;
  }
  // The grid keeps its texts, but they are not this image's.
  const PassedScene before{state_.scene, std::exchange(state_.picked, nullptr)};
  state_.scene = {{path, before.scene.place.team}, false};
  const StepNote left_behind = LeftBehindIn(before.scene);
  AddStep(before, {});
  Enter(state_.scene);
  EndOpening(path, OpenResult::kOpened, {.layout_set = true}, left_behind);
  return OpenResult::kOpened;
}

void Editor::CancelDialog() {
  StepNote note;
  const auto* import = std::get_if<ImportResult>(&state_.outcome);
  if (import != nullptr && import->outcome == ImportResult::Outcome::kEndedEarly) {
    note = ClosedImport{import->lines};
  }
  image_.Close();
  EndFileStep({}, {}, std::move(note));
}

bool Editor::ShowIdentity(std::uint8_t identity) {
  state_.identity = ByteToText(identity);
  return state_.identity == ByteToText(kIdentityByte);
}

LoadResult Editor::LoadTeam(std::string_view toolbar_key) {
  const PassedScene before{state_.scene, state_.picked};
  const Team* team = FindTeam(toolbar_key);
  if (team != nullptr) {
    state_.picked = team;
  } else {
    team = state_.scene.place.team;
  }
  // A load that finds a file open fails, reports it and closes the file.
  const bool was_held = channel_.is_open_for_text();
  if (std::exchange(state_.is_file_held, false)) EndStep({});

  RosterGrid grid = state_.grid;
  LoadResult result = morlek::LoadTeam(image_, LocationOf(team), codec_state_, grid);
  const StepNote left_behind = LeftBehindIn(before.scene);
  state_.note = {};
  baseline_ = nullptr;
  if (result.outcome == LoadResult::Outcome::kNotOpened) {
    AbandonLoad(was_held ? "The team could not be loaded, because a team file was still open since "
                           "an import or export failed. It is closed now, so pick the team again."
                         : result.failure);
    AddStep(before, {});
  } else {
    state_.scene = {{before.scene.place.image, team}, true};
    const GridChange texts = ChangeBetween(state_.grid, grid);
    state_.grid = grid;
    if (result.outcome == LoadResult::Outcome::kLoaded) {
      baselines_.insert_or_assign(state_.scene.place, Baseline(result.read, grid));
      AddStep(before, texts);
      Enter(state_.scene);
      EndFileStep(result, {.texts = texts, .loaded = true, .layout_set = true}, left_behind);
      return result;
    }
    const Team* shown_before = state_.loaded;
    state_.layout = Layout::kNarrow;
    RefreshMarks();
    state_.loaded = shown_before;
    Publish({.texts = texts, .layout_set = true});
    AbandonLoad(result.failure);
    AddStep(before, texts);
  }
  EndFileStep(result, {}, left_behind);
  return result;
}

void Editor::AbandonLoad(const std::string& failure) {
  messages_.Show({failure, kProgramTitle, Message::Icon::kCritical});
  image_.Close();
  state_.scene.is_grid_shown = false;
  RefreshMarks();
}

StepNote Editor::LeftBehindIn(const Scene& left) const {
  const int changes = state_.marks.modified_count();
  if (changes == 0) return {};
  return LeftBehind{left.place, changes};
}

StepNote Editor::SavedIn(const SaveResult& saved, bool was_blocked) const {
  SavedChanges changes{.was_blocked = was_blocked};
  for (const Cell cell : kAllCells) {
    const CellMark& mark = state_.marks.At(cell);
    if (!mark.is_modified) continue;
    const auto offsets = BytesOf(cell.column);
    if (saved.refused.HasAny(cell.row, offsets)) {
      ++changes.refused;
    } else if (!mark.is_lossy && saved.taken.HasAny(cell.row, offsets)) {
      ++changes.stored;
    }
  }
  if (changes.stored == 0 && changes.refused == 0) return {};
  return changes;
}

void Editor::AddStep(const PassedScene& before, const GridChange& texts) {
  Step step{.texts = texts, .scenes = {}};
  if (before.scene != state_.scene) step.scenes = {before, {state_.scene, state_.picked}};
  // Before the first team there is nothing to go back to.
  const bool is_first =
      before.scene.place.team == nullptr && !history_.can_undo() && !history_.can_redo();
  if (!is_first) history_.Add(std::move(step));
}

void Editor::Enter(const Scene& scene) {
  state_.scene = scene;
  state_.layout = Layout::kNarrow;
  baseline_ = scene.is_grid_shown ? &baselines_.at(scene.place) : nullptr;
  RefreshMarks();
}

void Editor::LoadTeamBeside(int places) {
  constexpr int kTeams = kTeamDirectory.size();
  int place = 0;
  if (state_.picked != nullptr) {
    place = (static_cast<int>(PlaceOf(*state_.picked)) + places + kTeams) % kTeams;
  } else if (places < 0) {
    return;
  }
  LoadTeam(kTeamDirectory.at(static_cast<std::size_t>(place)).key);
}

SaveResult Editor::Save() {
  NameReporter reporter(messages_, [this](StepNote note) {
    if (note.index() == 0 && state_.note.index() == 0) return;
    EndStep({}, {}, std::move(note));
  });
  const bool was_blocked = channel_.is_open_for_text();
  const SaveResult result =
      SaveTeam(image_, LocationOf(state_.scene.place.team), state_.grid, codec_state_, reporter);
  const StepNote saved = SavedIn(result, was_blocked);
  if (baseline_ != nullptr) baseline_->FollowSave(result, *preview_);
  RefreshMarks();
  EndFileStep(result, {}, saved);
  if (!result.end_row) messages_.Show({"Your changes have been saved."});
  return result;
}

ImportResult Editor::ImportTeam(const std::filesystem::path& path) {
  RosterGrid grid = state_.grid;
  const ImportResult result = ImportTeamData(channel_, path, grid);
  const GridChange texts = Replace(grid);
  if (!texts.empty()) RefreshMarks();
  EndFileStep(result, {.texts = texts});
  return result;
}

ExportResult Editor::ExportTeam(const std::filesystem::path& path) {
  const ExportResult result = ExportTeamData(channel_, path, state_.grid);
  EndFileStep(result);
  return result;
}

bool Editor::IsTeamFile(const std::filesystem::path& path) {
  return UpperCase(path.extension().string()) == ".TXT";
}

void Editor::TakeFile(const std::filesystem::path& path) {
  if (IsTeamFile(path)) {
    ImportTeam(path);
  } else {
    OpenAnotherImage(path);
  }
}

void Editor::Visit(Cell cell) {
  if (!IsFeature(cell.column)) return;
  ShowChooser(cell);
  Publish({.layout_set = true});
}

void Editor::ShowChooser(Cell cell) {
  state_.stance_row = cell.row;
  state_.chooser = cell.column;
  state_.layout = Layout::kWide;
}

void Editor::Type(Cell cell, std::string text) {
  text.resize(std::min(text.size(), kLongestText));
  if (text == state_.grid.Text(cell)) return;
  const CellChange typed = {cell, state_.grid.Text(cell), std::move(text)};
  history_.AddTyping(typed);
  state_.grid.SetText(cell, typed.after);
  EndStep({.texts = {typed}});
}

void Editor::Pick(Column feature, std::string code_text) {
  RosterGrid grid = state_.grid;
  const Cell cell{feature, state_.stance_row};
  grid.SetText(cell, std::move(code_text));
  EndStep({.texts = Replace(grid), .picked_into = cell});
}

void Editor::Leaf(Cell cell, std::string code_text) {
  if (code_text == state_.grid.Text(cell)) return;
  const CellChange leafed = {cell, state_.grid.Text(cell), std::move(code_text)};
  history_.AddLeafing(leafed);
  state_.grid.SetText(cell, leafed.after);
  const bool widened = state_.layout != Layout::kWide;
  ShowChooser(cell);
  EndStep({.texts = {leafed}, .picked_into = cell, .layout_set = widened});
}

void Editor::PasteBlock(Cell start, std::string_view block) {
  const GridWithBlock pasted = WithBlock(state_.grid, start, block);
  const GridChange texts = Replace(pasted.grid);
  if (!texts.empty() || pasted.without_place != PasteResult()) {
    EndStep({.texts = texts}, pasted.without_place);
  }
}

void Editor::PastePlayer(int row, const Player& player) {
  const GridChange texts = Replace(WithPlayer(state_.grid, row, player));
  if (!texts.empty()) EndStep({.texts = texts});
}

std::optional<int> Editor::MovePlayer(int row, int direction) {
  const std::optional<int> neighbor = NeighborOf(row, direction);
  if (!neighbor) return std::nullopt;
  const RosterGrid moved = WithPlayer(state_.grid, *neighbor, PlayerAt(state_.grid, row));
  const GridChange texts = Replace(WithPlayer(moved, row, PlayerAt(state_.grid, *neighbor)));
  if (!texts.empty()) EndStep({.texts = texts});
  return neighbor;
}

std::optional<Cell> Editor::Undo() { return Follow(history_.Undo()); }

std::optional<Cell> Editor::Redo() { return Follow(history_.Redo()); }

std::optional<Cell> Editor::Follow(const std::optional<Step>& step) {
  if (!step) return std::nullopt;
  for (const CellChange& part : step->texts) state_.grid.SetText(part.cell, part.after);
  if (!step->scenes) {
    EndStep({.texts = step->texts});
    return step->texts.front().cell;
  }
  const auto& [scene, picked] = step->scenes->after;
  state_.picked = picked;
  Enter(scene);
  EndStep({.texts = step->texts, .loaded = scene.is_grid_shown, .layout_set = true});
  return std::nullopt;
}

void Editor::NoteCopy(std::string who) { EndStep({}, {}, CopyNote{std::move(who)}); }

void Editor::Minimize() {
  state_.layout = Layout::kNarrow;
  Publish({.layout_set = true});
}

SavePreview Editor::Preview() const {
  return {state_.grid, codec_state_, baseline_ == nullptr ? RecordBytes() : baseline_->bytes()};
}

RecordLocation Editor::LocationOf(const Team* team) const {
  RecordLocation location{state_.scene.place.image, std::nullopt};
  if (team != nullptr) location.base = team->base;
  return location;
}

GridChange Editor::Replace(const RosterGrid& grid) {
  GridChange texts = ChangeBetween(state_.grid, grid);
  history_.Add({.texts = texts, .scenes = {}});
  state_.grid = grid;
  return texts;
}

void Editor::EndStep(const StateChange& change, StepOutcome outcome, StepNote note) {
  state_.outcome = std::move(outcome);
  state_.note = std::move(note);
  if (!change.texts.empty()) FollowTexts(change.texts);
  Publish(change);
}

void Editor::RefreshMarks() {
  if (baseline_ == nullptr) {
    state_.loaded = nullptr;
    state_.marks = {};
    return;
  }
  state_.loaded = state_.scene.place.team;
  preview_ = Preview();
  state_.marks = GridMarks(state_.grid, *preview_, *baseline_);
}

void Editor::FollowTexts(const GridChange& texts) {
  const int row = texts.front().cell.row;
  // Behind the message of a load that has failed, the preview is still that of the team before.
  if (baseline_ != nullptr && texts.back().cell.row == row &&
      preview_->FollowRow(row, state_.grid, codec_state_, baseline_->bytes())) {
    state_.marks.FollowRow(row, state_.grid, *preview_, *baseline_);
  } else {
    RefreshMarks();
  }
}

void Editor::EndFileStep(StepOutcome outcome, const StateChange& change, StepNote note) {
  state_.note = std::move(note);
  state_.outcome = std::move(outcome);
  state_.is_file_held = channel_.is_open();
  Publish(change);
}

void Editor::EndOpening(const std::filesystem::path& path, OpenResult result,
                        const StateChange& change, StepNote note) {
  state_.refused.reset();
  if (result != OpenResult::kOpened) state_.refused = {path, result};
  if (result == OpenResult::kRefused) note = RefusedFile{path, LacksHeader(path)};
  EndFileStep(result, change, std::move(note));
}

void Editor::Publish(const StateChange& change) {
  state_.can_undo = history_.can_undo();
  state_.can_redo = history_.can_redo();
  // An observer may end a subscription, its own too, or begin one.
  const std::vector<std::weak_ptr<const Observer>> observers = observers_;
  for (const std::weak_ptr<const Observer>& each : observers) {
    if (const Subscription observer = each.lock()) (*observer)(state_, change);
  }
}

}  // namespace morlek
