#pragma once

#include <QMenu>
#include <functional>

class QLineEdit;

namespace morlek {

/// The context menu of a text box as it is now. Above what is done with its own text stand the
/// actions of the widget that holds the box, like undo, up to their first separator; the others
/// stand below.
class BoxMenu : public QMenu {
 public:
  /// `paste` pastes from the clipboard into the box. The box outlives the menu.
  BoxMenu(QLineEdit& box, const std::function<void()>& paste);

 private:
  void AddOwnActions(QLineEdit& box, const std::function<void()>& paste);
};

}  // namespace morlek
