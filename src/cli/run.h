#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "league/disk.h"

namespace morlek::cli {

/// The exit status of the process.
enum class ExitStatus {
  kDone = 0,
  kRefused = 1,      // or, of a comparison, different
  kWrongCall = 2,    // the arguments are invalid
  kFileFailure = 3,  // a file could not be opened, read or written
};

/// Standard input and outputs.
struct Streams {
  std::istream& in;
  std::ostream& out;
  std::ostream& messages;
};

/// Runs the command that the arguments, without the program's own name, ask for. Results go to
/// `out`, all else to `messages`.
[[nodiscard]] ExitStatus Run(std::vector<std::string> arguments, const Disk& disk,
                             const Streams& streams);

}  // namespace morlek::cli
