#pragma once

#include <QScrollArea>
#include <vector>

namespace morlek {

constexpr int kContentHeight = 653;  // of logical pixels

/// The content of the main window, whose height is fixed and which scrolls on a screen that is too
/// low for it. Widgets at its foot stay in view there too.
class ContentArea : public QScrollArea {
  Q_OBJECT

 public:
  explicit ContentArea(QWidget* parent);

  /// Keeps a child of the content, within its lowest 20 logical pixels, in view when it scrolls.
  void KeepInView(QWidget* foot);

  /// Sets the width of the content in twips; whatever is further right is out of view.
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
