#include "fuzz/fuzz_world.h"

#include <cstdlib>
#include <iostream>
#include <set>

#include "image/team_directory.h"
#include "sample_image.h"

namespace morlek::fuzz {
namespace {

bool IsSaved(int row, int offset) {
  static const std::set<int> both = {0,  1,  2,  3,  4,  5,  6,  7,  8, 9,
                                     10, 11, 12, 14, 15, 16, 24, 26, 28};
  static const std::set<int> batter = {13, 25};
  static const std::set<int> pitcher = {17, 21, 23, 29, 30};
  return both.contains(offset) || (row < 15 ? batter : pitcher).contains(offset);
}

}  // namespace

void Require(bool holds, const char* promise) {
  if (holds) return;
  std::cerr << "broken promise: " << promise << '\n';
  std::abort();
}

World::World() : editor_(messages_, disk_.Opener()) {
  static const std::vector<std::uint8_t> sample = MakeSampleImage();
  disk_.files[kImage] = sample;
  editor_.OpenFirstImage(kImage);
  Require(editor_.state().scene.place.image == kImage, "the sample is accepted");
}

std::span<std::uint8_t> World::Record(std::int64_t base) {
  return std::span(disk_.files.at(kImage)).subspan(static_cast<std::size_t>(base - 1), 800);
}

bool World::Load(std::string_view key) {
  Forget();
  const LoadResult result = editor_.LoadTeam(key);
  RequireNoWrites();
  const bool loaded = result.outcome == LoadResult::Outcome::kLoaded;
  Require(editor_.state().scene.is_grid_shown == loaded,
          "what was loaded is shown, and nothing else");
  return loaded;
}

void World::Save() {
  std::vector<ByteAccess> earlier;
  for (int round = 0; round < 3; ++round) {
    earlier.swap(disk_.writes);
    Forget();
    editor_.Save();
    Require(disk_.opened.empty() || disk_.opened == std::vector<std::filesystem::path>{kImage},
            "a save opens the image alone");
    CheckWrites();
  }
  Require(disk_.writes == earlier, "equal saves write equal bytes");
}

void World::SaveAsPreviewed() {
  if (!editor_.state().scene.is_grid_shown || disk_.open_files > 0) return;
  const SavePreview preview = editor_.Preview();
  editor_.Save();
  Require(editor_.baseline()->texts() == preview.after(), "the baseline follows a save");
  Require(Load(editor_.state().scene.place.team->key), "a saved team loads");
  Require(editor_.state().grid == preview.after(), "a load shows what the preview said");
}

bool World::Export() {
  Forget();
  const bool succeeded = editor_.ExportTeam(kText) == ExportResult::kWritten;
  Require(disk_.opened.empty() || disk_.opened == std::vector<std::filesystem::path>{kText},
          "an export opens its file alone");
  return succeeded;
}

bool World::Import(std::span<const std::uint8_t> file) {
  // What holds the channel may be this very file.
  if (disk_.open_files == 0) disk_.files[kText].assign(file.begin(), file.end());
  Forget();
  const bool was_held = disk_.open_files > 0;
  const ImportResult result = editor_.ImportTeam(kText);
  RequireNoWrites();
  const bool is_read = result.outcome == ImportResult::Outcome::kRead;
  Require(is_read == (!was_held && disk_.open_files == 0), "a file with too few lines is held");
  return is_read;
}

std::string World::GridTexts() const {
  std::string texts;
  for (const Cell cell : kAllCells) {
    const std::string& text = editor_.state().grid.Text(cell);
    Require(text.size() <= kLongestText, "no text is longer than a box");
    texts += std::to_string(text.size()) + ":" + text;
  }
  return texts;
}

void World::Forget() {
  disk_.opened.clear();
  disk_.reads.clear();
  disk_.writes.clear();
}

void World::RequireNoWrites() const {
  Require(disk_.writes.empty(), "what only reads writes nothing");
}

void World::CheckWrites() const {
  const Team* team = editor_.state().scene.place.team;
  for (const ByteAccess& write : disk_.writes) {
    Require(team != nullptr, "nothing is written before a team is loaded");
    const std::int64_t place = write.position - team->base;
    Require(place >= 0 && place < 800, "writes stay inside the current record");
    Require(IsSaved(static_cast<int>(place / 32), static_cast<int>(place % 32)),
            "bytes that belong to the game alone are left alone");
  }
}

}  // namespace morlek::fuzz
