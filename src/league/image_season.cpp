#include "league/image_season.h"

#include "codecs/hex_text.h"
#include "image/failure.h"
#include "team/column_bytes.h"
#include "team/record_decoder.h"

namespace morlek {
namespace {

/// Notes the cells that show nothing of the image's own.
class UnknownCells : public DecodingListener {
 public:
  void UnknownByte(Cell cell) override { cells.push_back(cell); }
  bool NoRating(Cell cell) override {
    cells.push_back(cell);
    return true;
  }

  std::vector<Cell> cells;
};

ImageTeam ReadTeam(CartridgeImage& image, const Team& team, RosterGrid& texts) {
  ImageTeam result;
  const auto byte_at = [&](int row, int offset) {
    if (const auto known = result.bytes.At(row, offset)) return *known;
    const std::uint8_t byte = image.ReadField(team.base, row, offset);
    result.bytes.Put(row, offset, byte);
    return byte;
  };
  UnknownCells unknown;
  DecodeRecord(byte_at, result.state, result.shown, unknown);
  for (const Cell cell : kAllCells) {
    for (const int offset : WrittenBytesOf(cell)) static_cast<void>(byte_at(cell.row, offset));
  }
  texts = result.shown;
  for (const Cell cell : unknown.cells) texts.SetText(cell, {});
  return result;
}

std::string WhyNotTheGame(std::uint8_t identity, std::optional<std::uintmax_t> size) {
  std::string why = "this is not the image of the game: the byte at position " +
                    std::to_string(kIdentityPosition) + " is " + ByteToTwoDigits(identity) +
                    " and not " + ByteToTwoDigits(kIdentityByte);
  if (size && LacksCopierHeader(*size)) {
    why += "; by its size the 512 bytes in front are missing that a copier puts there";
  }
  return why;
}

ImageSeason ReadTeams(CartridgeImage& image) {
  ImageSeason result;
  result.season.is_image = true;
  result.teams.reserve(kTeamDirectory.size());
  for (const Team& team : kTeamDirectory) {
    result.teams.push_back(ReadTeam(image, team, result.season.teams.at(PlaceOf(team)).texts));
  }
  return result;
}

}  // namespace

std::optional<ImageSeason> ReadImage(const Disk& disk, const std::filesystem::path& path,
                                     Complaints& complaints) {
  Channel channel(disk.open);
  CartridgeImage image(channel);
  if (!image.OpenForReading(path)) throw OperationFailed("could not be opened for reading");
  const std::uint8_t identity = image.ReadIdentityByte();
  if (identity != kIdentityByte) {
    complaints.push_back(WhyNotTheGame(identity, disk.size(path)));
    return std::nullopt;
  }
  return ReadTeams(image);
}

}  // namespace morlek
