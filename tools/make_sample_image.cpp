// Writes the synthetic sample image, so that anyone can try the program without a game.

#include <fstream>
#include <iostream>
#include <span>
#include <vector>

#include "sample_image.h"

int main(int argument_count, char** argument_values) {
  const std::span arguments(argument_values, static_cast<std::size_t>(argument_count));
  if (arguments.size() != 2) {
    std::cerr << "usage: make_sample_image FILE\n";
    return 2;
  }
  const std::vector<std::uint8_t> image = morlek::MakeSampleImage();
  std::ofstream file(arguments[1], std::ios::binary);
  for (const std::uint8_t byte : image) file.put(static_cast<char>(byte));
  if (!file.flush()) {
    std::cerr << "make_sample_image: cannot write " << arguments[1] << '\n';
    return 1;
  }
  std::cout << "Wrote " << arguments[1] << ", " << image.size() << " bytes.\n";
  return 0;
}
