#include "shell/menu_bar.h"

#include <QKeyCombination>
#include <QKeyEvent>
#include <algorithm>
#include <array>
#include <span>

namespace morlek {
namespace {

/// A menu item: its object name, its caption with the access letter marked, its shortcut key.
struct MenuItem {
  Command command{};
  const char* name = nullptr;
  const char* caption = nullptr;
  QKeyCombination key;
};

/// A menu of the menu bar: its object name, its caption, its items from top to bottom.
struct MenuTable {
  const char* name;
  const char* caption;
  std::span<const MenuItem> items;
};

constexpr std::array<MenuItem, 2> kFileItems = {{
    {Command::kOpen, "mnuOpen", "&Open Rom", Qt::CTRL | Qt::Key_O},
    {Command::kQuit, "mnuQuit", "&Quit", Qt::CTRL | Qt::Key_Q},
}};

constexpr std::array<MenuItem, 5> kOptionsItems = {{
    {Command::kImport, "mnuImport", "&Import Team Data", Qt::CTRL | Qt::Key_I},
    {Command::kExport, "mnuExport", "&Export Team Data", Qt::CTRL | Qt::Key_E},
    {Command::kMinimizeFeatures, "mnuMini", "&Minimize Player Features", Qt::CTRL | Qt::Key_M},
    {Command::kAlwaysOnTop, "mnuAlwaysOnTop", "Always On top", Qt::CTRL | Qt::Key_T},
    {Command::kNotOnTop, "mnuNotTop", "Not Always On Top", Qt::CTRL | Qt::Key_N},
}};

constexpr std::array<MenuItem, 2> kHelpItems = {{
    {Command::kHelp, "mnuMorlekHELP", "Morlek &Help", Qt::CTRL | Qt::Key_H},
    {Command::kAbout, "mnuAboutMorlek", "&About MORLEK EDITOR", Qt::CTRL | Qt::Key_A},
}};

constexpr std::array<MenuTable, 3> kMenus = {{
    {"mnuFile", "&File", kFileItems},
    {"mnuOptions", "Options", kOptionsItems},
    {"mnuHelp", "Help", kHelpItems},
}};

bool IsMenuKey(QKeyCombination key) {
  return std::ranges::any_of(kMenus, [key](const MenuTable& menu) {
    return std::ranges::any_of(menu.items, [key](const MenuItem& item) { return item.key == key; });
  });
}

}  // namespace

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

bool LeaveToMenu(QEvent& event) {
  if (event.type() != QEvent::ShortcutOverride) return false;
  if (!IsMenuKey(static_cast<QKeyEvent&>(event).keyCombination())) return false;
  event.ignore();
  return true;
}

}  // namespace morlek
