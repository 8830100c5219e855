#include "codecs/appearance_codec.h"

#include <array>

namespace morlek {
namespace {

/// The codes from `high` `0` to `high` `last` belong to a class.
struct SkinGroup {
  char high;
  char last;
  std::string_view skin_class;
};

// Code 15 belongs to none.
constexpr std::array<SkinGroup, 6> kSkinGroups = {{{'0', '5', "0"},
                                                   {'1', '4', "0"},
                                                   {'2', '5', "3"},
                                                   {'3', '5', "3"},
                                                   {'4', '5', "5"},
                                                   {'5', '5', "5"}}};

}  // namespace

const std::string& AppearanceCodec::NormalizeAppearanceCode(std::string_view text) {
  const bool is_single_digit = text.size() == 1 && text[0] >= '0' && text[0] <= '9';
  appearance_code_ = text;
  if (is_single_digit) appearance_code_.insert(0, 1, '0');

  if (appearance_code_.size() != 2) return appearance_code_;
  for (const SkinGroup& group : kSkinGroups) {
    const char low = appearance_code_[1];
    if (appearance_code_[0] == group.high && low >= '0' && low <= group.last) {
      skin_class_ = group.skin_class;
    }
  }
  return appearance_code_;
}

}  // namespace morlek
