#include "shell/code_page_text.h"

#include <QList>
#include <algorithm>

#include "codecs/code_page.h"

namespace morlek {
namespace {

/// Also false for the two halves of a character outside the basic plane.
bool IsKnown(QChar character) { return FromUnicode(character.unicode()).has_value(); }

QString Corrected(const QString& text) { return FromCodePage(ToCodePage(text)); }

}  // namespace

QString FromCodePage(std::string_view text) {
  QString result;
  result.reserve(static_cast<qsizetype>(text.size()));
  for (const char byte : text) result += QChar(ToUnicode(byte));
  return result;
}

std::string ToCodePage(const QString& text) {
  std::string result;
  for (const char32_t character : text.toUcs4()) result += FromUnicode(character).value_or('?');
  return result;
}

QValidator::State CodePageValidator::validate(QString& text, int& cursor) const {
  if (!std::ranges::all_of(QStringView(text), IsKnown)) {
    cursor = static_cast<int>(Corrected(text.first(cursor)).size());
    text = Corrected(text);
  }
  return Acceptable;
}

}  // namespace morlek
