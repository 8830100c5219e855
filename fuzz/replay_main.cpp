// Runs a fuzz program's check over every file of a corpus, with any compiler.

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argument_count, char** arguments) {
  int files = 0;
  for (int each = 1; each < argument_count; ++each) {
    for (const auto& entry : std::filesystem::directory_iterator(arguments[each])) {
      std::ifstream file(entry.path(), std::ios::binary);
      const std::vector<char> content{std::istreambuf_iterator<char>(file), {}};
      const std::vector<std::uint8_t> bytes(content.begin(), content.end());
      LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
      ++files;
    }
  }
  std::cout << files << " inputs held.\n";
  return files > 0 ? 0 : 1;
}
