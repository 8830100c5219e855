#include "fuzz/fuzz_world.h"

#include <cstdlib>
#include <iostream>
#include <set>

#include "image/failure.h"
#include "image/team_directory.h"
#include "sample_image.h"
#include "textfile/team_export.h"
#include "textfile/team_import.h"

namespace morlek::fuzz {
namespace {

bool IsSaved(int row, int offset) {
  static const std::set<int> both = {0,  1,  2,  3,  4,  5,  6,  7,  8, 9,
                                     10, 11, 12, 14, 15, 16, 24, 26, 28};
  static const std::set<int> batter = {13, 25};
  static const std::set<int> pitcher = {17, 21, 23, 29, 30};
  return both.contains(offset) || (row < 15 ? batter : pitcher).contains(offset);
}

const std::vector<std::uint8_t>& Sample() {
  static const std::vector<std::uint8_t> sample = MakeSampleImage();
  return sample;
}

}  // namespace

void Require(bool holds, const char* promise) {
  if (holds) return;
  std::cerr << "broken promise: " << promise << '\n';
  std::abort();
}

World::World() : editor_(messages_, disk_.Opener()) {
  disk_.files[kImage] = Sample();
  Require(editor_.OpenFirstImage(kImage) == Editor::Opening::kAccepted, "the sample is accepted");
}

std::span<std::uint8_t> World::Record(std::int64_t base) {
  return std::span(disk_.files.at(kImage)).subspan(static_cast<std::size_t>(base - 1), 800);
}

template <typename Operation>
bool World::Succeeds(Operation operation) {
  Forget();
  try {
    operation();
    return true;
  } catch (const OperationFailed&) {
    return false;
  }
}

bool World::Load(std::string_view key) {
  const bool succeeded = Succeeds([this, key] { editor_.loader.Load(key, view_); });
  RequireNoWrites();
  return succeeded;
}

void World::Save() {
  std::vector<ByteAccess> earlier;
  for (int round = 0; round < 3; ++round) {
    earlier.swap(disk_.writes);
    Forget();
    editor_.saver.Save();
    Require(disk_.opened.empty() || disk_.opened == std::vector<std::filesystem::path>{kImage},
            "a save opens the image alone");
    CheckWrites();
  }
  Require(disk_.writes == earlier, "equal saves write equal bytes");
}

bool World::Export() {
  const bool succeeded = Succeeds([this] { ExportTeamData(editor_.channel, kText, editor_.grid); });
  Require(disk_.opened.empty() || disk_.opened == std::vector<std::filesystem::path>{kText},
          "an export opens its file alone");
  return succeeded;
}

bool World::Import(std::span<const std::uint8_t> file) {
  // What holds the channel may be this very file.
  if (!editor_.channel.is_open()) disk_.files[kText].assign(file.begin(), file.end());
  const bool succeeded = Succeeds([this] { ImportTeamData(editor_.channel, kText, editor_.grid); });
  Require(succeeded || editor_.channel.is_open(), "a short file holds the channel");
  RequireNoWrites();
  return succeeded;
}

std::string World::GridTexts() const {
  std::string texts;
  for (int row = 0; row < kSlotCount; ++row) {
    for (const GridColumn& column : ColumnsOfRow(row)) {
      const std::string& text = editor_.grid.Text(column.column, row);
      Require(text.size() <= kLongestField, "no text is longer than a box");
      texts += std::to_string(text.size()) + ":" + text;
    }
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
  const std::optional<std::int64_t> base = editor_.image.team_base();
  for (const ByteAccess& write : disk_.writes) {
    Require(base.has_value(), "nothing is written before a team is loaded");
    const std::int64_t place = write.position - *base;
    Require(place >= 0 && place < 800, "writes stay inside the current record");
    Require(IsSaved(static_cast<int>(place / 32), static_cast<int>(place % 32)),
            "bytes that belong to the game alone are left alone");
  }
}

}  // namespace morlek::fuzz
