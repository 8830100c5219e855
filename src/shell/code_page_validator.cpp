#include "shell/code_page_validator.h"

#include <algorithm>

#include "codecs/code_page.h"
#include "shell/code_page_text.h"

namespace morlek {
namespace {

/// False for the two halves of a character that takes two places, too.
bool IsKnown(QChar character) { return FromUnicode(character.unicode()).has_value(); }

QString Corrected(const QString& text) { return FromCodePage(ToCodePage(text)); }

}  // namespace

QValidator::State CodePageValidator::validate(QString& text, int& cursor) const {
  if (!std::ranges::all_of(QStringView(text), IsKnown)) {
    cursor = static_cast<int>(Corrected(text.first(cursor)).size());
    text = Corrected(text);
  }
  return Acceptable;
}

}  // namespace morlek
