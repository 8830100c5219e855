#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace morlek {

/// The core's texts are bytes of code page Windows-1252; the window converts at its edge.

/// Every byte is one character; the five that the code page leaves open are control characters.
[[nodiscard]] QString FromCodePage(std::string_view text);

/// One byte a character; a character that the code page lacks becomes "?".
[[nodiscard]] std::string ToCodePage(const QString& text);

}  // namespace morlek
