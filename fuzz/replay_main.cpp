// Runs a fuzz program's check over every file of a corpus, with any compiler.

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <span>
#include <vector>

#include "fuzz/promise.h"

int main(int argument_count, char** arguments) {
  int files = 0;
  const std::span<char*> folders(arguments, static_cast<std::size_t>(argument_count));
  for (const char* folder : folders.subspan(1)) {
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      std::ifstream file(entry.path(), std::ios::binary);
      const std::vector<std::uint8_t> bytes{std::istreambuf_iterator<char>(file), {}};
      LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
      ++files;
    }
  }
  std::cout << files << " inputs held.\n";
  return files > 0 ? 0 : 1;
}
