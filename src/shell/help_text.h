#pragma once

#include <QString>

namespace morlek {

/// The text of the help pane as it stands in resources/help.txt, lines separated by carriage return
/// and line feed, without a line break at the end.
[[nodiscard]] QString HelpText();

}  // namespace morlek
