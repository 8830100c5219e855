#include "team/same_text.h"

#include <algorithm>

#include "codecs/code_page.h"

namespace morlek {

std::string CanonicalText(Column column, std::string_view text) {
  if (IsFeature(column)) {
    // A zero alone stays.
    const std::size_t most = std::max(text.size(), std::size_t{1}) - 1;
    text.remove_prefix(std::min(text.find_first_not_of('0'), most));
  }
  return UpperCase(text);
}

bool IsSameText(Column column, std::string_view one, std::string_view other) {
  return one == other || CanonicalText(column, one) == CanonicalText(column, other);
}

}  // namespace morlek
