#pragma once

#include <QMenuBar>
#include <map>

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

/// The menus of the main window.
class MenuBar : public QMenuBar {
  Q_OBJECT

 public:
  explicit MenuBar(QWidget* parent);

  /// Shows one of two items: the one that keeps the window on top, or the one that ends it.
  void OfferOnTop(bool offered);

 signals:
  /// An item was chosen, or its key was pressed.
  void Chosen(Command command);

 private:
  std::map<Command, QAction*> items_;
};

/// True when the event asks a text box whether it wants a menu item's shortcut key for itself. The
/// event is then ignored, and the box has to return false for it. Otherwise line and text editors
/// would take Ctrl+A and Ctrl+E.
[[nodiscard]] bool LeaveToMenu(QEvent& event);

}  // namespace morlek
