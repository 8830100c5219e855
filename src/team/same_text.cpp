#include "team/same_text.h"

#include <algorithm>

#include "codecs/code_page.h"

namespace morlek {

std::string CanonicalText(Column column, std::string_view text) {
  if (IsFeature(column)) {
    const std::size_t zeros = std::min(text.find_first_not_of('0'), text.size());
    // A zero alone stays.
    text.remove_prefix(zeros == text.size() && zeros > 0 ? zeros - 1 : zeros);
  }
  return UpperCase(text);
}

bool IsSameText(Column column, std::string_view one, std::string_view other) {
  return one == other || CanonicalText(column, one) == CanonicalText(column, other);
}

}  // namespace morlek
