#pragma once

#include <QValidator>

namespace morlek {

/// Characters of a line edit that the code page lacks become "?" at once, in the same change as
/// what brought them. One validator serves any number of line edits.
class CodePageValidator : public QValidator {
  Q_OBJECT

 public:
  /// Every text is valid once it is corrected; the cursor stays behind the same character.
  State validate(QString& text, int& cursor) const override;
};

}  // namespace morlek
