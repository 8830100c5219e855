#include "shell/help_text.h"

#include <QFile>
#include <QFontMetricsF>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace morlek {

QString HelpText() {
  QFile file(":/help.txt");
  // It is part of the program. As text, whatever line ends it was built from.
  if (!file.open(QFile::ReadOnly | QFile::Text)) return {};
  return QString::fromUtf8(file.readAll()).chopped(1).replace('\n', "\r\n");
}

void ShowHeadings(QTextDocument& document) {
  static const QRegularExpression heading("^([A-Z ]+$|[A-Za-z ]+- |-+$|:+$)");
  for (QTextBlock line = document.begin(); line.isValid(); line = line.next()) {
    const QString text = heading.match(line.text()).captured();
    QFont font = document.defaultFont();
    font.setBold(true);
    if (text.startsWith('-') || text.startsWith(':')) {
      const QString above = line.previous().text();
      const QString beside = above.isEmpty() ? line.next().text() : above;
      const qreal width = QFontMetricsF(font).horizontalAdvance(beside);
      font.setBold(false);
      const qreal plain_width = QFontMetricsF(font).horizontalAdvance(text);
      if (text.startsWith('-')) {
        font.setStretch(qRound(100 * width / plain_width));
      } else {
        // Dots are moved apart instead: stretched ones look like hyphens.
        const auto gaps = static_cast<qreal>(text.size() - 1);
        font.setLetterSpacing(QFont::AbsoluteSpacing, (width - plain_width) / gaps);
      }
    }
    QTextCharFormat format;
    format.setFont(font);
    QTextCursor cursor(line);
    cursor.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor, static_cast<int>(text.size()));
    cursor.mergeCharFormat(format);
  }
}

}  // namespace morlek
