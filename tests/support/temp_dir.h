#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace morlek {

/// A folder of a test's own, removed with all that is in it.
class TempDir {
 public:
  TempDir()
      : path_(std::filesystem::temp_directory_path() /
              ("core_tests_" + std::to_string(std::random_device{}()))) {
    std::filesystem::create_directory(path_);
  }
  ~TempDir() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;

  [[nodiscard]] std::filesystem::path operator/(std::string_view name) const {
    return path_ / name;
  }

 private:
  std::filesystem::path path_;
};

inline void PutFile(const std::filesystem::path& path, const std::string& content) {
  std::ofstream(path, std::ios::binary) << content;
}

inline void PutFile(const std::filesystem::path& path, const std::vector<std::uint8_t>& content) {
  PutFile(path, std::string(content.begin(), content.end()));
}

[[nodiscard]] inline std::string GetFile(const std::filesystem::path& path) {
  std::string content(std::filesystem::file_size(path), '\0');
  std::ifstream(path, std::ios::binary)
      .read(content.data(), static_cast<std::streamsize>(content.size()));
  return content;
}

}  // namespace morlek
