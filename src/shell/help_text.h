#pragma once

#include <QString>

namespace morlek {

/// The text of the help pane, lines separated by carriage return and line feed.
[[nodiscard]] QString HelpText();

}  // namespace morlek
