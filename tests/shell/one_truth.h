#pragma once

#include <QAccessible>
#include <QRegularExpression>

#include "shell/code_page_text.h"
#include "shell/random_window.h"
#include "support/form_columns.h"

namespace morlek {

/// What the window shows is worked out a second time from the editor's state, in
/// the plainest way.
class OneTruth : public RandomWindowTest {
 protected:
  [[nodiscard]] const EditorState& state() const { return editor->state(); }
  static bool IsChecked(QWidget& widget) {
    return static_cast<bool>(QAccessible::queryAccessibleInterface(&widget)->state().checked);
  }
  [[nodiscard]] QString TextOf(Column column) const {
    return FromCodePage(state().grid.Text({column, state().stance_row}));
  }

  [[nodiscard]] static Cell CellAt(int place) { return CellOfArray(ColumnOf(place), RowOf(place)); }

  /// Whether two texts of a box make no difference to the image.
  static bool IsSame(int place, const QString& one, const QString& other) {
    const auto essence = [place](QString text) {
      while (IsFeature(place) && text.size() > 1 && text[0] == '0') text.remove(0, 1);
      return text.toUpper();
    };
    return one == other || essence(one) == essence(other);
  }

  [[nodiscard]] const QLabel& HeaderOf(int place) const {
    const QLineEdit& first = Box(ColumnOf(place), RowOf(place) < kBatters ? 0 : kBatters);
    const QPoint header = first.geometry().center() - QPoint(0, 24);
    return dynamic_cast<const QLabel&>(*Find("Frame1").childAt(header));
  }
  /// What the header of a box's column says that it takes.
  [[nodiscard]] QString TakesOf(int place) const {
    static const QRegularExpression more("; |\n");
    return HeaderOf(place).accessibleDescription().section(more, 0, 0);
  }
  /// The box that shares a byte with this one, or -1.
  static int PartnerOf(int place) {
    const int column = ColumnOf(place);
    if (column == 5 || column == 6) return place + (column == 5 ? 1 : -1);
    if (RowOf(place) >= kBatters) return column == 4 ? place + 8 : column == 12 ? place - 8 : -1;
    return column == 7 ? place + 1 : column == 8 ? place - 1 : -1;
  }

  void ExpectCells() const;
  [[nodiscard]] QString TipOf(int place, const QString& held, const SavePreview& preview) const;
  void TakeFault(int place, QString& tip) const;
  void ExpectFoot() const;
  void ExpectTeam() const;
  void ExpectFeatures() const;
  void ExpectPicture() const;
  void ExpectTruth() const {
    ExpectCells();
    ExpectFoot();
    ExpectTeam();
    ExpectFeatures();
  }
};

}  // namespace morlek
