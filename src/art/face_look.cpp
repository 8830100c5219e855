#include "art/face_look.h"

#include <array>

#include "art/picture_codes.h"

namespace morlek::art {
namespace {

// Two rows of eight to a skin class. Within a class each face has one feature of its own that is
// seen at a glance; the rest varies from class to class.
constexpr std::array<FaceLook, kFaceAndBodyCodes.count()> kFaceLooks = {{
    // 00 to 07
    {.mouth = Mouth::kSmile, .brows = brows::kRaised},
    {.jaw = jaw::kSquare, .whiskers = Whiskers::kChevron},
    {.jaw = jaw::kLong, .eyewear = Eyewear::kRoundGlasses, .mouth = Mouth::kSmirk},
    {.jaw = jaw::kRound, .whiskers = Whiskers::kBeard, .mouth = Mouth::kGrin},
    {.jaw = jaw::kSquare, .whiskers = Whiskers::kStubble, .brows = brows::kStern},
    {.eyewear = Eyewear::kEyeBlack, .mouth = Mouth::kShout, .brows = brows::kStern},
    {.jaw = jaw::kLong, .whiskers = Whiskers::kGoatee, .eyes = Eyes::kNarrow},
    {.jaw = jaw::kSquare, .eyewear = Eyewear::kShades, .mouth = Mouth::kGrin},
    // 10 to 17
    {.whiskers = Whiskers::kHandlebar, .brows = brows::kBushy},
    {.jaw = jaw::kRound,
     .mouth = Mouth::kGrin,
     .brows = brows::kRaised,
     .eyes = Eyes::kWide,
     .mark = Mark::kFreckles},
    {.jaw = jaw::kSquare, .whiskers = Whiskers::kPencil, .eyewear = Eyewear::kSquareGlasses},
    {.jaw = jaw::kSquare, .whiskers = Whiskers::kChops, .brows = brows::kBushy},
    {.jaw = jaw::kRound, .mouth = Mouth::kGum, .eyes = Eyes::kWide},
    {.jaw = jaw::kSquare, .mouth = Mouth::kFrown, .brows = brows::kStern, .mark = Mark::kScar},
    {.jaw = jaw::kLong, .whiskers = Whiskers::kHorseshoe, .locks = Locks::kLong},
    {.jaw = jaw::kOval, .mouth = Mouth::kStraw, .locks = Locks::kCurls},
    // 20 to 27
    {.jaw = jaw::kRound, .mouth = Mouth::kGrin, .locks = Locks::kCurls},
    {.jaw = jaw::kLong, .whiskers = Whiskers::kChevron, .brows = brows::kBushy},
    {.jaw = jaw::kOval,
     .eyewear = Eyewear::kGoggles,
     .mouth = Mouth::kFirm,
     .brows = brows::kRaised},
    {.jaw = jaw::kSquare, .whiskers = Whiskers::kBeard, .brows = brows::kStern},
    {.jaw = jaw::kRound, .whiskers = Whiskers::kStubble, .mouth = Mouth::kSmirk},
    {.jaw = jaw::kSquare,
     .eyewear = Eyewear::kEyeBlack,
     .mouth = Mouth::kFrown,
     .locks = Locks::kLong},
    {.whiskers = Whiskers::kGoatee, .mouth = Mouth::kGrin, .brows = brows::kRaised},
    {.jaw = jaw::kLong, .whiskers = Whiskers::kChinTuft, .eyewear = Eyewear::kShades},
    // 30 to 37
    {.jaw = jaw::kSquare, .whiskers = Whiskers::kHandlebar, .eyes = Eyes::kNarrow},
    {.jaw = jaw::kRound, .whiskers = Whiskers::kChinCurtain, .mouth = Mouth::kSmile},
    {.jaw = jaw::kRound, .eyewear = Eyewear::kSquareGlasses, .mouth = Mouth::kSmile},
    {.jaw = jaw::kLong, .whiskers = Whiskers::kChops, .mouth = Mouth::kSmirk},
    {.jaw = jaw::kSquare, .mouth = Mouth::kGum, .brows = brows::kStern},
    {.jaw = jaw::kOval, .mouth = Mouth::kShout, .eyes = Eyes::kWide, .mark = Mark::kPlaster},
    {.jaw = jaw::kSquare,
     .whiskers = Whiskers::kHorseshoe,
     .brows = brows::kStern,
     .locks = Locks::kCurls},
    {.jaw = jaw::kSquare, .mouth = Mouth::kFirm, .eyes = Eyes::kNarrow, .mark = Mark::kChew},
    // 40 to 47
    {.jaw = jaw::kLong, .mouth = Mouth::kSmile, .brows = brows::kRaised},
    {.jaw = jaw::kSquare,
     .whiskers = Whiskers::kChevron,
     .brows = brows::kRaised,
     .locks = Locks::kLong},
    {.jaw = jaw::kRound,
     .eyewear = Eyewear::kRoundGlasses,
     .mouth = Mouth::kGum,
     .brows = brows::kStern},
    {.whiskers = Whiskers::kLongBeard, .brows = brows::kBushy},
    {.jaw = jaw::kRound, .mouth = Mouth::kStraw, .eyes = Eyes::kNarrow},
    {.jaw = jaw::kSquare, .eyewear = Eyewear::kEyeBlack, .mouth = Mouth::kGrin},
    {.jaw = jaw::kSquare, .whiskers = Whiskers::kGoatee, .brows = brows::kStern},
    {.jaw = jaw::kRound, .eyewear = Eyewear::kShades, .mouth = Mouth::kFirm},
    // 50 to 57
    {.jaw = jaw::kSquare,
     .whiskers = Whiskers::kBeard,
     .eyewear = Eyewear::kShades,
     .mouth = Mouth::kGrin},
    {.whiskers = Whiskers::kChinTuft, .mouth = Mouth::kSmirk, .locks = Locks::kCurls},
    {.jaw = jaw::kRound, .eyewear = Eyewear::kGoggles, .mouth = Mouth::kGrin},
    {.jaw = jaw::kSquare,
     .whiskers = Whiskers::kChops,
     .mouth = Mouth::kShout,
     .brows = brows::kBushy},
    {.jaw = jaw::kOval, .mouth = Mouth::kGum, .brows = brows::kRaised},
    {.jaw = jaw::kRound, .mouth = Mouth::kFrown, .brows = brows::kStern, .mark = Mark::kPlaster},
    {.jaw = jaw::kRound, .whiskers = Whiskers::kHandlebar, .eyewear = Eyewear::kSquareGlasses},
    {.jaw = jaw::kOval, .whiskers = Whiskers::kChinCurtain, .locks = Locks::kLong},
}};

}  // namespace

FaceLook FaceLookOf(int code) {
  return kFaceLooks.at(static_cast<std::size_t>(kFaceAndBodyCodes.PlaceOf(code)));
}

}  // namespace morlek::art
