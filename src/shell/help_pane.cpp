#include "shell/help_pane.h"

#include <QApplication>
#include <QFile>
#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <functional>
#include <utility>

#include "shell/menu_bar.h"
#include "ui/twips.h"

namespace morlek {
namespace {

/// The text in resources/help.txt, lines separated by carriage return and line feed, without a line
/// break at the end.
QString HelpText() {
  QFile file(":/help.txt");
  // It is part of the program. Opened as text, as its line ends may be those of the build system.
  if (!file.open(QFile::ReadOnly | QFile::Text)) return {};
  return QString::fromUtf8(file.readAll()).chopped(1).replace('\n', "\r\n");
}

/// Makes the headings in the help text stand out: lines in capitals and the topic that a paragraph
/// begins with are bold, and a row of hyphens or colons is as wide as the heading beside it. The
/// text does not change.
void ShowHeadings(QTextDocument& document) {
  static const QRegularExpression heading("^([A-Z ]+$|[A-Za-z ]+- |-+$|:+$)");
  for (QTextBlock line = document.begin(); line.isValid(); line = line.next()) {
    const QString text = heading.match(line.text()).captured();
    QFont font = document.defaultFont();
    font.setBold(true);
    if (text.startsWith('-') || text.startsWith(':')) {
      const QString above = line.previous().text();
      const QString beside = above.isEmpty() ? line.next().text() : above;
      const qreal width = QFontMetricsF(font).horizontalAdvance(beside);
      font.setBold(false);
      const qreal plain_width = QFontMetricsF(font).horizontalAdvance(text);
      if (text.startsWith('-')) {
        font.setStretch(qRound(100 * width / plain_width));
      } else {
        // Dots are moved apart instead: stretched ones look like hyphens.
        const auto gaps = static_cast<qreal>(text.size() - 1);
        font.setLetterSpacing(QFont::AbsoluteSpacing, (width - plain_width) / gaps);
      }
    }
    QTextCharFormat format;
    format.setFont(font);
    QTextCursor cursor(line);
    cursor.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor, static_cast<int>(text.size()));
    cursor.mergeCharFormat(format);
  }
}

class HelpTextBox : public QPlainTextEdit {
 public:
  HelpTextBox(QWidget* parent, std::function<void()> double_clicked,
              std::function<void()> cursor_moved)
      : QPlainTextEdit(HelpText(), parent),
        double_clicked_(std::move(double_clicked)),
        cursor_moved_(std::move(cursor_moved)) {
    setObjectName("Text15");
    setAccessibleName("help");
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    document()->setDocumentMargin(10);
    ShowHeadings(*document());
  }

 protected:
  bool event(QEvent* event) override {
    return !LeaveToMenu(*event) && QPlainTextEdit::event(event);
  }

  // The grid below is covered, so the tab key does not go there.
  bool focusNextPrevChild(bool /*next*/) override { return true; }

  // It is read as a whole, so Home and End go to its ends rather than those of a line.
  void keyPressEvent(QKeyEvent* event) override {
    const int before = textCursor().position();
    const bool is_plain = (event->modifiers() & ~Qt::KeypadModifier) == 0;
    const bool goes_to_end = is_plain && event->key() == Qt::Key_End;
    const bool goes_to_start = is_plain && event->key() == Qt::Key_Home;
    if (goes_to_start || goes_to_end) {
      moveCursor(goes_to_end ? QTextCursor::End : QTextCursor::Start);
    } else {
      QPlainTextEdit::keyPressEvent(event);
    }
    // Other keys must not scroll away from where the wheel has scrolled to.
    if (goes_to_start || goes_to_end || textCursor().position() != before) cursor_moved_();
  }

  void mouseDoubleClickEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton) double_clicked_();
  }

 private:
  std::function<void()> double_clicked_;
  std::function<void()> cursor_moved_;
};

}  // namespace

HelpPane::HelpPane(QWidget* parent)
    : QFrame(parent),
      text_(new HelpTextBox(
          this, [this] { Close(); },
          [this] {
            const QPoint middle = text_->cursorRect().center();
            emit LineReached(text_->viewport()->mapTo(this, middle).y());
          })) {
  setObjectName("Frame5");
  setAccessibleName("help pane");
  setToolTip("Double-click to close");
  setGeometry(RectFromTwips(0, 0, 6615, 9495));
  setAutoFillBackground(true);
  text_->setGeometry(RectFromTwips(60, 60, 6495, 9375));
}

void HelpPane::Open() {
  if (isVisible()) return;
  focused_before_ = QApplication::focusWidget();
  show();
  // As if it were a menu: the box that had the focus keeps its selection.
  text_->setFocus(Qt::PopupFocusReason);
  emit Covered(true);
}

void HelpPane::Close() {
  emit Covered(false);
  if (QWidget* const before = focused_before_; before != nullptr && before->isVisible()) {
    // The same on the way back, so that the box does not begin a new visit.
    before->setFocus(Qt::PopupFocusReason);
  } else {
    // The grid may be hidden by now, and a hidden box that has the focus takes keys.
    text_->clearFocus();
  }
  hide();
}

}  // namespace morlek
