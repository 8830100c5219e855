#include <iostream>
#include <span>

#include "cli/run.h"

int main(int argument_count, char** arguments) {
  std::ios_base::sync_with_stdio(false);
  const std::span<char*> all(arguments, static_cast<std::size_t>(argument_count));
  // A program can be started without even its name.
  const std::span<char*> own = all.subspan(all.empty() ? 0 : 1);
  return static_cast<int>(morlek::cli::Run({own.begin(), own.end()}, morlek::RealDisk(),
                                           {std::cin, std::cout, std::cerr}));
}
