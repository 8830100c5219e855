// Any file in the place of a season, imported into a sample image some of whose bytes the input
// chooses.

#include <algorithm>
#include <vector>

#include "fuzz/promise.h"
#include "fuzz/season_import.h"
#include "fuzz/session.h"
#include "image/team_directory.h"
#include "sample_image.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::vector<std::uint8_t> sample = morlek::MakeSampleImage();
  std::vector<std::uint8_t> image = sample;
  // The first byte says how many bytes of the Braves' record follow; the rest is the table.
  morlek::fuzz::Script script({data, size});
  const auto record = script.Bytes(script.Byte());
  const auto base = static_cast<std::ptrdiff_t>(morlek::kTeamDirectory.front().base - 1);
  std::ranges::copy(record, image.begin() + base);
  const auto table = script.Bytes(size);
  static_cast<void>(morlek::fuzz::ExportSeason(image));
  morlek::fuzz::ImportSeason(image, {table.begin(), table.end()});
  return 0;
}
