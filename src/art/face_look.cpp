#include "art/face_look.h"

#include <array>

#include "art/picture_codes.h"

namespace morlek::art {
namespace {

// Two rows of eight to a skin class. Within a class each face has one feature of its own that is
// seen at a glance; the rest varies from class to class.
constexpr std::array<FaceLook, kFaceAndBodyCodes.count()> kFaceLooks = {{
    // 00 to 07
    {.mouth = Mouth::kSmile, .brows = Brows::kRaised},
    {.jaw = Jaw::kSquare, .whiskers = Whiskers::kChevron},
    {.jaw = Jaw::kLong, .eyewear = Eyewear::kRoundGlasses, .mouth = Mouth::kSmirk},
    {.jaw = Jaw::kRound, .whiskers = Whiskers::kBeard, .mouth = Mouth::kGrin},
    {.jaw = Jaw::kSquare, .whiskers = Whiskers::kStubble, .brows = Brows::kStern},
    {.eyewear = Eyewear::kEyeBlack, .mouth = Mouth::kShout, .brows = Brows::kStern},
    {.jaw = Jaw::kLong, .whiskers = Whiskers::kGoatee, .eyes = Eyes::kNarrow},
    {.jaw = Jaw::kSquare, .eyewear = Eyewear::kShades, .mouth = Mouth::kGrin},
    // 10 to 17
    {.whiskers = Whiskers::kHandlebar, .brows = Brows::kBushy},
    {.jaw = Jaw::kRound,
     .mouth = Mouth::kGrin,
     .brows = Brows::kRaised,
     .eyes = Eyes::kWide,
     .mark = Mark::kFreckles},
    {.jaw = Jaw::kSquare, .whiskers = Whiskers::kPencil, .eyewear = Eyewear::kSquareGlasses},
    {.jaw = Jaw::kSquare, .whiskers = Whiskers::kChops, .brows = Brows::kBushy},
    {.jaw = Jaw::kRound, .mouth = Mouth::kGum, .eyes = Eyes::kWide},
    {.jaw = Jaw::kSquare, .mouth = Mouth::kFrown, .brows = Brows::kStern, .mark = Mark::kScar},
    {.jaw = Jaw::kLong, .whiskers = Whiskers::kHorseshoe, .locks = Locks::kLong},
    {.jaw = Jaw::kOval, .mouth = Mouth::kStraw, .locks = Locks::kCurls},
    // 20 to 27
    {.jaw = Jaw::kRound, .mouth = Mouth::kGrin, .locks = Locks::kCurls},
    {.jaw = Jaw::kLong, .whiskers = Whiskers::kChevron, .brows = Brows::kBushy},
    {.jaw = Jaw::kOval,
     .eyewear = Eyewear::kGoggles,
     .mouth = Mouth::kFirm,
     .brows = Brows::kRaised},
    {.jaw = Jaw::kSquare, .whiskers = Whiskers::kBeard, .brows = Brows::kStern},
    {.jaw = Jaw::kRound, .whiskers = Whiskers::kStubble, .mouth = Mouth::kSmirk},
    {.jaw = Jaw::kSquare,
     .eyewear = Eyewear::kEyeBlack,
     .mouth = Mouth::kFrown,
     .locks = Locks::kLong},
    {.whiskers = Whiskers::kGoatee, .mouth = Mouth::kGrin, .brows = Brows::kRaised},
    {.jaw = Jaw::kLong, .whiskers = Whiskers::kChinTuft, .eyewear = Eyewear::kShades},
    // 30 to 37
    {.jaw = Jaw::kSquare, .whiskers = Whiskers::kHandlebar, .eyes = Eyes::kNarrow},
    {.jaw = Jaw::kRound, .whiskers = Whiskers::kChinCurtain, .mouth = Mouth::kSmile},
    {.jaw = Jaw::kRound, .eyewear = Eyewear::kSquareGlasses, .mouth = Mouth::kSmile},
    {.jaw = Jaw::kLong, .whiskers = Whiskers::kChops, .mouth = Mouth::kSmirk},
    {.jaw = Jaw::kSquare, .mouth = Mouth::kGum, .brows = Brows::kStern},
    {.jaw = Jaw::kOval, .mouth = Mouth::kShout, .eyes = Eyes::kWide, .mark = Mark::kPlaster},
    {.jaw = Jaw::kSquare,
     .whiskers = Whiskers::kHorseshoe,
     .brows = Brows::kStern,
     .locks = Locks::kCurls},
    {.jaw = Jaw::kSquare, .mouth = Mouth::kFirm, .eyes = Eyes::kNarrow, .mark = Mark::kChew},
    // 40 to 47
    {.jaw = Jaw::kLong, .mouth = Mouth::kSmile, .brows = Brows::kRaised},
    {.jaw = Jaw::kSquare,
     .whiskers = Whiskers::kChevron,
     .brows = Brows::kRaised,
     .locks = Locks::kLong},
    {.jaw = Jaw::kRound,
     .eyewear = Eyewear::kRoundGlasses,
     .mouth = Mouth::kGum,
     .brows = Brows::kStern},
    {.whiskers = Whiskers::kLongBeard, .brows = Brows::kBushy},
    {.jaw = Jaw::kRound, .mouth = Mouth::kStraw, .eyes = Eyes::kNarrow},
    {.jaw = Jaw::kSquare, .eyewear = Eyewear::kEyeBlack, .mouth = Mouth::kGrin},
    {.jaw = Jaw::kSquare, .whiskers = Whiskers::kGoatee, .brows = Brows::kStern},
    {.jaw = Jaw::kRound, .eyewear = Eyewear::kShades, .mouth = Mouth::kFirm},
    // 50 to 57
    {.jaw = Jaw::kSquare,
     .whiskers = Whiskers::kBeard,
     .eyewear = Eyewear::kShades,
     .mouth = Mouth::kGrin},
    {.whiskers = Whiskers::kChinTuft, .mouth = Mouth::kSmirk, .locks = Locks::kCurls},
    {.jaw = Jaw::kRound, .eyewear = Eyewear::kGoggles, .mouth = Mouth::kGrin},
    {.jaw = Jaw::kSquare,
     .whiskers = Whiskers::kChops,
     .mouth = Mouth::kShout,
     .brows = Brows::kBushy},
    {.jaw = Jaw::kOval, .mouth = Mouth::kGum, .brows = Brows::kRaised},
    {.jaw = Jaw::kRound, .mouth = Mouth::kFrown, .brows = Brows::kStern, .mark = Mark::kPlaster},
    {.jaw = Jaw::kRound, .whiskers = Whiskers::kHandlebar, .eyewear = Eyewear::kSquareGlasses},
    {.jaw = Jaw::kOval, .whiskers = Whiskers::kChinCurtain, .locks = Locks::kLong},
}};

}  // namespace

FaceLook FaceLookOf(int code) {
  return kFaceLooks.at(static_cast<std::size_t>(kFaceAndBodyCodes.PlaceOf(code)));
}

}  // namespace morlek::art
