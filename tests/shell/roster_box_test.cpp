#include "shell/roster_box.h"

#include <QAccessible>
#include <QMimeData>

#include "shell/eye.h"
#include "shell/window_fixture.h"
#include "team/roster_grid.h"

namespace morlek {
namespace {

class RosterBoxTest : public WindowTest {
 protected:
  using Edit = std::function<void(QLineEdit&)>;

  static void PasteDirectly(QLineEdit& box, const QString& text) {
    QApplication::clipboard()->setText(text);
    box.paste();
  }
  static void Drop(QLineEdit& box, const QString& text) {
    QMimeData data;
    data.setText(text);
    // Where the cursor stands.
    const QPointF place = box.inputMethodQuery(Qt::ImCursorRectangle).toRectF().center();
    QDragEnterEvent enter(place.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&box, &enter);
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&box, &drop);
  }
  static void Commit(QLineEdit& box, const QString& text) {
    QInputMethodEvent commit;
    commit.setCommitString(text);
    QApplication::sendEvent(&box, &commit);
  }

  /// A box with the focus and a text as an import leaves it, "|" where the cursor stands and
  /// brackets around what is selected.
  QLineEdit& BoxWith(const QString& picture) {
    QLineEdit& box = Box(1, 3);
    box.setFocus();
    box.setText(QString(picture).remove('|').remove('[').remove(']'));
    const auto start = static_cast<int>(picture.indexOf('['));
    if (start >= 0) {
      box.setSelection(start, static_cast<int>(picture.indexOf(']')) - start - 1);
    } else {
      box.setCursorPosition(static_cast<int>(picture.indexOf('|')));
    }
    return box;
  }
  static QString PictureOf(const QLineEdit& box) {
    return box.text().insert(box.cursorPosition(), '|');
  }
};

TEST_F(RosterBoxTest, OnlyWhatComesInLosesItsLineBreaks) {
  StartWithTeam();
  struct Case {
    const char* before;
    Edit edit;
    const char* after;
  };
  const auto type = [](const QString& keys) {
    return [keys](QLineEdit& box) { QTest::keyClicks(&box, keys); };
  };
  const auto press = [](Qt::Key key) {
    return [key](QLineEdit& box) { QTest::keyClick(&box, key); };
  };
  const auto with = [](auto way, const QString& text) {
    return [way, text](QLineEdit& box) { way(box, text); };
  };
  const std::vector<Case> cases = {
      {"A\nB|", type("CD"), "A\nBCD|"},
      {"A|\nB", type("C"), "AC|\nB"},
      {"A\n|B", press(Qt::Key_Delete), "A\n|"},
      {"A\nB|\n", press(Qt::Key_Backspace), "A\n|\n"},
      {"A\n|\nB", press(Qt::Key_Backspace), "A|\nB"},
      {"A|\nB\n", with(&PasteDirectly, "X\n\r\nY\n"), "AXY|\nB\n"},
      {"A\n|B", with(&PasteDirectly, "\n"), "A\n|B"},
      {"[A\nB]", with(&PasteDirectly, "A\nC"), "AC|"},
      {"A[\nB]\n", with(&PasteDirectly, "\n1\n"), "A1|\n"},
      {"|A\nB", with(&PasteDirectly, QString::fromUtf8("😀\n中")), "??|A\nB"},
      {"A\nB|", with(&Drop, "X\nY\r"), "A\nBXY|"},
      {"\nAB|", with(&Commit, "X\nY"), "\nABXY|"},
      {"[\nA]B\n", with(&Commit, "\nY"), "Y|B\n"}};
  for (const Case& each : cases) {
    QLineEdit& box = BoxWith(each.before);
    each.edit(box);
    EXPECT_EQ(PictureOf(box).toStdString(), each.after) << each.before;
    EXPECT_EQ(editor->state().grid.Text({Column::kName, 3}), box.text().toStdString());
  }
}

TEST_F(RosterBoxTest, TheRingStaysBehindAMenuAndIsNothingToClickOrToRead) {
  StartWithTeam();
  QWidget& frame = Find("Frame1");
  QLineEdit& box = Box(3, 7);
  const QImage calm = Seen(box);
  box.setFocus();
  box.deselect();
  const QImage ringed = Seen(box);
  EXPECT_NE(ringed, calm);
  EXPECT_EQ(frame.childAt(box.geometry().topLeft() + QPoint(3, 1)), &box);
  QFocusEvent to_menu(QEvent::FocusOut, Qt::PopupFocusReason);
  QApplication::sendEvent(&box, &to_menu);
  EXPECT_EQ(Seen(box).copy(0, 0, 25, 3), ringed.copy(0, 0, 25, 3));
  const QAccessibleInterface& grid = *QAccessible::queryAccessibleInterface(&frame);
  for (int child = 0; child < grid.childCount(); ++child) {
    EXPECT_NE(grid.child(child)->role(), QAccessible::Client) << child;
  }
}

}  // namespace
}  // namespace morlek
