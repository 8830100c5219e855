#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace morlek {

/// Texts in the grid, the codecs and the team data file are bytes of code page Windows-1252.

/// The character of a byte. Every byte has one; the five that the code page leaves open are control
/// characters.
[[nodiscard]] char16_t ToUnicode(char byte);

/// The byte of a character, or nothing when the code page lacks it.
[[nodiscard]] std::optional<char> FromUnicode(char32_t character);

/// The capital of one character; characters without a capital in the code page stay as they are.
[[nodiscard]] char UpperCase(char character);

/// The text in capitals, as long as it was.
[[nodiscard]] std::string UpperCase(std::string_view text);

}  // namespace morlek
