#pragma once

#include <QMenu>
#include <functional>

class QLineEdit;

namespace morlek {

/// The context menu of a text box in its current state. The actions of the widget that holds the
/// box, like undo, come first, up to their first separator. Then come the box's own, then the rest.
class BoxMenu : public QMenu {
 public:
  /// `paste` pastes from the clipboard into the box. The box outlives the menu.
  BoxMenu(QLineEdit& box, const std::function<void()>& paste);

 private:
  void AddOwnActions(QLineEdit& box, const std::function<void()>& paste);
};

}  // namespace morlek
