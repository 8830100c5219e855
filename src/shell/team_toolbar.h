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

  /// Begins anew with the first team, for another image.
  void Restart() { picked_ = kNone; }

 signals:
  /// The team with this toolbar key, which is one of the directory and lives on, was picked by its
  /// button or by key.
  void TeamPicked(std::string_view toolbar_key);

 private:
  void Pick(int place);

  static constexpr int kNone = -1;
  int picked_ = kNone;  // place in the directory
};

}  // namespace morlek
