#include "fuzz/session.h"

#include <algorithm>
#include <array>
#include <set>
#include <utility>

#include "fuzz/promise.h"
#include "image/team_directory.h"
#include "sample_image.h"
#include "team/column_bytes.h"
#include "team/same_text.h"
#include "textfile/player_text.h"

namespace morlek::fuzz {
namespace {

constexpr char kFirstImage[] = "game.smc";
constexpr char kSecondImage[] = "other.smc";
constexpr char kTeamFile[] = "team.txt";
constexpr std::size_t kRecordBytes = 800;

// Of which the last cannot be loaded to its end in the first image.
constexpr std::size_t kTeams = 4;

std::size_t RecordOf(const Team& team) { return static_cast<std::size_t>(team.base - 1); }

bool IsSaved(int row, int offset) {
  static const std::set<int> both = {0,  1,  2,  3,  4,  5,  6,  7,  8, 9,
                                     10, 11, 12, 14, 15, 16, 24, 26, 28};
  static const std::set<int> batter = {13, 25};
  static const std::set<int> pitcher = {17, 21, 23, 29, 30};
  return both.contains(offset) || (row < 15 ? batter : pitcher).contains(offset);
}

}  // namespace

std::uint8_t Script::Byte() {
  const auto byte = Bytes(1);
  return byte.empty() ? 0 : byte.front();
}

std::span<const std::uint8_t> Script::Bytes(std::size_t count) {
  const auto taken = bytes_.first(std::min(count, bytes_.size()));
  bytes_ = bytes_.subspan(taken.size());
  return taken;
}

Session::Session(std::span<const std::uint8_t> script) : script_(script) {
  static const std::vector<std::uint8_t> sample = MakeSampleImage();
  disk_.files = {{kFirstImage, sample}, {kSecondImage, sample}};
  constexpr std::size_t kRating = 3 * 32 + 11;
  disk_.files[kFirstImage].at(RecordOf(kTeamDirectory.at(kTeams - 1)) + kRating) = 0xAB;
  editor_.OpenFirstImage(kFirstImage);
  passed_ = {Here()};
  CheckState();
}

void Session::Play() {
  constexpr int kMostSteps = 60;
  for (int step = 0; step < kMostSteps && !script_.is_over(); ++step) {
    const int what = script_.Byte();
    editor_.EndVisit();
    TakeStep(what % 16);
    // In half of the steps the next one finds what this one has left.
    if (what < 0x80) editor_.CancelDialog();
    Follow();
  }
  while (state().can_redo) GoOneStep(false);
  std::vector<GridMarks> marks;
  for (; state().can_undo; GoOneStep(true)) marks.push_back(state().marks);
  for (; state().can_redo; marks.pop_back()) {
    GoOneStep(false);
    Require(state().marks == marks.back(), "undo and redo move nothing that codecs keep");
  }
  Save();
}

void Session::TakeStep(int kind) {
  switch (kind) {
    case 0:
    case 1:
      Load(kTeamDirectory.at(script_.Below(kTeams)).key);
      break;
    case 2: {
      // The images cannot be opened for a moment.
      auto files = std::exchange(disk_.files, {});
      Load(kTeamDirectory.at(script_.Below(kTeams)).key);
      disk_.files = std::move(files);
      break;
    }
    case 3:
    case 4:
      return Type();
    case 5:
      return PutPicture();
    case 6:
      return PasteBlock();
    case 7:
      return PastePlayer();
    case 8:
      editor_.MovePlayer(kAllCells.at(script_.Below(kCellCount)).row, script_.OneInTwo() ? -1 : +1);
      break;
    case 9:
      return Save();
    case 10:
      return SaveAsPreviewed();
    case 11:
      return script_.OneInTwo() ? SaveWhileTheDiskFails() : SaveIntoAnotherRecord();
    case 12:
    case 13:
      return GoOneStep(!script_.OneInTwo());
    case 14:
      return Import();
    default:
      ChangeTheImage();
  }
}

void Session::Type() {
  const Cell cell = kAllCells.at(script_.Below(kCellCount));
  static const std::vector<std::string> texts = {
      "",     "7",    "12",   "300", "x",  "C",       "ss",         "L",
      "RS<",  ".308", "2.50", "07",  "1F", "J.SM1TH", "A.BCDEFGHI", "TOO.LONG.NAME",
      "C.cc", ".",    "zz"};
  const std::size_t which = script_.Byte();
  const auto bytes = script_.Bytes(which < texts.size() ? 0 : which % 16);
  editor_.Type(cell, which < texts.size() ? texts[which] : std::string(bytes.begin(), bytes.end()));
}

void Session::PutPicture() {
  const Cell cell{kFeatures.at(script_.Below(3)), kAllCells.at(script_.Below(kCellCount)).row};
  const std::string code = std::to_string(script_.Below(60));
  const bool leafs = script_.OneInTwo() && code != state().grid.Text(cell);
  if (leafs) editor_.Leaf(cell, code);
  if (!leafs) editor_.Visit(cell);
  if (!leafs) editor_.Pick(cell.column, code);
  Require(state().grid.Text(cell) == code && state().stance_row == cell.row,
          "a picture goes to its player, who is in view");
}

void Session::PasteBlock() {
  if (script_.OneInTwo()) return editor_.PasteBlock({Column::kName, 0}, copied_team_);
  const Cell cell = kAllCells.at(script_.Below(kCellCount));
  const auto text = script_.Bytes(script_.Byte() % 32U);
  editor_.PasteBlock(cell, std::string(text.begin(), text.end()) + "1\t2\n3");
}

void Session::PastePlayer() {
  const int row = kAllCells.at(script_.Below(kCellCount)).row;
  const Player here = PlayerAt(state().grid, row);
  const bool copies = script_.OneInTwo();
  if (!copies || script_.OneInTwo()) editor_.PastePlayer(row, copied_);
  if (copies) copied_ = here;
  if (copies) copied_team_ = LinesOf(state().grid);
}

bool Session::Load(std::string_view key) {
  Forget();
  const LoadResult result = editor_.LoadTeam(key);
  Require(disk_.writes.empty(), "a load writes nothing");
  const bool loaded = result.outcome == LoadResult::Outcome::kLoaded;
  Require(state().scene.is_grid_shown == loaded, "what was loaded is shown, and nothing else");
  Follow();
  return loaded;
}

void Session::LoadTheTeamAgain() {
  Require(Load(state().scene.place.team->key), "a saved team loads");
}

void Session::Save() {
  std::vector<ByteAccess> earlier;
  for (int round = 0; round < 3; ++round) {
    earlier.swap(disk_.writes);
    Forget();
    editor_.Save();
    CheckWrites();
  }
  Require(disk_.writes == earlier, "equal saves write equal bytes");
}

void Session::SaveAsPreviewed() {
  if (!state().scene.is_grid_shown || disk_.open_files > 0) return;
  const RosterGrid after = editor_.Preview().after();
  Forget();
  editor_.Save();
  CheckWrites();
  Require(editor_.baseline()->texts() == after, "the baseline follows a save");
  LoadTheTeamAgain();
  Require(state().grid == after, "a load shows what the preview said");
  Save();
  LoadTheTeamAgain();
  const RosterGrid shown = state().grid;
  Save();
  LoadTheTeamAgain();
  Require(state().grid == shown, "a saved record shows what it showed before");
}

void Session::SaveWhileTheDiskFails() {
  if (!state().scene.is_grid_shown || disk_.open_files > 0) return;
  const RosterGrid before = editor_.baseline()->texts();
  Forget();
  disk_.failed_closes = 0;
  constexpr std::size_t kAccesses = 560;
  disk_.failing_access = static_cast<int>(script_.Below(kAccesses)) + 1;
  disk_.fails_from_then_on = script_.OneInTwo();
  editor_.Save();
  disk_.failing_access = 0;
  CheckWrites();
  const RosterGrid known = editor_.baseline()->texts();
  const GridMarks marks = state().marks;
  LoadTheTeamAgain();
  if (disk_.failed_closes > 0) {
    Require(known == before, "what was lost at the close is not known to be there");
    return;
  }
  for (const Cell cell : kAllCells) {
    // A text of several bytes may have been written in part.
    const bool is_part = marks.At(cell).is_modified && BytesOf(cell.column).size() > 1;
    Require(is_odd_ || is_part || state().grid.Text(cell) == known.Text(cell),
            "what is known to be in the image is there");
  }
}

void Session::SaveIntoAnotherRecord() {
  if (!state().scene.is_grid_shown || disk_.open_files > 0 || is_odd_) return;
  const std::vector<std::uint8_t> original = file();
  const auto put = [this, &original](const Team& from) {
    file() = original;
    std::copy_n(original.begin() + static_cast<std::ptrdiff_t>(RecordOf(from)), kRecordBytes,
                file().begin() + static_cast<std::ptrdiff_t>(RecordOf(*state().scene.place.team)));
  };
  const Team& other = kTeamDirectory.at(script_.Below(kTeams - 1));
  const SavePreview preview = editor_.Preview();
  const GridMarks marks = state().marks;
  put(other);
  editor_.Save();
  LoadTheTeamAgain();
  const RosterGrid saved = state().grid;
  put(other);
  LoadTheTeamAgain();
  for (const Cell cell : kAllCells) {
    const bool is_skipped = preview.FateOf(cell) == SavePreview::Fate::kSkipped;
    const bool is_stored = preview.FateOf(cell) == SavePreview::Fate::kStored;
    if (!marks.At(cell).is_lossy || (BytesOf(cell.column).size() > 1 && !is_skipped)) continue;
    Require(saved.Text(cell) == (is_stored ? preview.TextAfter(cell) : state().grid.Text(cell)),
            "what SAVE skips stays as another program has left it");
  }
  put(*state().scene.place.team);
  LoadTheTeamAgain();
}

void Session::Import() {
  const bool was_held = disk_.open_files > 0;
  const auto bytes = script_.Bytes(script_.Byte() * std::size_t{8});
  // What holds the channel may be this very file.
  if (!was_held) disk_.files[kTeamFile].assign(bytes.begin(), bytes.end());
  Forget();
  const ImportResult result = editor_.ImportTeam(kTeamFile);
  Require(disk_.writes.empty(), "an import writes nothing");
  const bool is_read = result.outcome == ImportResult::Outcome::kRead;
  Require(is_read == (!was_held && disk_.open_files == 0), "a file with too few lines is held");
  Follow();
  if (!was_held && script_.OneInTwo()) ExportAndImport();
}

void Session::ExportAndImport() {
  editor_.CancelDialog();
  Forget();
  // No field that was imported holds a comma or the end of a line.
  Require(editor_.ExportTeam(kTeamFile) == ExportResult::kWritten, "a free channel exports");
  Require(disk_.opened == std::vector<std::filesystem::path>{kTeamFile},
          "an export opens its file alone");
  const RosterGrid exported = state().grid;
  editor_.Type({Column::kName, 0}, "other");
  Follow();
  Require(editor_.ImportTeam(kTeamFile).outcome == ImportResult::Outcome::kRead,
          "an exported file can be imported");
  Require(state().grid == exported, "an export and an import restore every text");
}

void Session::ChangeTheImage() {
  if (script_.OneInTwo()) {
    editor_.OpenAnotherImage(script_.OneInTwo() ? kFirstImage : kSecondImage);
    return;
  }
  // Any bytes in the place of a record, as another program may write them.
  const Team& team = kTeamDirectory.at(script_.Below(kTeams));
  const auto bytes = script_.Bytes(std::min(script_.Below(1200), kRecordBytes));
  const std::vector<std::uint8_t> before = file();
  std::ranges::copy(bytes, file().begin() + static_cast<std::ptrdiff_t>(RecordOf(team)));
  is_odd_ = true;
  if (!Load(team.key)) file() = before;
}

void Session::GoOneStep(bool backwards) {
  Forget();
  const std::size_t from = now_;
  if (backwards) {
    editor_.Undo();
    if (now_ > 0) --now_;
  } else {
    editor_.Redo();
    if (now_ + 1 < passed_.size()) ++now_;
  }
  Require(Here() == passed_[now_], "undo leads where it was");
  Require(now_ <= from || passed_[from].scene == passed_[now_].scene ||
              state().picked == passed_[now_].picked,
          "a step that is made again picks the team that it picked");
  Require(disk_.opened.empty() && disk_.writes.empty(), "undo and redo touch no file");
  CheckState();
}

void Session::Follow() {
  const Point here = Here();
  if (here != passed_[now_]) {
    // Before the first team there is nothing to go back to.
    const bool is_first = passed_.size() == 1 && here.scene != passed_[0].scene &&
                          passed_[0].scene.place.team == nullptr;
    passed_.resize(is_first ? 0 : now_ + 1);
    passed_.push_back(here);
    now_ = passed_.size() - 1;
  }
  CheckState();
}

void Session::CheckState() const {
  Require(state().can_undo == (now_ > 0), "there is an undo of every step");
  Require(state().can_redo == (now_ + 1 < passed_.size()), "there is a redo of every undo");
  const auto& [place, is_grid_shown] = state().scene;
  Require(state().loaded == (is_grid_shown ? place.team : nullptr), "marks are of a team in view");
  const GridMarks marks =
      is_grid_shown ? GridMarks(state().grid, editor_.Preview(), *editor_.baseline()) : GridMarks();
  Require(state().marks == marks, "the marks follow from grid, codecs and baseline");
  for (const Cell cell : kAllCells) {
    Require(state().grid.Text(cell).size() <= kLongestText, "no text is longer than a box");
  }
}

void Session::CheckWrites() const {
  const auto& [image, team] = state().scene.place;
  Require(disk_.opened.empty() || disk_.opened == std::vector{image},
          "a save opens the image that is shown, and no other file");
  for (const ByteAccess& write : disk_.writes) {
    Require(team != nullptr, "nothing is written before a team is loaded");
    const auto place = static_cast<int>(write.position - team->base);
    Require(place >= 0 && place < static_cast<int>(kRecordBytes),
            "writes stay inside the record of the team that is shown");
    Require(IsSaved(place / 32, place % 32), "bytes that belong to the game alone are left alone");
  }
}

void Session::Forget() {
  disk_.opened.clear();
  disk_.reads.clear();
  disk_.writes.clear();
}

}  // namespace morlek::fuzz
