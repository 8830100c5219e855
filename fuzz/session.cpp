#include "fuzz/session.h"

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "editor/editor.h"
#include "fuzz/promise.h"
#include "image/team_directory.h"
#include "sample_image.h"
#include "support/memory_disk.h"
#include "support/recording_messages.h"
#include "team/column_bytes.h"
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

/// A session in an editor over two images in memory: steps of all kinds as bytes choose them, with
/// several teams. After each the promises hold that are checked here, or it throws.
class Session {
 public:
  explicit Session(std::span<const std::uint8_t> script) : script_(script) {
    static const std::vector<std::uint8_t> sample = MakeSampleImage();
    disk_.files = {{kFirstImage, sample}, {kSecondImage, sample}};
    constexpr std::size_t kRating = 3 * 32 + 11;
    disk_.files[kFirstImage].at(RecordOf(kTeamDirectory.at(kTeams - 1)) + kRating) = 0xAB;
    editor_.OpenFirstImage(kFirstImage);
    passed_ = {Here()};
    CheckState();
  }

  /// Takes all the steps; then goes back to the very beginning and on to the very end.
  void Play() {
    constexpr int kMostSteps = 60;
    for (int step = 0; step < kMostSteps && !script_.is_over(); ++step) {
      const std::uint8_t what = script_.Byte();
      editor_.EndVisit();
      TakeStep(what);
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

 private:
  /// Where a step led to.
  struct Point {
    Scene scene;
    RosterGrid grid;
    const Team* picked;

    friend bool operator==(const Point& one, const Point& other) {
      return one.scene == other.scene && one.grid == other.grid;
    }
  };

  [[nodiscard]] Point Here() const { return {state().scene, state().grid, state().picked}; }

  [[nodiscard]] const EditorState& state() const { return editor_.state(); }
  [[nodiscard]] std::vector<std::uint8_t>& file() {
    return disk_.files.at(state().scene.place.image);
  }

  void TakeStep(std::size_t kind) {
    // clang-format off
    static constexpr std::array kSteps = {
        &Session::LoadAny, &Session::LoadAny, &Session::LoadWithoutImages, &Session::Type,
        &Session::Type, &Session::PutPicture, &Session::PasteBlock, &Session::PastePlayer,
        &Session::MovePlayer, &Session::Save, &Session::SaveAsPreviewed, &Session::SaveWhileTheDiskFails,
        &Session::GoEitherWay, &Session::GoEitherWay, &Session::Import, &Session::ChangeTheImage};
    // clang-format on
    (this->*kSteps.at(kind % kSteps.size()))();
  }

  void LoadAny() { Load(kTeamDirectory.at(script_.Below(kTeams)).key); }

  /// The images cannot be opened for a moment.
  void LoadWithoutImages() {
    auto files = std::exchange(disk_.files, {});
    LoadAny();
    disk_.files = std::move(files);
  }

  void MovePlayer() {
    editor_.MovePlayer(kAllCells.at(script_.Below(kCellCount)).row, script_.OneInTwo() ? -1 : +1);
  }

  void GoEitherWay() { GoOneStep(!script_.OneInTwo()); }

  void Type() {
    const Cell cell = kAllCells.at(script_.Below(kCellCount));
    static const std::vector<std::string> texts = {
        "",     "7",    "12",   "300", "x",  "C",       "ss",         "L",
        "RS<",  ".308", "2.50", "07",  "1F", "J.SM1TH", "A.BCDEFGHI", "TOO.LONG.NAME",
        "C.cc", ".",    "zz"};
    const std::size_t which = script_.Byte();
    const auto bytes = script_.Bytes(which < texts.size() ? 0 : which % 16);
    const std::string before = state().grid.Text(cell);
    const std::string typed =
        which < texts.size() ? texts[which] : std::string(bytes.begin(), bytes.end());
    // One step, or none, whatever it was on the way.
    for (const std::string& text : {"by mistake" + before, before, typed}) editor_.Type(cell, text);
    passed_.resize(now_ + 1);
  }

  void PutPicture() {
    const Cell cell{kFeatures.at(script_.Below(3)), kAllCells.at(script_.Below(kCellCount)).row};
    const std::string code = std::to_string(script_.Below(60));
    const bool leafs = script_.OneInTwo() && code != state().grid.Text(cell);
    if (leafs) editor_.Leaf(cell, code);
    if (!leafs) editor_.Visit(cell);
    if (!leafs) editor_.Pick(cell.column, code);
    Require(state().grid.Text(cell) == code && state().stance_row == cell.row,
            "a picture goes to its player, who is in view");
  }

  void PasteBlock() {
    if (script_.OneInTwo()) return editor_.PasteBlock({Column::kName, 0}, copied_team_);
    const Cell cell = kAllCells.at(script_.Below(kCellCount));
    const auto text = script_.Bytes(script_.Byte() % 32U);
    editor_.PasteBlock(cell, std::string(text.begin(), text.end()) + "1\t2\n3");
  }

  void PastePlayer() {
    const int row = kAllCells.at(script_.Below(kCellCount)).row;
    const Player here = PlayerAt(state().grid, row);
    const bool copies = script_.OneInTwo();
    if (!copies || script_.OneInTwo()) editor_.PastePlayer(row, copied_);
    if (copies) copied_ = here;
    if (copies) copied_team_ = LinesOf(state().grid);
  }

  /// Loads a team, which writes nothing; true when it came through.
  bool Load(std::string_view key) {
    Forget();
    const LoadResult result = editor_.LoadTeam(key);
    Require(disk_.writes.empty(), "a load writes nothing");
    const bool loaded = result.outcome == LoadResult::Outcome::kLoaded;
    Require(state().scene.is_grid_shown == loaded, "what was loaded is shown, and nothing else");
    Follow();
    return loaded;
  }

  void LoadTheTeamAgain() { Require(Load(state().scene.place.team->key), "a saved team loads"); }

  /// Saves three times. Every write goes into the record of the place that is shown, to a byte that
  /// a save may write, and the third save writes what the second one wrote.
  void Save() {
    std::vector<ByteAccess> earlier;
    for (int round = 0; round < 3; ++round) {
      earlier.swap(disk_.writes);
      Forget();
      editor_.Save();
      CheckWrites();
    }
    Require(disk_.writes == earlier, "equal saves write equal bytes");
  }

  void SaveAsPreviewed() {
    if (!state().scene.is_grid_shown || disk_.open_files > 0) return;
    const SavePreview preview = editor_.Preview();
    const RosterGrid& after = preview.after();
    Forget();
    Require(editor_.Save().taken == preview.written(), "a save writes what the preview said");
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

  void SaveWhileTheDiskFails() {
    if (!state().scene.is_grid_shown || disk_.open_files > 0) return;
    const RosterGrid before = editor_.baseline()->texts();
    Forget();
    disk_.failed_closes = 0;
    constexpr std::size_t kAccesses = 560;
    disk_.failing_access = static_cast<int>(script_.Below(kAccesses)) + 1;
    disk_.fails_from_then_on = script_.OneInTwo();
    const SaveResult saved = editor_.Save();
    disk_.failing_access = 0;
    CheckWrites();
    const RosterGrid known = editor_.baseline()->texts();
    LoadTheTeamAgain();
    for (const Cell cell : kAllCells) {
      const auto offsets = BytesOf(cell.column);
      const bool is_refused = saved.refused.HasAny(cell.row, offsets);
      Require(!is_refused || known.Text(cell) == before.Text(cell),
              "what was refused, or lost at the close, is not known to be there");
      Require(!is_refused || offsets.size() > 1 || !saved.taken.HasAny(cell.row, offsets),
              "a byte that was refused was not taken");
      // Some bytes of a text may have been written.
      const bool may_differ = disk_.failed_closes > 0 || offsets.size() > 1;
      Require((is_refused && may_differ) || is_odd_ || state().grid.Text(cell) == known.Text(cell),
              "what is known to be in the image is there");
    }
  }

  void Import() {
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

  void ExportAndImport() {
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

  void ChangeTheImage() {
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

  /// Takes a step back, or makes one again; no file is opened.
  void GoOneStep(bool backwards) {
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
    Require(passed_[from].scene == passed_[now_].scene || state().layout == Layout::kNarrow,
            "another place is shown in the narrow layout");
    Require(disk_.opened.empty() && disk_.writes.empty(), "undo and redo touch no file");
    CheckState();
  }

  /// Notes where the last step led, unless that is where it was.
  void Follow() {
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

  void CheckState() const {
    Require(state().can_undo == (now_ > 0), "there is an undo of every step");
    Require(state().can_redo == (now_ + 1 < passed_.size()), "there is a redo of every undo");
    const auto& [place, is_grid_shown] = state().scene;
    Require(state().loaded == (is_grid_shown ? place.team : nullptr),
            "marks are of a team in view");
    const GridMarks marks = is_grid_shown
                                ? GridMarks(state().grid, editor_.Preview(), *editor_.baseline())
                                : GridMarks();
    Require(state().marks == marks, "the marks follow from grid, codecs and baseline");
    for (const Cell cell : kAllCells) {
      Require(state().grid.Text(cell).size() <= kLongestText, "no text is longer than a box");
    }
  }

  void CheckWrites() const {
    const auto& [image, team] = state().scene.place;
    Require(disk_.opened.empty() || disk_.opened == std::vector{image},
            "a save opens the image that is shown, and no other file");
    for (const ByteAccess& write : disk_.writes) {
      Require(team != nullptr, "nothing is written before a team is loaded");
      const auto place = static_cast<int>(write.position - team->base);
      Require(place >= 0 && place < static_cast<int>(kRecordBytes),
              "writes stay inside the record of the team that is shown");
      Require(IsSaved(place / 32, place % 32),
              "bytes that belong to the game alone are left alone");
    }
  }

  /// Empties the disk's records of what was done to it.
  void Forget() {
    disk_.opened.clear();
    disk_.writes.clear();
  }

  Script script_;
  MemoryDisk disk_;
  RecordingMessages messages_;
  Editor editor_{messages_, disk_.Opener()};
  // Bytes that no codec knows have been in an image.
  bool is_odd_ = false;
  Player copied_;
  std::string copied_team_;
  std::vector<Point> passed_;
  std::size_t now_ = 0;
};

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

void PlaySession(std::span<const std::uint8_t> script) { Session(script).Play(); }

}  // namespace morlek::fuzz
