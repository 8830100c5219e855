#include "art/face_look.h"

#include <array>

#include "art/picture_codes.h"

namespace morlek::art {

FaceLook FaceLookOf(int code) {
  using enum Whiskers;
  using enum Mouth;
  using enum Eyes;
  using enum Locks;
  // Two rows of eight to a skin class. Within a class each face has one feature of its own that is
  // seen at a glance; the rest varies from class to class.
  static constexpr std::array<FaceLook, kFaceAndBodyCodes.count()> kFaceLooks = {{
      // 00 to 07
      {.mouth = kSmile, .brows = brows::kRaised},
      {.jaw = jaw::kSquare, .whiskers = kChevron},
      {.jaw = jaw::kLong, .eyewear = Eyewear::kRoundGlasses, .mouth = kSmirk},
      {.jaw = jaw::kRound, .whiskers = kBeard, .mouth = kGrin},
      {.jaw = jaw::kSquare, .whiskers = kStubble, .brows = brows::kStern},
      {.eyewear = Eyewear::kEyeBlack, .mouth = kShout, .brows = brows::kStern},
      {.jaw = jaw::kLong, .whiskers = kGoatee, .eyes = kNarrow},
      {.jaw = jaw::kSquare, .eyewear = Eyewear::kShades, .mouth = kGrin},
      // 10 to 17
      {.whiskers = kHandlebar, .brows = brows::kBushy},
      {.jaw = jaw::kRound,
       .mouth = kGrin,
       .brows = brows::kRaised,
       .eyes = kWide,
       .mark = Mark::kFreckles},
      {.jaw = jaw::kSquare, .whiskers = kPencil, .eyewear = Eyewear::kSquareGlasses},
      {.jaw = jaw::kSquare, .whiskers = kChops, .brows = brows::kBushy},
      {.jaw = jaw::kRound, .mouth = kGum, .eyes = kWide},
      {.jaw = jaw::kSquare, .mouth = kFrown, .brows = brows::kStern, .mark = Mark::kScar},
      {.jaw = jaw::kLong, .whiskers = kHorseshoe, .locks = kLong},
      {.jaw = jaw::kOval, .mouth = kStraw, .locks = kCurls},
      // 20 to 27
      {.jaw = jaw::kRound, .mouth = kGrin, .locks = kCurls},
      {.jaw = jaw::kLong, .whiskers = kChevron, .brows = brows::kBushy},
      {.jaw = jaw::kOval, .eyewear = Eyewear::kGoggles, .mouth = kFirm, .brows = brows::kRaised},
      {.jaw = jaw::kSquare, .whiskers = kBeard, .brows = brows::kStern},
      {.jaw = jaw::kRound, .whiskers = kStubble, .mouth = kSmirk},
      {.jaw = jaw::kSquare, .eyewear = Eyewear::kEyeBlack, .mouth = kFrown, .locks = kLong},
      {.whiskers = kGoatee, .mouth = kGrin, .brows = brows::kRaised},
      {.jaw = jaw::kLong, .whiskers = kChinTuft, .eyewear = Eyewear::kShades},
      // 30 to 37
      {.jaw = jaw::kSquare, .whiskers = kHandlebar, .eyes = kNarrow},
      {.jaw = jaw::kRound, .whiskers = kChinCurtain, .mouth = kSmile},
      {.jaw = jaw::kRound, .eyewear = Eyewear::kSquareGlasses, .mouth = kSmile},
      {.jaw = jaw::kLong, .whiskers = kChops, .mouth = kSmirk},
      {.jaw = jaw::kSquare, .mouth = kGum, .brows = brows::kStern},
      {.jaw = jaw::kOval, .mouth = kShout, .eyes = kWide, .mark = Mark::kPlaster},
      {.jaw = jaw::kSquare, .whiskers = kHorseshoe, .brows = brows::kStern, .locks = kCurls},
      {.jaw = jaw::kSquare, .mouth = kFirm, .eyes = kNarrow, .mark = Mark::kChew},
      // 40 to 47
      {.jaw = jaw::kLong, .mouth = kSmile, .brows = brows::kRaised},
      {.jaw = jaw::kSquare, .whiskers = kChevron, .brows = brows::kRaised, .locks = kLong},
      {.jaw = jaw::kRound,
       .eyewear = Eyewear::kRoundGlasses,
       .mouth = kGum,
       .brows = brows::kStern},
      {.whiskers = kLongBeard, .brows = brows::kBushy},
      {.jaw = jaw::kRound, .mouth = kStraw, .eyes = kNarrow},
      {.jaw = jaw::kSquare, .eyewear = Eyewear::kEyeBlack, .mouth = kGrin},
      {.jaw = jaw::kSquare, .whiskers = kGoatee, .brows = brows::kStern},
      {.jaw = jaw::kRound, .eyewear = Eyewear::kShades, .mouth = kFirm},
      // 50 to 57
      {.jaw = jaw::kSquare, .whiskers = kBeard, .eyewear = Eyewear::kShades, .mouth = kGrin},
      {.whiskers = kChinTuft, .mouth = kSmirk, .locks = kCurls},
      {.jaw = jaw::kRound, .eyewear = Eyewear::kGoggles, .mouth = kGrin},
      {.jaw = jaw::kSquare, .whiskers = kChops, .mouth = kShout, .brows = brows::kBushy},
      {.jaw = jaw::kOval, .mouth = kGum, .brows = brows::kRaised},
      {.jaw = jaw::kRound, .mouth = kFrown, .brows = brows::kStern, .mark = Mark::kPlaster},
      {.jaw = jaw::kRound, .whiskers = kHandlebar, .eyewear = Eyewear::kSquareGlasses},
      {.jaw = jaw::kOval, .whiskers = kChinCurtain, .locks = kLong},
  }};
  return kFaceLooks.at(static_cast<std::size_t>(kFaceAndBodyCodes.PlaceOf(code)));
}

}  // namespace morlek::art
