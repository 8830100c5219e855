#pragma once

#include <cstdint>
#include <limits>
#include <memory>
#include <streambuf>
#include <utility>

#include "image/channel.h"

namespace morlek {

/// The real files, of which none takes a byte from a 1-based position on.
class FullDisk {
 public:
  static constexpr std::int64_t kNone = std::numeric_limits<std::int64_t>::max();
  std::int64_t first_refused = kNone;

  /// The opener that a channel takes; the disk has to outlive it.
  [[nodiscard]] FileOpener Opener() {
    return [this](const auto& path, auto mode) -> std::unique_ptr<File> {
      std::unique_ptr<File> file = OpenFile(path, mode);
      if (file == nullptr) return nullptr;
      return std::make_unique<Limited>(*this, std::move(file));
    };
  }

 private:
  class Limited : public File, private std::streambuf {
   public:
    Limited(const FullDisk& disk, std::unique_ptr<File> file)
        : disk_(disk), file_(std::move(file)) {}

    std::streambuf& bytes() override { return *this; }
    bool Close() override { return file_->Close(); }

   protected:
    pos_type seekpos(pos_type position, std::ios_base::openmode mode) override {
      place_ = position;
      return file_->bytes().pubseekpos(position, mode);
    }
    int_type underflow() override { return file_->bytes().sgetc(); }
    int_type uflow() override { return file_->bytes().sbumpc(); }
    int_type overflow(int_type character) override {
      if (place_ >= disk_.first_refused - 1) return traits_type::eof();
      ++place_;
      return file_->bytes().sputc(traits_type::to_char_type(character));
    }
    int sync() override { return file_->bytes().pubsync(); }

   private:
    const FullDisk& disk_;
    std::unique_ptr<File> file_;
    std::streamoff place_ = 0;
  };
};

}  // namespace morlek
