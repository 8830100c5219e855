#include "bench_files.h"

#include <fstream>
#include <random>
#include <string>
#include <vector>

#include "sample_image.h"

namespace morlek::bench {

BenchFolder::BenchFolder()
    : folder_(std::filesystem::temp_directory_path() /
              ("morlek_bench_" + std::to_string(std::random_device{}()))) {
  std::filesystem::create_directory(folder_);
}

BenchFolder::~BenchFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

std::filesystem::path BenchFolder::ImageOf(std::uintmax_t bytes) const {
  std::filesystem::path image = folder_ / ("image_" + std::to_string(bytes) + ".smc");
  if (!std::filesystem::exists(image)) {
    const std::vector<std::uint8_t> sample = MakeSampleImage();
    std::ofstream(image, std::ios::binary) << std::string(sample.begin(), sample.end());
    if (bytes > sample.size()) std::filesystem::resize_file(image, bytes);
  }
  return image;
}

}  // namespace morlek::bench
