#include "textfile/comma_field.h"

#include <stdexcept>

namespace morlek {

std::string_view CommaField(std::int16_t intCommaNumber, std::string_view strString) {
  constexpr std::size_t kNone = std::string_view::npos;
  const std::size_t first_comma = strString.find(',');
  if (intCommaNumber == 0) {
    if (first_comma == kNone) throw std::invalid_argument("CommaField: a line without a comma");
    return strString.substr(0, first_comma);
  }

  // Without any comma, field 1 is the whole line.
  std::size_t start = first_comma == kNone ? 0 : first_comma + 1;
  for (int field = 1; field < intCommaNumber; ++field) {
    const std::size_t comma = strString.find(',', start);
    if (comma == kNone) return "NOT FOUND";
    start = comma + 1;
  }
  if (start >= strString.size()) return "NOT FOUND";
  return strString.substr(start, strString.find(',', start) - start);
}

}  // namespace morlek
