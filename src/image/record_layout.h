#pragma once

namespace morlek {

/// A team record is 25 roster slots of 32 bytes: slots 0 to 14 are batters, 15 to 24 pitchers.
inline constexpr int kSlotCount = 25;
inline constexpr int kBatterCount = 15;
inline constexpr int kSlotBytes = 32;

/// The name field: an initial and up to 8 letters of the surname, one letter code a byte.
inline constexpr int kNameBytes = 9;

/// The offset of each field in a slot, counted from the slot's first byte. Two-byte fields have
/// their low byte first. Bytes that are not listed are used by the game alone.
namespace offset {

inline constexpr int kName = 0;
inline constexpr int kFieldingPosition = 9;
inline constexpr int kUniformNumber = 10;
inline constexpr int kFirstRatings = 11;
inline constexpr int kSecondRatings = 12;  // a pitcher's holds one rating
inline constexpr int kBattingSide = 13;    // batters
inline constexpr int kFace = 14;
inline constexpr int kBody = 15;
inline constexpr int kLegs = 16;
inline constexpr int kPitcherSFlag = 17;      // pitchers; written, never read
inline constexpr int kThrowingHand = 21;      // pitchers
inline constexpr int kPitcherMarks = 23;      // pitchers
inline constexpr int kBattingAverage = 24;    // batters, two bytes
inline constexpr int kWins = 24;              // pitchers
inline constexpr int kHomeRuns = 26;          // batters
inline constexpr int kLosses = 26;            // pitchers
inline constexpr int kRunsBattedIn = 28;      // batters
inline constexpr int kEarnedRunAverage = 28;  // pitchers, two bytes
inline constexpr int kSaves = 30;             // pitchers

}  // namespace offset
}  // namespace morlek
