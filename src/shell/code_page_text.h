#pragma once

#include <QString>
#include <QValidator>
#include <string>
#include <string_view>

namespace morlek {

/// The core's texts are bytes of code page Windows-1252; the window converts at its edge.

/// A text of the core for the window. Every byte is one character; the five that the code page
/// leaves undefined are control characters.
[[nodiscard]] QString FromCodePage(std::string_view text);

/// A text of the window for the core, one byte a character; a character that the code page lacks
/// becomes "?".
[[nodiscard]] std::string ToCodePage(const QString& text);

/// Characters of a line edit that the code page lacks become "?" at once, in the same change as
/// what brought them. One validator serves any number of line edits.
class CodePageValidator : public QValidator {
  Q_OBJECT

 public:
  /// Corrects the text, which makes it valid; the cursor stays behind the same character.
  State validate(QString& text, int& cursor) const override;
};

}  // namespace morlek
