#include "ui/marked_button.h"

#include <QAccessibleWidget>
#include <QApplication>

namespace morlek {
namespace {

/// Qt's own interface for a button that can be checked would toggle it instead of pressing it.
class MarkedButtonInterface : public QAccessibleWidget {
 public:
  explicit MarkedButtonInterface(MarkedButton& button)
      : QAccessibleWidget(&button, QAccessible::Button), button_(button) {}

  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = button_.is_marked();
    return state;
  }

  [[nodiscard]] QStringList actionNames() const override { return {pressAction()}; }

  void doAction(const QString& name) override {
    if (name == pressAction() && IsInReach()) button_.click();
  }

 private:
  /// Whether a mouse could click the button: it is not hidden, behind a dialog, or to the right of
  /// the narrow window.
  [[nodiscard]] bool IsInReach() const {
    const QWidget& window = *button_.window();
    return button_.isEnabled() && button_.isVisible() &&
           QApplication::activeModalWidget() == nullptr &&
           button_.mapTo(&window, QPoint(0, 0)).x() < window.width();
  }

  MarkedButton& button_;
};

QAccessibleInterface* MakeInterface(const QString& /*class_name*/, QObject* object) {
  auto* button = qobject_cast<MarkedButton*>(object);
  return button == nullptr ? nullptr : new MarkedButtonInterface(*button);
}

}  // namespace

MarkedButton::MarkedButton(QWidget* parent) : QAbstractButton(parent) {
  // Installing it again does nothing.
  QAccessible::installFactory(MakeInterface);
}

void MarkedButton::SetMarked(bool marked) {
  if (marked == is_marked_) return;
  is_marked_ = marked;
  update();
  QAccessible::State changed;
  changed.checked = true;
  QAccessibleStateChangeEvent event(this, changed);
  QAccessible::updateAccessibility(&event);
}

}  // namespace morlek
