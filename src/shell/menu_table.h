#pragma once

#include <QKeyCombination>
#include <array>
#include <span>

class QEvent;

namespace morlek {

/// What a menu item does.
enum class Command {
  kOpen,
  kQuit,
  kImport,
  kExport,
  kMinimizeFeatures,
  kAlwaysOnTop,
  kNotOnTop,
  kHelp,
  kAbout,
};

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

inline constexpr std::array<MenuItem, 2> kFileItems = {{
    {Command::kOpen, "mnuOpen", "&Open Rom", Qt::CTRL | Qt::Key_O},
    {Command::kQuit, "mnuQuit", "&Quit", Qt::CTRL | Qt::Key_Q},
}};

inline constexpr std::array<MenuItem, 5> kOptionsItems = {{
    {Command::kImport, "mnuImport", "&Import Team Data", Qt::CTRL | Qt::Key_I},
    {Command::kExport, "mnuExport", "&Export Team Data", Qt::CTRL | Qt::Key_E},
    {Command::kMinimizeFeatures, "mnuMini", "&Minimize Player Features", Qt::CTRL | Qt::Key_M},
    {Command::kAlwaysOnTop, "mnuAlwaysOnTop", "Always On top", Qt::CTRL | Qt::Key_T},
    {Command::kNotOnTop, "mnuNotTop", "Not Always On Top", Qt::CTRL | Qt::Key_N},
}};

inline constexpr std::array<MenuItem, 2> kHelpItems = {{
    {Command::kHelp, "mnuMorlekHELP", "Morlek &Help", Qt::CTRL | Qt::Key_H},
    {Command::kAbout, "mnuAboutMorlek", "&About MORLEK EDITOR", Qt::CTRL | Qt::Key_A},
}};

inline constexpr std::array<MenuTable, 3> kMenus = {{
    {"mnuFile", "&File", kFileItems},
    {"mnuOptions", "Options", kOptionsItems},
    {"mnuHelp", "Help", kHelpItems},
}};

/// True for the shortcut key of a menu item.
[[nodiscard]] bool IsMenuKey(QKeyCombination key);

/// True when the event asks a text box whether it wants a menu item's shortcut key for itself; the
/// event is then refused, and the box has to return false for it. Line and text editors would take
/// Ctrl+A and Ctrl+E otherwise.
[[nodiscard]] bool LeaveToMenu(QEvent& event);

}  // namespace morlek
