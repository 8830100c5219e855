#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace morlek::cli {

// File names are texts in UTF-8, or whatever bytes the system has; "-" is standard input or output.

struct ExportArguments {
  std::string image;
  std::string file = "-";
  bool replaces = false;
};

struct ImportArguments {
  std::string file;
  std::string image;
  bool is_dry_run = false;
};

struct DiffArguments {
  std::string one;
  std::string other;
};

/// A text for standard output that was asked for instead of a command.
struct InfoText {
  std::string text;
};

/// Why the arguments are invalid.
struct WrongCall {
  std::string why;
};

using Arguments =
    std::variant<ExportArguments, ImportArguments, DiffArguments, InfoText, WrongCall>;

/// Reads the arguments of the program, without its own name.
[[nodiscard]] Arguments ReadArguments(std::vector<std::string> texts);

}  // namespace morlek::cli
