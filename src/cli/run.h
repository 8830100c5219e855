#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "league/disk.h"

namespace morlek::cli {

/// What the process ends with.
enum class ExitStatus {
  kDone = 0,
  kRefused = 1,      // or, of a comparison, different
  kWrongCall = 2,    // the arguments are none
  kFileFailure = 3,  // a file could not be opened, read or written
};

/// Standard input and outputs.
struct Streams {
  std::istream& in;
  std::ostream& out;
  std::ostream& messages;
};

/// Does what the arguments say, of which the program's own name is none. Results go to `out`, all
/// else to `messages`.
[[nodiscard]] ExitStatus Run(std::vector<std::string> arguments, const Disk& disk,
                             const Streams& streams);

}  // namespace morlek::cli
