#include "codecs/skin_class.h"

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

void SkinClass::Follow(std::string_view code) {
  if (code.size() != 2) return;
  for (const SkinGroup& group : kSkinGroups) {
    if (code[0] == group.high && code[1] >= '0' && code[1] <= group.last) text_ = group.skin_class;
  }
}

}  // namespace morlek
