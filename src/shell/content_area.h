#pragma once

#include <QScrollArea>
#include <vector>

namespace morlek {

constexpr int kContentHeight = 653;  // of logical pixels

/// The content of the main window, whose height is fixed and which scrolls on a screen that is too
/// low for it. What stands at its foot stays in view there too.
class ContentArea : public QScrollArea {
  Q_OBJECT

 public:
  explicit ContentArea(QWidget* parent);

  /// Takes a child of the content that stands in the lowest 20 pixels.
  void KeepInView(QWidget* foot);

  /// Sets the width of the content in twips; what stands further right is out of view.
  void SetContentWidth(int twips);

  /// Adapts to an available height in logical pixels and returns the size to take.
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
