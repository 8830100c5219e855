#pragma once

#include <QPointF>

namespace morlek::art {

/// The lower outline of a face, from the ear round the chin to the far cheek.
struct JawLine {
  QPointF back;
  QPointF chin_back;
  QPointF chin_front;
  QPointF front;
};

namespace jaw {

inline constexpr JawLine kOval{{-16, 15}, {-4, 25.8}, {12, 25.8}, {20.8, 14}};
inline constexpr JawLine kSquare{{-16.5, 17.5}, {-5, 27}, {14, 27}, {21.5, 16.5}};
inline constexpr JawLine kRound{{-18, 14}, {-5, 25}, {12, 25}, {23.5, 12}};
inline constexpr JawLine kLong{{-14.5, 17}, {-3, 28.5}, {11.5, 28.5}, {18.8, 16}};

}  // namespace jaw

/// One brow by the height of its three points, from the nose outwards, and its thickness.
struct BrowShape {
  qreal inner;
  qreal middle;
  qreal outer;
  qreal thickness;
};

namespace brows {

inline constexpr BrowShape kFlat{-5, -5.6, -4.8, 2.6};
inline constexpr BrowShape kStern{-3.2, -5.2, -7, 3.2};
inline constexpr BrowShape kRaised{-5.4, -7.4, -4.8, 2.2};
inline constexpr BrowShape kBushy{-5, -6.2, -4.4, 4.6};

}  // namespace brows

enum class Eyes { kOpen, kNarrow, kWide };
enum class Eyewear { kNone, kRoundGlasses, kSquareGlasses, kShades, kGoggles, kEyeBlack };
enum class Mouth { kSmile, kFirm, kGrin, kSmirk, kFrown, kShout, kGum, kStraw };
enum class Whiskers {
  kNone,
  kStubble,
  kPencil,
  kChevron,
  kHandlebar,
  kHorseshoe,
  kGoatee,
  kChinTuft,
  kChinCurtain,
  kChops,
  kBeard,
  kLongBeard
};
enum class Locks { kShort, kLong, kCurls };
enum class Mark { kNone, kFreckles, kScar, kPlaster, kChew };

/// What distinguishes one face from another besides its skin, in the units of the head frame.
struct FaceLook {
  JawLine jaw = jaw::kOval;
  Whiskers whiskers = Whiskers::kNone;
  Eyewear eyewear = Eyewear::kNone;
  Mouth mouth = Mouth::kFirm;
  BrowShape brows = brows::kFlat;
  Eyes eyes = Eyes::kOpen;
  Locks locks = Locks::kShort;
  Mark mark = Mark::kNone;
};

/// The look of a face code that has a picture.
[[nodiscard]] FaceLook FaceLookOf(int code);

}  // namespace morlek::art
