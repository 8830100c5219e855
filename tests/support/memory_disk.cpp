#include "support/memory_disk.h"

#include <memory>
#include <streambuf>
#include <utility>

namespace morlek {
namespace {

class MemoryFile : public File, private std::streambuf {
 public:
  MemoryFile(MemoryDisk& disk, std::vector<std::uint8_t>& bytes) : disk_(disk), bytes_(bytes) {
    ++disk_.open_files;
  }
  ~MemoryFile() override { --disk_.open_files; }
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;

  std::streambuf& bytes() override { return *this; }
  bool Close() override {
    const bool fails = disk_.FailsNow();
    disk_.failed_closes += fails ? 1 : 0;
    return !fails;
  }

 protected:
  pos_type seekpos(pos_type position, std::ios_base::openmode /*which*/) override {
    if (std::streamoff(position) < 0) return off_type(-1);
    place_ = static_cast<std::size_t>(std::streamoff(position));
    return position;
  }

  int_type underflow() override {
    if (disk_.FailsNow()) throw std::ios_base::failure("bad sector");
    const bool at_end = place_ >= bytes_.size();
    const int byte = at_end ? -1 : bytes_[place_];
    disk_.reads.push_back({static_cast<std::int64_t>(place_) + 1, byte});
    return at_end ? traits_type::eof() : byte;
  }

  int_type uflow() override {
    const int_type byte = underflow();
    ++place_;
    return byte;
  }

  int_type overflow(int_type character) override {
    if (disk_.FailsNow()) return traits_type::eof();
    if (place_ >= bytes_.size()) bytes_.resize(place_ + 1);
    bytes_[place_] = static_cast<std::uint8_t>(character);
    ++place_;
    disk_.writes.push_back({static_cast<std::int64_t>(place_), bytes_[place_ - 1]});
    return traits_type::not_eof(character);
  }

 private:
  MemoryDisk& disk_;
  std::vector<std::uint8_t>& bytes_;
  std::size_t place_ = 0;
};

}  // namespace

bool MemoryDisk::FailsNow() {
  if (failing_access == 0 || --failing_access > 0) return false;
  if (fails_from_then_on) failing_access = 1;
  ++failures;
  return true;
}

FileOpener MemoryDisk::Opener() {
  return [this](const std::filesystem::path& path,
                std::ios_base::openmode mode) -> std::unique_ptr<File> {
    if (FailsNow()) return nullptr;
    if ((mode & std::ios_base::trunc) != 0) files[path].clear();
    const auto file = files.find(path);
    if (file == files.end()) return nullptr;
    opened.push_back(path);
    return std::make_unique<MemoryFile>(*this, file->second);
  };
}

}  // namespace morlek
