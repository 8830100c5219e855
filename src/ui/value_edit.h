#pragma once

#include <QLineEdit>
#include <optional>

namespace morlek {

/// A line edit that holds one value and is visited: receiving the focus begins a visit and selects
/// the whole text, so that typing replaces it. A short absence, to a menu or another window, ends
/// no visit and keeps the selection. What is typed, pasted or dropped loses its line breaks; those
/// that the program itself has put there stay when the text around them is edited.
class ValueEdit : public QLineEdit {
  Q_OBJECT

 public:
  explicit ValueEdit(QWidget* parent);

  /// Shows a text that was not typed here. Typing replaces it, now or when the focus returns, as
  /// after a visit.
  void ShowText(const QString& text);

  /// Begins a new visit: TakeBack restores what the box holds now.
  void BeginVisit();

  /// Restores the text that the box held when the visit began, and selects it.
  void TakeBack();

  /// Selects the whole text if the box has the focus, or for the return of the focus from a menu or
  /// another window; does nothing for a box without the focus.
  void SelectForTyping();

 signals:
  /// The focus came by keyboard, mouse or program, not by a return from a menu or another window;
  /// or the box was clicked while it had the focus.
  void Visited();

  /// The focus came in one of these ways, without a click: a new visit begins.
  void Entered();

  /// The visit ended: the focus went elsewhere in the window.
  void Left();

 protected:
  /// True from the mouse press that gave the focus until its release: neither may clear the
  /// selection.
  [[nodiscard]] bool is_swallowing_press() const { return is_swallowing_press_; }

  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  struct Selection {
    int start = 0;
    int length = 0;
  };

  void FilterLineBreaks();
  void NoteText();
  void NoteStart();

  // The text after the last change, and where the next insertion would begin.
  QString text_before_;
  int start_ = 0;
  QString entry_text_;
  bool is_swallowing_press_ = false;
  // While the focus is away in a menu or another window: what to select when it returns.
  std::optional<Selection> left_selection_;
};

}  // namespace morlek
