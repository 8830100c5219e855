#include "shell/help_heads.h"

#include <QFontMetricsF>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>

namespace morlek {
namespace {

bool IsRule(const QString& line) {
  const bool is_mark = line.startsWith('-') || line.startsWith(':');
  return is_mark && std::ranges::all_of(line, [&](QChar each) { return each == line.front(); });
}

/// The font in which a rule comes out as wide as its head in bold: hyphens become longer, colons
/// move apart.
QFont RuleFont(const QFont& plain, const QString& rule, const QString& head) {
  QFont bold = plain;
  bold.setBold(true);
  const qreal wanted = QFontMetricsF(bold).horizontalAdvance(head);
  QFont font = plain;
  if (rule.startsWith('-')) {
    const qreal percent = 100 * wanted / QFontMetricsF(font).horizontalAdvance(rule);
    font.setStretch(qRound(percent));
  }
  const qreal missing = wanted - QFontMetricsF(font).horizontalAdvance(rule);
  const auto gaps = static_cast<qreal>(rule.size() - 1);
  font.setLetterSpacing(QFont::AbsoluteSpacing, missing / gaps);
  return font;
}

void SetFont(const QTextBlock& line, qsizetype length, const QFont& font) {
  QTextCursor cursor(line);
  cursor.setPosition(line.position() + static_cast<int>(length), QTextCursor::KeepAnchor);
  QTextCharFormat format;
  format.setFont(font);
  cursor.mergeCharFormat(format);
}

}  // namespace

void ShowHeads(QTextDocument& document) {
  static const QRegularExpression head_start("^(?:[A-Z ]+$|[A-Za-z ]+- )");
  QFont bold = document.defaultFont();
  bold.setBold(true);
  for (QTextBlock line = document.begin(); line.isValid(); line = line.next()) {
    const QString text = line.text();
    if (IsRule(text)) {
      const QString above = line.previous().text();
      const QString head = above.isEmpty() ? line.next().text() : above;
      SetFont(line, text.size(), RuleFont(document.defaultFont(), text, head));
    } else {
      SetFont(line, head_start.match(text).capturedLength(), bold);
    }
  }
}

}  // namespace morlek
