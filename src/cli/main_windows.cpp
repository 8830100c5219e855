// The entry point on Windows, whose file names are not bytes.

#include <fcntl.h>
#include <io.h>

#include <filesystem>
#include <iostream>
#include <span>

#include "cli/run.h"

int wmain(int argument_count, wchar_t** arguments) {
  // Tables contain their own line ends.
  static_cast<void>(_setmode(0, _O_BINARY));
  static_cast<void>(_setmode(1, _O_BINARY));
  std::ios_base::sync_with_stdio(false);
  const std::span<wchar_t*> all(arguments, static_cast<std::size_t>(argument_count));
  std::vector<std::string> own;
  for (const wchar_t* argument : all.subspan(all.empty() ? 0 : 1)) {
    const std::u8string text = std::filesystem::path(argument).u8string();
    own.emplace_back(text.begin(), text.end());
  }
  return static_cast<int>(
      morlek::cli::Run(std::move(own), morlek::RealDisk(), {std::cin, std::cout, std::cerr}));
}
