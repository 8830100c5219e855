#pragma once

#include <string>
#include <string_view>

#include "team/blocks.h"

namespace morlek {

/// The text of a cell as its column has it, where it is a number that a spreadsheet has shortened
/// or given a decimal comma: in AVG 0.25, ,25 and .25 are .250, in ERA 3.5 is 3.50 and 3 is 3.00.
/// Any other text, and the text of any other column, is as it stands.
[[nodiscard]] std::string InAverageForm(Column column, std::string_view text);

}  // namespace morlek
