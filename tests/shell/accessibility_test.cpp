#include <QAccessible>
#include <QMenu>

#include "shell/splash_window.h"
#include "shell/window_fixture.h"

namespace morlek {
namespace {

/// Every control below `widget` that has no name or role to tell.
void CollectNameless(const QWidget& widget, QStringList& nameless) {
  // What the toolkit puts into a control of ours speaks through that control.
  if (widget.objectName().startsWith("qt_")) return;
  // So is the menu bar's own menu for items that find no room, which has no title.
  const auto* menu = qobject_cast<const QMenu*>(&widget);
  if (menu != nullptr && menu->title().isEmpty()) return;
  QAccessibleInterface* accessible =
      QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&widget));
  if (accessible == nullptr || accessible->text(QAccessible::Name).isEmpty() ||
      accessible->role() == QAccessible::NoRole) {
    nameless << QString("%1 '%2'").arg(widget.metaObject()->className(), widget.objectName());
  }
  for (const QObject* child : widget.children()) {
    if (child->isWidgetType()) CollectNameless(*qobject_cast<const QWidget*>(child), nameless);
  }
}

class AccessibilityTest : public WindowTest {};

TEST_F(AccessibilityTest, EveryControlHasANameAndARole) {
  StartWithTeam();
  Box(12, 0).setFocus();
  Choose("mnuMorlekHELP");
  QStringList nameless;
  CollectNameless(*window, nameless);
  const SplashWindow splash;
  CollectNameless(splash, nameless);
  EXPECT_TRUE(nameless.isEmpty()) << nameless.join('\n').toStdString();
}

}  // namespace
}  // namespace morlek
