#include "league/image_writer.h"

#include <algorithm>

#include "image/failure.h"

namespace morlek {
namespace {

/// The byte that stands there now; nothing when it cannot be read.
std::optional<std::uint8_t> ByteNow(CartridgeImage& image, const ByteChange& change) {
  try {
    return image.ReadField(change.team->base, change.row, change.offset);
  } catch (const OperationFailed&) {
    return std::nullopt;
  }
}

void PutBack(CartridgeImage& image, const std::filesystem::path& path,
             std::span<const ByteChange> bytes) {
  if (!image.Open(path)) return;
  for (const ByteChange& each : bytes) {
    static_cast<void>(image.WriteField(each.team->base, each.row, each.offset, each.before));
  }
  image.Close();
}

/// Reads the bytes back: after a failure only the disk shows which were written.
std::vector<LeftByte> Left(CartridgeImage& image, const std::filesystem::path& path,
                           std::span<const ByteChange> bytes) {
  std::vector<LeftByte> left;
  // When it cannot be opened, no byte can be read either.
  static_cast<void>(image.OpenForReading(path));
  for (const ByteChange& each : bytes) {
    const std::optional<std::uint8_t> now = ByteNow(image, each);
    if (now != each.before) left.push_back({each.position(), each.before, now});
  }
  image.Close();
  return left;
}

}  // namespace

ImageWriteResult WriteIntoImage(const Disk& disk, const std::filesystem::path& path,
                                std::span<const ByteChange> bytes) {
  Channel channel(disk.open);
  CartridgeImage image(channel);
  if (!image.Open(path)) throw OperationFailed("could not be opened for writing");
  const auto failed = std::ranges::find_if_not(bytes, [&image](const ByteChange& each) {
    return image.WriteField(each.team->base, each.row, each.offset, each.after);
  });
  const bool is_closed = image.Close();
  if (failed == bytes.end() && is_closed) return {};

  // The byte that failed may be written even so.
  const auto tried = static_cast<std::size_t>(failed - bytes.begin()) + 1;
  const auto touched = bytes.first(std::min(tried, bytes.size()));
  PutBack(image, path, touched);
  return {false, Left(image, path, touched)};
}

}  // namespace morlek
