// The least that an export of a season has to do: reads its bytes, one by one, and nothing else.

#include <fcntl.h>
#include <unistd.h>

#include <cstdint>
#include <span>

#include "image/cartridge_image.h"
#include "image/team_directory.h"
#include "team/column_bytes.h"
#include "team/record_bytes.h"

int main(int argument_count, char** arguments) {
  using namespace morlek;
  const std::span<char*> all(arguments, static_cast<std::size_t>(argument_count));
  const int file = open(all.back(), O_RDONLY | O_CLOEXEC);
  int failures = 0;
  for (const Team& team : kTeamDirectory) {
    RecordBytes read;
    for (const Cell cell : kAllCells) {
      for (const int offset : WrittenBytesOf(cell)) {
        if (read.At(cell.row, offset)) continue;
        std::uint8_t byte = 0;
        const auto position = FieldPosition(team.base, cell.row, offset);
        failures += pread(file, &byte, 1, position - 1) == 1 ? 0 : 1;
        read.Put(cell.row, offset, byte);
      }
    }
  }
  close(file);
  return failures;
}
