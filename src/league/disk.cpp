#include "league/disk.h"

#include <system_error>

namespace morlek {
namespace {

namespace fs = std::filesystem;

Disk::Entry Look(const fs::path& path) {
  std::error_code ignored;
  const fs::file_type type = fs::symlink_status(path, ignored).type();
  if (type == fs::file_type::not_found) return Disk::Entry::kNone;
  return type == fs::file_type::regular ? Disk::Entry::kFile : Disk::Entry::kOther;
}

std::optional<std::uintmax_t> Size(const fs::path& path) {
  std::error_code failed;
  const std::uintmax_t size = fs::file_size(path, failed);
  if (failed) return std::nullopt;
  return size;
}

bool Move(const fs::path& from, const fs::path& to) {
  std::error_code failed;
  const fs::file_status replaced = fs::status(to, failed);
  if (fs::exists(replaced)) fs::permissions(from, replaced.permissions(), failed);
  failed.clear();
  fs::rename(from, to, failed);
  return !failed;
}

}  // namespace

Disk RealDisk() {
  return {OpenFile, Look, Size, Move, [](const fs::path& path) {
            std::error_code ignored;
            fs::remove(path, ignored);
          }};
}

}  // namespace morlek
