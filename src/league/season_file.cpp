#include "league/season_file.h"

#include <utility>

#include "image/failure.h"
#include "league/image_season.h"
#include "league/season_reader.h"

namespace morlek {

std::optional<Season> ReadSeasonFile(const Disk& disk, const std::filesystem::path& path,
                                     Complaints& complaints) {
  Channel channel(disk.open);
  if (!channel.OpenTextInput(path)) throw OperationFailed("could not be opened for reading");
  return ReadSeason([&channel] { return channel.ReadCharacter(); }, complaints);
}

std::optional<Season> ReadImageOrFile(const Disk& disk, const std::filesystem::path& path,
                                      Complaints& complaints) {
  Complaints of_image;
  if (auto image = ReadImage(disk, path, of_image)) return std::move(image->season);
  Complaints of_file;
  if (auto season = ReadSeasonFile(disk, path, of_file)) return season;
  const bool may_be_image = disk.size(path).value_or(0) >= kIdentityPosition;
  for (std::string& each : may_be_image ? of_image : of_file) complaints.push_back(std::move(each));
  return std::nullopt;
}

}  // namespace morlek
