#include "editor/toolbox.h"

#include <algorithm>
#include <stdexcept>

#include "codecs/code_page.h"
#include "codecs/hex_text.h"

namespace morlek {

std::optional<std::int32_t> Hex_to_Dec(std::string_view HexNum, MessagePort& messages) {
  if (!std::ranges::all_of(HexNum, IsHexDigit)) {
    messages.Show({UpperCase(HexNum) + " is Not a valid hexadecimal number", "Hex_to_Dec",
                   Message::Icon::kCritical});
    return 0;
  }
  return SignedHexToNumber(HexNum);
}

std::int64_t Hex_to_Unsigned(std::string_view text) {
  constexpr std::size_t kDigits = 8;
  if (UpperCase(text.substr(0, 2)) == "&H") text.remove_prefix(2);
  text.remove_prefix(text.size() - std::min(text.size(), kDigits));
  return HexDigitsToNumber(text).value_or(0);
}

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
