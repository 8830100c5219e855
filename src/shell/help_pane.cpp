#include "shell/help_pane.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <functional>
#include <utility>

#include "shell/help_text.h"
#include "shell/menu_table.h"
#include "shell/twips.h"

namespace morlek {
namespace {

class HelpTextBox : public QPlainTextEdit {
 public:
  HelpTextBox(QWidget* parent, std::function<void()> double_clicked)
      : QPlainTextEdit(HelpText(), parent), double_clicked_(std::move(double_clicked)) {
    setObjectName("Text15");
    setAccessibleName("help");
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    document()->setDocumentMargin(10);
  }

 protected:
  bool event(QEvent* event) override {
    if (event->type() == QEvent::ShortcutOverride) {
      auto* key = static_cast<QKeyEvent*>(event);
      if (IsMenuKey(key->keyCombination())) {
        key->ignore();
        return false;
      }
    }
    return QPlainTextEdit::event(event);
  }

  void mouseDoubleClickEvent(QMouseEvent* /*event*/) override { double_clicked_(); }

 private:
  std::function<void()> double_clicked_;
};

}  // namespace

HelpPane::HelpPane(QWidget* parent) : QFrame(parent) {
  setObjectName("Frame5");
  setAccessibleName("help pane");
  setGeometry(RectFromTwips(0, 0, 6615, 9495));
  setAutoFillBackground(true);
  text_ = new HelpTextBox(this, [this] { Close(); });
  text_->setGeometry(RectFromTwips(60, 60, 6495, 9375));
  hide();
}

void HelpPane::Open() {
  if (isVisible()) return;
  focused_before_ = QApplication::focusWidget();
  show();
  raise();
  text_->setFocus(Qt::OtherFocusReason);
}

void HelpPane::Close() {
  // The focus goes back as it does after a menu: the box does not take it for a new visit.
  if (focused_before_) focused_before_->setFocus(Qt::PopupFocusReason);
  hide();
}

}  // namespace morlek
