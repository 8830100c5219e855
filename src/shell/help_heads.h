#pragma once

class QTextDocument;

namespace morlek {

/// Makes the heads in the help text stand out: lines in capitals and the topic that a paragraph
/// begins with are bold, and a row of hyphens or colons is as wide as the head beside it. The text
/// stays as it is.
void ShowHeads(QTextDocument& document);

}  // namespace morlek
