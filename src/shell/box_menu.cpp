#include "shell/box_menu.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <algorithm>

namespace morlek {

BoxMenu::BoxMenu(QLineEdit& box, const std::function<void()>& paste) {
  const QList<QAction*> shared = box.parentWidget()->actions();
  const auto first_below = std::ranges::find_if(shared, &QAction::isSeparator);
  addActions({shared.begin(), first_below});
  addSeparator();
  AddOwnActions(box, paste);
  addActions({first_below, shared.end()});
}

void BoxMenu::AddOwnActions(QLineEdit& box, const std::function<void()>& paste) {
  const auto add = [&](const QString& caption, QKeySequence::StandardKey key, bool enabled,
                       auto run) {
    QAction* action = addAction(caption);
    action->setShortcut(key);
    action->setEnabled(enabled);
    connect(action, &QAction::triggered, &box, run);
  };
  const bool has_clipboard = !QGuiApplication::clipboard()->text().isEmpty();
  add("Cu&t", QKeySequence::Cut, box.hasSelectedText(), &QLineEdit::cut);
  add("&Copy", QKeySequence::Copy, box.hasSelectedText(), &QLineEdit::copy);
  add("&Paste", QKeySequence::Paste, has_clipboard, paste);
  add("Delete", QKeySequence::UnknownKey, box.hasSelectedText(), [&box] { box.del(); });
  addSeparator();
  // Its usual key belongs to the menu bar.
  add("Select All", QKeySequence::UnknownKey, !box.text().isEmpty(), &QLineEdit::selectAll);
}

}  // namespace morlek
