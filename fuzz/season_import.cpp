#include "fuzz/season_import.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "editor/editor.h"
#include "fuzz/promise.h"
#include "league/comparison.h"
#include "league/image_season.h"
#include "league/image_writer.h"
#include "league/import_plan.h"
#include "league/season_reader.h"
#include "league/season_writer.h"
#include "support/memory_disk.h"
#include "support/recording_messages.h"

namespace morlek::fuzz {
namespace {

constexpr char kImage[] = "game.smc";

/// An image in memory, for as long as the object lives behind the program's own way of reading and
/// writing.
class ImageOnDisk {
 public:
  explicit ImageOnDisk(std::vector<std::uint8_t>& image) : image_(image) {
    memory_.files[kImage].swap(image_);
    disk_.open = memory_.Opener();
    disk_.size = [this](const auto& /*path*/) { return memory_.files.at(kImage).size(); };
  }
  ~ImageOnDisk() { memory_.files.at(kImage).swap(image_); }
  ImageOnDisk(const ImageOnDisk&) = delete;
  ImageOnDisk& operator=(const ImageOnDisk&) = delete;

  [[nodiscard]] ImageSeason Read() {
    Complaints complaints;
    auto season = ReadImage(disk_, kImage, complaints);
    Require(season.has_value() && memory_.writes.empty(), "an image is only read");
    return *std::move(season);
  }

  void Write(const ImportPlan& plan) {
    Require(WriteIntoImage(disk_, kImage, plan.bytes).is_written, "what can be written is written");
    Require(memory_.writes.size() == plan.bytes.size(), "each byte is written once");
    memory_.writes.clear();
  }

 private:
  std::vector<std::uint8_t>& image_;
  MemoryDisk memory_;
  Disk disk_;
};

std::optional<ImportPlan> PlanOf(const ImageSeason& image, const std::string& table) {
  Complaints complaints;
  const auto season = ReadSeason(CharactersOf(table), complaints);
  auto plan = season ? PlanImport(image, *season, complaints) : std::nullopt;
  Require(plan.has_value() == complaints.empty(), "a refusal has a reason, and nothing else has");
  return plan;
}

/// The image as a newly started editor saves it after the edits of one team; nothing when it cannot
/// load the team.
std::optional<std::vector<std::uint8_t>> SavedByEditor(const std::vector<std::uint8_t>& image,
                                                       const Team& team,
                                                       const std::vector<SeasonChange>& edits) {
  MemoryDisk memory;
  memory.files[kImage] = image;
  RecordingMessages messages;
  Editor editor(messages, memory.Opener());
  editor.OpenFirstImage(kImage);
  if (editor.LoadTeam(team.key).outcome != LoadResult::Outcome::kLoaded) return std::nullopt;
  for (const SeasonChange& each : edits) {
    if (each.team == &team) editor.Type(each.cell, each.after);
  }
  editor.Save();
  return memory.files.at(kImage);
}

}  // namespace

bool ImportSeason(std::vector<std::uint8_t>& image, const std::string& table) {
  const std::vector<std::uint8_t> original = image;
  ImageOnDisk file(image);
  const ImageSeason before = file.Read();
  const auto plan = PlanOf(before, table);
  if (!plan) return false;
  for (const Team& team : kTeamDirectory) {
    const auto is_here = [&team](const auto& change) { return change.team == &team; };
    if (std::ranges::none_of(plan->bytes, is_here)) continue;
    const auto saved = SavedByEditor(original, team, plan->cells);
    for (const ByteChange& each : plan->bytes) {
      Require(!saved || !is_here(each) ||
                  saved->at(static_cast<std::size_t>(each.position()) - 1) == each.after,
              "an import writes the bytes that SAVE writes");
    }
  }
  file.Write(*plan);
  const ImageSeason after = file.Read();
  const auto place_of = [](const SeasonChange& change) {
    return std::pair(change.team, IndexOf(change.cell));
  };
  Require(std::ranges::equal(Differences(before.season, after.season), plan->cells, {}, place_of,
                             place_of),
          "an export shows the edits and nothing else");
  const auto again = PlanOf(after, table);
  Require(again && again->bytes.empty(), "what was imported is there");
  return true;
}

std::string ExportSeason(std::vector<std::uint8_t>& image) {
  ImageOnDisk file(image);
  const ImageSeason season = file.Read();
  std::string table;
  WriteSeason(season.season, [&table](std::string_view line) { table.append(line) += "\r\n"; });
  const auto plan = PlanOf(season, table);
  Require(plan && plan->bytes.empty(), "an export that is imported changes nothing");
  return table;
}

}  // namespace morlek::fuzz
