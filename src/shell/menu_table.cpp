#include "shell/menu_table.h"

#include <algorithm>

namespace morlek {

bool IsMenuKey(QKeyCombination key) {
  return std::ranges::any_of(kMenus, [key](const MenuTable& menu) {
    return std::ranges::any_of(menu.items, [key](const MenuItem& item) { return item.key == key; });
  });
}

}  // namespace morlek
