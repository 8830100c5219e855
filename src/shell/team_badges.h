#pragma once

#include <QIcon>
#include <QObject>

namespace morlek {

struct Team;

/// The pictures of the team buttons: badges with a club's letters on its two colours.
class TeamBadges : public QObject {
  Q_OBJECT

 public:
  explicit TeamBadges(QObject* parent);

  /// The badge of a club of the directory. Icons outlive the list.
  [[nodiscard]] QIcon Badge(const Team& team) const;
};

}  // namespace morlek
