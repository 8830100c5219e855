#include "image/cartridge_image.h"

#include "image/failure.h"
#include "image/record_layout.h"

namespace morlek {

std::uint8_t CartridgeImage::ReadIdentityByte(const std::filesystem::path& path) {
  if (!channel_.OpenBinary(path)) throw OperationFailed("The file could not be opened.");
  const std::uint8_t byte = channel_.ReadByte(kIdentityPosition);
  channel_.Close();
  return byte;
}

bool CartridgeImage::Open() {
  opened_ = channel_.OpenBinary(path_);
  return opened_;
}

bool CartridgeImage::Close() {
  opened_ = false;
  return channel_.Close();
}

std::uint8_t CartridgeImage::ReadField(int slot, int offset) {
  if (!team_base_) throw OperationFailed("No team has been picked.");
  return channel_.ReadByte(FieldPosition(slot, offset));
}

bool CartridgeImage::WriteField(int slot, int offset, std::uint8_t value) {
  return opened_ && team_base_ && channel_.WriteByte(FieldPosition(slot, offset), value);
}

std::int64_t CartridgeImage::FieldPosition(int slot, int offset) const {
  return *team_base_ + std::int64_t{kSlotBytes} * slot + offset;
}

}  // namespace morlek
