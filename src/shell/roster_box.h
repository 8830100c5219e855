#pragma once

#include <QClipboard>
#include <string>

#include "editor/grid_marks.h"
#include "ui/style.h"
#include "ui/value_edit.h"

namespace morlek {

/// One text box of the roster grid, which paints itself as a cell of the sheet.
class RosterBox : public ValueEdit, public OwnPanel {
  Q_OBJECT

 public:
  /// An empty box at the position of its cell in the roster frame. `validator` corrects every text
  /// and may serve other boxes too; without it, once it is destroyed, the box takes any text.
  RosterBox(Cell cell, const QValidator& validator, QWidget* parent);

  [[nodiscard]] Cell cell() const { return cell_; }

  /// The marks that were shown last.
  [[nodiscard]] const CellMark& mark() const { return mark_; }

  /// Shows the marks of the cell; `tip` says in words what they mean, and is empty without any.
  void ShowMark(const CellMark& mark, const QString& tip);

  /// A tint of the row of the box.
  enum class Tint { kNone, kFocusRow, kStanceRow };
  void SetTint(Tint tint);

  /// Paints the box as a cell of the sheet: neighbours share their border lines.
  void PaintPanel(QPainter& painter) const override;

  /// Paints the bar of a cell that is not saved and the corner of one that SAVE will not keep,
  /// hollow where another cell is to blame.
  /// Belongs above the focus ring.
  void PaintMarks(QPainter& painter) const;

 signals:
  /// A block of cells, in the code page, was pasted here.
  void BlockPasted(const std::string& block);

  /// Up (-1), or Down or Return (+1) was pressed, also where no row follows.
  void RowStepRequested(int rows);

  /// The context menu is about to open, or has closed.
  void MenuOpens();
  void MenuCloses();

  /// Page Down (+1) or Page Up (-1) was pressed in a features box.
  void LeafRequested(int pictures);

 protected:
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void PasteFrom(QClipboard::Mode clipboard);
  void OpenMenuAtCursor();
  void ColorText();
  [[nodiscard]] QColor Background() const;
  void PaintFrame(QPainter& painter, const QColor& background) const;
  void PaintBar(QPainter& painter) const;
  void PaintCorner(QPainter& painter) const;

  Cell cell_;
  CellMark mark_;
  Tint tint_ = Tint::kNone;
};

}  // namespace morlek
