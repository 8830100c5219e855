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

bool World::Load(std::string_view key) {
  disk_.reads.clear();
  try {
    editor_.loader.Load(key, view_);
    return true;
  } catch (const OperationFailed&) {
    editor_.image.Close();
    return false;
  }
}

void World::Save() {
  std::vector<ByteAccess> earlier;
  for (int round = 0; round < 3; ++round) {
    earlier.swap(disk_.writes);
    disk_.writes.clear();
    editor_.saver.Save();
    CheckWrites();
  }
  Require(disk_.writes == earlier, "equal saves write equal bytes");
}

bool World::Export() {
  try {
    ExportTeamData(editor_.channel, kText, editor_.grid);
    return true;
  } catch (const OperationFailed&) {
    editor_.image.Close();
    return false;
  }
}

bool World::Import(std::span<const std::uint8_t> file) {
  disk_.reads.clear();
  disk_.files[kText].assign(file.begin(), file.end());
  try {
    ImportTeamData(editor_.channel, kText, editor_.grid);
    return true;
  } catch (const OperationFailed&) {
    Require(editor_.channel.is_open(), "a short file holds the channel");
    editor_.image.Close();
    return false;
  }
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
