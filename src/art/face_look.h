#pragma once

namespace morlek::art {

enum class Jaw { kOval, kSquare, kRound, kLong };
enum class Brows { kFlat, kStern, kRaised, kBushy };
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

/// What distinguishes one face from another besides its skin.
struct FaceLook {
  Jaw jaw = Jaw::kOval;
  Whiskers whiskers = Whiskers::kNone;
  Eyewear eyewear = Eyewear::kNone;
  Mouth mouth = Mouth::kFirm;
  Brows brows = Brows::kFlat;
  Eyes eyes = Eyes::kOpen;
  Locks locks = Locks::kShort;
  Mark mark = Mark::kNone;
};

/// The look of a face code that has a picture.
[[nodiscard]] FaceLook FaceLookOf(int code);

}  // namespace morlek::art
