#include "shell/code_page_text.h"

#include <QList>

#include "codecs/code_page.h"

namespace morlek {
namespace {

QString Corrected(const QString& text) { return FromCodePage(ToCodePage(text)); }

}  // namespace

QString FromCodePage(std::string_view text) {
  QString result;
  for (const char byte : text) result += QChar(ToUnicode(byte));
  return result;
}

std::string ToCodePage(const QString& text) {
  std::string result;
  for (const char32_t character : text.toUcs4()) result += FromUnicode(character).value_or('?');
  return result;
}

QValidator::State CodePageValidator::validate(QString& text, int& cursor) const {
  cursor = static_cast<int>(Corrected(text.first(cursor)).size());
  text = Corrected(text);
  return Acceptable;
}

}  // namespace morlek
