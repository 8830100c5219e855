#include "textfile/average_form.h"

#include <algorithm>

namespace morlek {
namespace {

bool AreDigits(std::string_view text) {
  return text.find_first_not_of("0123456789") == std::string_view::npos;
}

/// The text without what of `character` stands in front, or at its end.
std::string_view WithoutFirst(std::string_view text, char character) {
  return text.substr(std::min(text.find_first_not_of(character), text.size()));
}
std::string_view WithoutLast(std::string_view text, char character) {
  return text.substr(0, text.find_last_not_of(character) + 1);
}

}  // namespace

std::string InAverageForm(Column column, std::string_view text) {
  const bool is_batting = column == Column::kBattingAverage;
  if (!is_batting && column != Column::kEarnedRunAverage) return std::string(text);
  const std::size_t whole_digits = is_batting ? 0 : 1;
  const std::size_t decimals = is_batting ? 3 : 2;

  const std::size_t point = std::min(text.find_first_of(".,"), text.size());
  const std::string_view all_whole = text.substr(0, point);
  const std::string_view all_part = text.substr(std::min(point + 1, text.size()));
  const bool is_number =
      AreDigits(all_whole) && AreDigits(all_part) && !(all_whole.empty() && all_part.empty());
  std::string whole(WithoutFirst(all_whole, '0'));
  std::string part(WithoutLast(all_part, '0'));
  if (!is_number || whole.size() > whole_digits || part.size() > decimals) return std::string(text);
  whole.insert(0, whole_digits - whole.size(), '0');
  part.append(decimals - part.size(), '0');
  return whole + "." + part;
}

}  // namespace morlek
