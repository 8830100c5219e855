#pragma once

#include <QClipboard>
#include <QLineEdit>
#include <QPointer>
#include <optional>
#include <string>

#include "editor/grid_marks.h"
#include "ui/own_panel.h"

namespace morlek {

/// One text box of the roster grid. Receiving the focus selects its whole text, so that typing
/// replaces the value; characters that the code page lacks become "?" at once.
class RosterBox : public QLineEdit, public OwnPanel {
  Q_OBJECT

 public:
  /// The empty box of a cell, in its place within the frame of the roster.
  RosterBox(Cell cell, QWidget* parent);

  [[nodiscard]] Cell cell() const { return cell_; }

  /// Shows a text that was not typed here. Typing replaces it, now or when the focus returns, as
  /// after a visit.
  void ShowText(const QString& text);

  /// What the box holds now is what Escape gives back, as if the box were entered now.
  void BeginVisit();

  /// Shows the marks of the cell; `tip` says in words what they mean, and is empty without any.
  void ShowMark(const CellMark& mark, const QString& tip);

  /// A tint of the row in which the box stands.
  enum class Tint { kNone, kFocusRow, kStanceRow };
  void SetTint(Tint tint);

  /// Selects the whole text if the box has the focus, or for the return of the focus from a menu or
  /// another window; does nothing for a box without the focus.
  void SelectForTyping();

  /// Paints the box as a cell of the sheet: neighbours share their border lines.
  void PaintPanel(QPainter& painter) const override;

 signals:
  /// The focus came by keyboard, mouse or program, not by a return from a menu or another window;
  /// or the box was clicked while it had the focus.
  void Visited();

  /// The focus came likewise: what is typed from now on belongs to a new visit.
  void Entered();

  /// The focus went for good.
  void Left();

  /// A block of cells, in the code page, was pasted here.
  void BlockPasted(const std::string& block);

  /// Up (-1), or Down or Return (+1) was pressed, also where no row follows.
  void RowStepRequested(int rows);

 protected:
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void PasteFrom(QClipboard::Mode mode);
  void ColorText();
  [[nodiscard]] QColor Ground() const;
  void PaintFrame(QPainter& painter, const QColor& ground) const;
  void KeepToCodePage();
  /// A line break, which a dropped text or an input method can bring, would break an exported line
  /// in two.
  void DropLineBreaks();
  /// Converts the text and keeps the cursor behind the same character.
  template <typename Conversion>
  void Convert(Conversion convert);

  struct Selection {
    int start = 0;
    int length = 0;
  };

  Cell cell_;
  CellMark mark_;
  Tint tint_ = Tint::kNone;
  QString entry_text_;
  // While the box has the focus: who stands above it at other times.
  QPointer<QWidget> neighbor_above_;
  // True from the mouse press that gave the focus up to its release: it must not drop the
  // selection.
  bool swallowing_press_ = false;
  // While the focus is away in a menu or another window: what to select when it returns.
  std::optional<Selection> left_selection_;
};

}  // namespace morlek
