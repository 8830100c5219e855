#pragma once

#include <QMenuBar>
#include <map>

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

}  // namespace morlek
