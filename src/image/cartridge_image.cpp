#include "image/cartridge_image.h"

#include "image/failure.h"
#include "image/record_layout.h"

namespace morlek {

std::int64_t FieldPosition(std::int64_t base, int slot, int offset) {
  return base + std::int64_t{kSlotBytes} * slot + offset;
}

std::optional<std::uint8_t> CartridgeImage::ReadIdentityByte(const std::filesystem::path& path) {
  if (!channel_.OpenBinary(path)) return std::nullopt;
  try {
    const std::uint8_t byte = ReadIdentityByte();
    channel_.Close();
    return byte;
  } catch (const OperationFailed&) {
    return std::nullopt;
  }
}

bool CartridgeImage::Open(const std::filesystem::path& path) {
  opened_ = channel_.OpenBinary(path);
  return opened_;
}

bool CartridgeImage::OpenForReading(const std::filesystem::path& path) {
  opened_ = false;
  return channel_.OpenBinaryForReading(path);
}

std::uint8_t CartridgeImage::ReadIdentityByte() { return channel_.ReadByte(kIdentityPosition); }

bool CartridgeImage::Close() {
  opened_ = false;
  return channel_.Close();
}

std::uint8_t CartridgeImage::ReadField(std::optional<std::int64_t> base, int slot, int offset) {
  if (!base) throw OperationFailed("No team has been picked.");
  return channel_.ReadByte(FieldPosition(*base, slot, offset));
}

bool CartridgeImage::WriteField(std::optional<std::int64_t> base, int slot, int offset,
                                std::uint8_t value) {
  return opened_ && base && channel_.WriteByte(FieldPosition(*base, slot, offset), value);
}

}  // namespace morlek
