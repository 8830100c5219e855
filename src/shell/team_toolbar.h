#pragma once

#include <QWidget>
#include <string_view>

namespace morlek {

/// The team buttons, two rows of fourteen in the team directory's order. They take no keyboard
/// focus; Ctrl+Page Down and Ctrl+Page Up pick the next and the previous team instead.
class TeamToolbar : public QWidget {
  Q_OBJECT

 public:
  explicit TeamToolbar(QWidget* parent);

 signals:
  /// The button of the team with this toolbar key was clicked.
  void TeamPicked(std::string_view toolbar_key);

 private:
  void Pick(int place);

  int picked_ = -1;  // place in the directory; none at first
};

}  // namespace morlek
