#include "support/plain_record.h"

#include <array>

namespace morlek {

std::vector<std::uint8_t> PlainRecord() {
  constexpr std::array<int, 6> kMarks = {0x00, 0x01, 0x10, 0x11, 0x20, 0x21};
  constexpr std::array<int, 3> kSides = {0x00, 0x11, 0x20};
  std::vector<std::uint8_t> record(800, 0xEE);
  for (int row = 0; row < 25; ++row) {
    const auto put = [&](int offset, int byte) {
      record.at(std::size_t{32} * static_cast<std::size_t>(row) +
                static_cast<std::size_t>(offset)) = static_cast<std::uint8_t>(byte);
    };
    const auto put_word = [&](int offset, int word) {
      put(offset, word % 256);
      put(offset + 1, word / 256);
    };
    for (int offset = 3; offset <= 8; ++offset) put(offset, 0x00);
    put(0, 0x0B + row);
    put(1, 0x0C);
    put(2, 0x0B + row);
    put(9, row % 12 * 2);
    put(10, row + 1);
    put(11, row % 10 * 16 + row % 9);
    put(14, 0x20 + row);
    put(15, 0x40 + row);
    put(16, row);
    if (row < 15) {
      put(12, (row + 3) % 10 * 16 + (row + 1) % 9);
      put(13, kSides.at(static_cast<std::size_t>(row % 3)));
      put_word(24, 0x3000 + 250 + row);
      put(26, 30 + row);
      put(28, 60 + row);
    } else {
      const int marks = kMarks.at(static_cast<std::size_t>(row % 6));
      put(12, row - 15);
      put(17, marks % 16);
      put(21, row % 2 * 16 + (0x20 + row) / 16);
      put(23, marks);
      put(24, 90 + row);
      put(26, 120 + row);
      put_word(28, 0x2000 + 50 + 10 * row);
      put(30, 150 + row);
    }
  }
  return record;
}

}  // namespace morlek
