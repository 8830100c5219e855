#pragma once

#include <QScrollArea>
#include <vector>

namespace morlek {

constexpr int kContentHeight = 653;  // of logical pixels

/// The content of the main window, of a height of its own, which scrolls on a screen that is too
/// low for it. What stands at its foot stays in view there too.
class ContentArea : public QScrollArea {
  Q_OBJECT

 public:
  explicit ContentArea(QWidget* parent);

  /// Takes a child of the content that stands in the lowest 20 pixels.
  void KeepInView(QWidget* foot);

  /// Sets the width of the content in twips; what stands further right is out of view.
  void SetContentWidth(int twips);

  /// Makes ready for a room of so many logical pixels in height, and returns the size to have in
  /// it.
  [[nodiscard]] QSize FitInto(int room);

 private:
  struct Foot {
    QWidget* widget;
    int top;  // in the content
  };

  void MoveFeet(QWidget* parent, int down);

  std::vector<Foot> feet_;
};

}  // namespace morlek
