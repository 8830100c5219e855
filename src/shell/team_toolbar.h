#pragma once

#include <QWidget>
#include <string_view>

namespace morlek {

/// The team buttons, two rows of fourteen in the team directory's order.
class TeamToolbar : public QWidget {
  Q_OBJECT

 public:
  explicit TeamToolbar(QWidget* parent);

 signals:
  /// The button of the team with this toolbar key was clicked.
  void TeamPicked(std::string_view toolbar_key);
};

}  // namespace morlek
