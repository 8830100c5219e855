#pragma once

#include <QAccessible>

#include "shell/code_page_text.h"
#include "shell/random_window.h"
#include "shell/tip_grammar.h"
#include "support/form_columns.h"

namespace morlek {

/// What the window shows is worked out a second time from the editor's state, in
/// the plainest way.
class OneTruth : public RandomWindowTest {
 protected:
  [[nodiscard]] const EditorState& state() const { return editor->state(); }
  [[nodiscard]] bool IsChecked(const QString& name) const {
    return static_cast<bool>(QAccessible::queryAccessibleInterface(&Find(name))->state().checked);
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

  void ExpectCells() const;
  void ExpectMark(int place, const QString& held, const SavePreview& preview,
                  const SpokenTip& said) const;
  void ExpectFoot() const;
  void ExpectTeam() const;
  void ExpectFeatures() const;
  void ExpectTruth() const {
    ExpectCells();
    ExpectFoot();
    ExpectTeam();
    ExpectFeatures();
  }
};

}  // namespace morlek
