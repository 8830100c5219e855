#include "shell/code_page_text.h"

#include <QList>

#include "codecs/code_page.h"

namespace morlek {

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

}  // namespace morlek
