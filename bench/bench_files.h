#pragma once

#include <cstdint>
#include <filesystem>

namespace morlek::bench {

constexpr std::uintmax_t kGameBytes = 1573376;
constexpr std::uintmax_t kHugeBytes = std::uintmax_t{4} << 30U;

/// A temporary folder for the measured files; removed with the object.
class BenchFolder {
 public:
  BenchFolder();
  ~BenchFolder();
  BenchFolder(const BenchFolder&) = delete;
  BenchFolder& operator=(const BenchFolder&) = delete;

  /// The sample image, lengthened to `bytes` by a hole where it is shorter.
  [[nodiscard]] std::filesystem::path ImageOf(std::uintmax_t bytes) const;

  [[nodiscard]] std::filesystem::path path(const char* name) const { return folder_ / name; }

 private:
  std::filesystem::path folder_;
};

}  // namespace morlek::bench
