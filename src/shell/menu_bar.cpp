#include "shell/menu_bar.h"

namespace morlek {

MenuBar::MenuBar(QWidget* parent) : QMenuBar(parent) {
  setAccessibleName("menu bar");
  for (const MenuTable& table : kMenus) {
    QMenu* menu = addMenu(table.caption);
    menu->setAccessibleName(menu->title().remove('&'));
    menu->setObjectName(table.name);
    for (const MenuItem& item : table.items) {
      QAction* action = menu->addAction(item.caption);
      items_[item.command] = action;
      action->setObjectName(item.name);
      action->setShortcut(item.key);
      connect(action, &QAction::triggered, this, [this, item] { emit Chosen(item.command); });
    }
  }
  OfferOnTop(true);
}

void MenuBar::OfferOnTop(bool offered) {
  items_.at(Command::kAlwaysOnTop)->setVisible(offered);
  items_.at(Command::kNotOnTop)->setVisible(!offered);
}

}  // namespace morlek
