// Any file in the place of a season, imported into a sample image some of whose bytes the input
// chooses: it is refused and nothing is written, or an export shows what was asked for.

#include <algorithm>
#include <sstream>
#include <string>

#include "fuzz/fuzz_world.h"
#include "league/comparison.h"
#include "league/image_season.h"
#include "league/image_writer.h"
#include "league/import_plan.h"
#include "league/season_reader.h"
#include "league/season_writer.h"
#include "sample_image.h"

namespace {

using morlek::fuzz::Require;

std::string TableOf(const morlek::Season& season) {
  std::string table;
  morlek::WriteSeason(season, [&table](std::string_view line) { table.append(line) += "\r\n"; });
  return table;
}

/// The image in memory behind the program's own way of reading and writing.
class FuzzedImage {
 public:
  explicit FuzzedImage(std::span<const std::uint8_t> record) {
    static const std::vector<std::uint8_t> sample = morlek::MakeSampleImage();
    memory_.files[morlek::fuzz::kImage] = sample;
    const auto base = static_cast<std::ptrdiff_t>(morlek::kTeamDirectory.front().base - 1);
    std::ranges::copy(record, bytes().begin() + base);
    disk_.open = memory_.Opener();
    disk_.size = [this](const auto& /*path*/) { return bytes().size(); };
  }

  [[nodiscard]] std::vector<std::uint8_t>& bytes() {
    return memory_.files.at(morlek::fuzz::kImage);
  }

  [[nodiscard]] morlek::ImageSeason Read() {
    morlek::Complaints complaints;
    auto image = morlek::ReadImage(disk_, morlek::fuzz::kImage, complaints);
    Require(image.has_value() && memory_.writes.empty(), "an image is only read");
    return *std::move(image);
  }

  void Write(const morlek::ImportPlan& plan) {
    Require(morlek::WriteIntoImage(disk_, morlek::fuzz::kImage, plan.bytes).is_written,
            "what can be written is written");
    Require(memory_.writes.size() == plan.bytes.size(), "each byte is written once");
    memory_.writes.clear();
  }

 private:
  morlek::MemoryDisk memory_;
  morlek::Disk disk_;
};

/// The plan of an import; nothing when the text is refused, which has to have a reason.
std::optional<morlek::ImportPlan> PlanOf(const morlek::ImageSeason& image, std::string_view text) {
  morlek::Complaints complaints;
  const auto season = morlek::ReadSeason(morlek::CharactersOf(text), complaints);
  auto plan = season ? morlek::PlanImport(image, *season, complaints) : std::nullopt;
  Require(plan.has_value() == complaints.empty(), "a refusal has a reason, and nothing else has");
  return plan;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::span<const std::uint8_t> input(data, size);
  // The first byte says how many bytes of the Braves' record follow; the rest is the table.
  const std::size_t record = size == 0 ? 0 : std::min<std::size_t>(input.front(), size - 1);
  FuzzedImage file(input.subspan(size == 0 ? 0 : 1, record));
  const std::span<const std::uint8_t> rest = input.subspan(std::min(size, record + 1));
  const std::string text(rest.begin(), rest.end());

  const morlek::ImageSeason before = file.Read();
  const auto unchanged = PlanOf(before, TableOf(before.season));
  Require(unchanged && unchanged->bytes.empty(), "an export that is imported changes nothing");

  const auto plan = PlanOf(before, text);
  if (!plan) return 0;
  file.Write(*plan);
  const morlek::ImageSeason after = file.Read();
  const auto changes = morlek::Differences(before.season, after.season);
  Require(changes.size() == plan->cells.size(), "an export shows the edits and nothing else");
  for (std::size_t place = 0; place < changes.size(); ++place) {
    Require(changes[place].cell == plan->cells[place].cell &&
                changes[place].team == plan->cells[place].team,
            "the edited cells differ");
  }
  const auto again = PlanOf(after, text);
  Require(again && again->bytes.empty(), "what was imported is there");
  return 0;
}
