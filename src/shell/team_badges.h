#pragma once

#include <QIcon>
#include <QObject>
#include <string_view>

namespace morlek {

/// The pictures of the team buttons: badges with a club's letters on its two colours.
class TeamBadges : public QObject {
  Q_OBJECT

 public:
  explicit TeamBadges(QObject* parent);

  /// The badge of the club with this toolbar key; an empty icon for any other key. Icons outlive
  /// the list.
  [[nodiscard]] QIcon Badge(std::string_view toolbar_key) const;
};

}  // namespace morlek
