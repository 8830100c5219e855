#pragma once

#include <QString>

class QTextDocument;

namespace morlek {

/// The text of the help pane as it stands in resources/help.txt, lines separated by carriage return
/// and line feed, without a line break at the end.
[[nodiscard]] QString HelpText();

/// Makes the headings in the help text stand out: lines in capitals and the topic that a paragraph
/// begins with are bold, and a row of hyphens or colons is as wide as the heading beside it. The
/// text stays as it is.
void ShowHeadings(QTextDocument& document);

}  // namespace morlek
