#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace morlek {

/// Conversions of the code page Windows-1252, of which all texts in the grid, the codecs and the
/// team data file are bytes. None of them fails or depends on the locale.

/// The Unicode character of a byte. The five bytes that the code page leaves undefined are control
/// characters.
[[nodiscard]] char16_t ToUnicode(char byte);

/// The byte of a Unicode character, or nothing when the code page lacks it.
[[nodiscard]] std::optional<char> FromUnicode(char32_t character);

/// The capital of one character, or the character itself when the code page has no capital of it.
[[nodiscard]] char UpperCase(char character);

/// The text with every character replaced by its capital; its length does not change.
[[nodiscard]] std::string UpperCase(std::string_view text);

}  // namespace morlek
