#include "shell/team_badges.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>

#include "image/team_directory.h"
#include "shell/painted_icon.h"
#include "shell/theme.h"

namespace morlek {
namespace {

struct BadgeLook {
  std::string_view key;
  const char* letters;
  QColor main;
  QColor trim;
};

constexpr std::array<BadgeLook, kTeamDirectory.size()> kBadges = {{
    {"Braves", "ATL", {0x13, 0x27, 0x4f}, {0xce, 0x11, 0x41}},
    {"Orioles", "BAL", {0xd2, 0x42, 0x00}, {0x1a, 0x1a, 0x1a}},
    {"Red Sox", "BOS", {0xbd, 0x30, 0x39}, {0x0c, 0x23, 0x40}},
    {"Angels", "CAL", {0xba, 0x00, 0x21}, {0x00, 0x32, 0x63}},
    {"White Sox", "CWS", {0x27, 0x25, 0x1f}, {0xc4, 0xce, 0xd4}},
    {"Cubs", "CHC", {0x0e, 0x33, 0x86}, {0xcc, 0x34, 0x33}},
    {"Reds", "CIN", {0xc6, 0x01, 0x1f}, {0xff, 0xff, 0xff}},
    {"Indians", "CLE", {0x0c, 0x23, 0x40}, {0xe3, 0x19, 0x37}},
    {"Rockies", "COL", {0x33, 0x00, 0x6f}, {0xc4, 0xce, 0xd4}},
    {"Tigers", "DET", {0x0c, 0x23, 0x40}, {0xfa, 0x46, 0x16}},
    {"Marlins", "FLA", {0x00, 0x81, 0x7d}, {0x1a, 0x1a, 0x1a}},
    {"Astros", "HOU", {0x00, 0x2d, 0x62}, {0xeb, 0x6e, 0x1f}},
    {"Royals", "KC", {0x00, 0x46, 0x87}, {0xbd, 0x9b, 0x60}},
    {"Dodgers", "LA", {0x00, 0x5a, 0x9c}, {0xef, 0x3e, 0x42}},
    {"Brewers", "MIL", {0x12, 0x28, 0x4b}, {0xff, 0xc5, 0x2f}},
    {"Twins", "MIN", {0x00, 0x2b, 0x5c}, {0xd3, 0x11, 0x45}},
    {"Expos", "MON", {0x00, 0x30, 0x87}, {0xe4, 0x00, 0x2b}},
    {"Yankees", "NYY", {0x0c, 0x23, 0x40}, {0xc4, 0xce, 0xd3}},
    {"Mets", "NYM", {0x00, 0x2d, 0x72}, {0xff, 0x59, 0x10}},
    {"Athletics", "OAK", {0x00, 0x38, 0x31}, {0xef, 0xb2, 0x1e}},
    {"Phillies", "PHI", {0xd0, 0x18, 0x2a}, {0x00, 0x2d, 0x72}},
    {"Pirates", "PIT", {0x27, 0x25, 0x1f}, {0xfd, 0xb8, 0x27}},
    {"Padres", "SD", {0x3a, 0x2b, 0x22}, {0xff, 0xc4, 0x25}},
    {"Giants", "SF", {0x27, 0x25, 0x1f}, {0xfd, 0x5a, 0x1e}},
    {"Mariners", "SEA", {0x0c, 0x2c, 0x56}, {0x00, 0x8c, 0x8c}},
    {"Cardinals", "STL", {0xb8, 0x1c, 0x36}, {0xfe, 0xdb, 0x00}},
    {"Rangers", "TEX", {0x00, 0x32, 0x78}, {0xc0, 0x11, 0x1f}},
    {"Blue Jays", "TOR", {0x13, 0x4a, 0x8e}, {0xe8, 0x29, 0x1c}},
}};
static_assert(std::ranges::equal(kBadges, kTeamDirectory, {}, &BadgeLook::key, &Team::key),
              "one badge a team, in the directory's order");

void PaintBadge(QPainter& painter, const QRectF& target, const BadgeLook& look) {
  constexpr qreal kTrimPart = 0.16;
  constexpr qreal kLetterPart = 0.56;
  QPainterPath outline;
  outline.addRoundedRect(target, target.height() * 0.2, target.height() * 0.2);
  painter.fillPath(outline, look.main);

  QRectF trim = target;
  trim.setTop(target.bottom() - target.height() * kTrimPart);
  painter.setClipPath(outline, Qt::IntersectClip);
  painter.fillRect(trim, look.trim);
  painter.setClipping(false);

  painter.setPen(QPen(look.main.darker(130), 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(outline);

  QRectF letters = target;
  letters.setBottom(trim.top() + 1);
  painter.setPen(Qt::white);
  painter.setFont(theme::Font(qRound(target.height() * kLetterPart), QFont::Bold));
  painter.drawText(letters, Qt::AlignCenter, look.letters);
}

}  // namespace

TeamBadges::TeamBadges(QObject* parent) : QObject(parent) { setObjectName("ImageList1"); }

// NOLINTNEXTLINE(readability-convert-member-functions-to-static): the list is asked as an object.
QIcon TeamBadges::Badge(std::string_view toolbar_key) const {
  const auto found = std::ranges::find(kBadges, toolbar_key, &BadgeLook::key);
  if (found == kBadges.end()) return {};
  return MakePaintedIcon([look = *found](QPainter& painter, const QRectF& target) {
    PaintBadge(painter, target, look);
  });
}

}  // namespace morlek
