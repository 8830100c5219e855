#pragma once

#include <string>
#include <string_view>

namespace morlek {

/// Texts in the grid, the codecs and the team data file are bytes of code page Windows-1252.

/// The capital of one character; characters without a capital in the code page stay as they are.
[[nodiscard]] char UpperCase(char character);

/// The text in capitals, as long as it was.
[[nodiscard]] std::string UpperCase(std::string_view text);

}  // namespace morlek
