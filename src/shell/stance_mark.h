#pragma once

#include <QWidget>

namespace morlek {

struct EditorState;

/// A pointer from the choosers to the row whose player they show, in the gap between the two.
class StanceMark : public QWidget {
  Q_OBJECT

 public:
  /// `grid` is a sibling that holds the boxes. Hidden in a parent that is visible.
  StanceMark(const QWidget& grid, QWidget* parent);

  /// Stands at the stance row while choosers and grid are in view, else it is hidden.
  void Show(const EditorState& state);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPoint grid_place_;
};

}  // namespace morlek
