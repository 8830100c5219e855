#include "shell/menu_table.h"

#include <QKeyEvent>
#include <algorithm>

namespace morlek {

bool IsMenuKey(QKeyCombination key) {
  return std::ranges::any_of(kMenus, [key](const MenuTable& menu) {
    return std::ranges::any_of(menu.items, [key](const MenuItem& item) { return item.key == key; });
  });
}

bool LeaveToMenu(QEvent& event) {
  if (event.type() != QEvent::ShortcutOverride) return false;
  if (!IsMenuKey(static_cast<QKeyEvent&>(event).keyCombination())) return false;
  event.ignore();
  return true;
}

}  // namespace morlek
