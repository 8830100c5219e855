#include "art/body_look.h"

#include <array>

#include "art/picture_codes.h"

namespace morlek::art {
namespace {

constexpr std::size_t kLooksInClass = 16;

static_assert(kFaceAndBodyCodes.count() % kLooksInClass == 0);

constexpr std::array<BatHold, kLooksInClass> kHolds = {{
    // Upright beside the head.
    {{-22, -42}, 93, 3, 11, {2, -31}, {-39, -33}, false},
    // Cocked over the rear shoulder.
    {{-14, -44}, 128, 3, 11, {6, -31}, {-39, -33}, false},
    // Laid flat behind.
    {{-16, -47}, 176, 3, 11, {6, -33}, {-38, -31}, false},
    // Resting on the shoulder, hands before the chest.
    {{8, -21}, 146, 3, 11, {26, -22}, {-28, -22}, false},
    // Pointing to the pitcher.
    {{14, -29}, 24, 3, 11, {27, -20}, {0, -24}, false},
    // Hands low at the belt, bat upright.
    {{-8, -9}, 106, 3, 11, {22, -20}, {-34, -23}, false},
    // Squared round to bunt.
    {{30, -22}, 172, 4, 33, {34, -33}, {-28, -20}, false},
    // The called shot: one hand out, one on the hip.
    {{38, -41}, 66, 4, std::nullopt, {29, -26}, {-35, -21}, false},
    // High hands, the tip tilted forward behind the helmet.
    {{-35, -48}, 64, 3, 11, {-2, -37}, {-44, -40}, true},
    // Stretching, the bat level above the head.
    {{-18, -107}, 0, 36, 4, {43, -70}, {-42, -68}, false},
    // Low and flat at the hip.
    {{6, -12}, 178, 3, 11, {25, -22}, {-32, -27}, false},
    // Tapping the plate.
    {{0, -23}, -26, 3, 11, {26, -27}, {-20, -21}, false},
    // One hand on the bat over the shoulder, one on the hip.
    {{-10, -24}, 122, std::nullopt, 4, {37, -22}, {-35, -21}, false},
    // Followed through, the bat over the front shoulder.
    {{21, -36}, 60, 3, 11, {37, -30}, {2, -29}, true},
    // At ease, the bat hanging from the rear hand.
    {{-33, -18}, 244, std::nullopt, 3, {36, -22}, {-37, -32}, false},
    // Swung low behind the back leg.
    {{-22, -21}, 212, 3, 11, {4, -21}, {-40, -30}, false},
}};

constexpr std::array<Outfit, kLooksInClass> kOutfits = {{
    {build::kBroad, Sleeves::kShort, Extras::kNone},
    {build::kSlim, Sleeves::kShort, Extras::kWristbands},
    {build::kStocky, Sleeves::kShort, Extras::kGloves},
    {build::kBroad, Sleeves::kLongBlue, Extras::kNone},
    {build::kSlim, Sleeves::kThreeQuarterRed, Extras::kNone},
    {build::kBroad, Sleeves::kVest, Extras::kWristbands},
    {build::kStocky, Sleeves::kLongNavy, Extras::kNone},
    {build::kSlim, Sleeves::kShort, Extras::kElbowGuard},
    {build::kBroad, Sleeves::kShort, Extras::kElbowGuard},
    {build::kStocky, Sleeves::kThreeQuarterRed, Extras::kNone},
    {build::kSlim, Sleeves::kVest, Extras::kNone},
    {build::kBroad, Sleeves::kShort, Extras::kGloves},
    {build::kSlim, Sleeves::kLongBlue, Extras::kNone},
    {build::kStocky, Sleeves::kShort, Extras::kWristbands},
    {build::kBroad, Sleeves::kLongNavy, Extras::kNone},
    {build::kStocky, Sleeves::kVest, Extras::kElbowGuard},
}};

}  // namespace

BodyLook BodyLookOf(int code) {
  const auto index = static_cast<std::size_t>(kFaceAndBodyCodes.PlaceOf(code));
  const std::size_t skin_class = index / kLooksInClass;
  // The hold follows the code alone; each class of skin wears the outfits in another order.
  constexpr std::size_t kOutfitStep = 7;
  const std::size_t hold = index % kLooksInClass;
  return {kOutfits.at((hold + kOutfitStep * skin_class) % kLooksInClass), kHolds.at(hold)};
}

}  // namespace morlek::art
