#pragma once

#include <cstdint>
#include <optional>

#include "codecs/appearance_codec.h"
#include "codecs/average_codec.h"
#include "codecs/fielding_position_codec.h"
#include "codecs/hand_codec.h"
#include "codecs/name_letter_codec.h"
#include "codecs/small_number_codec.h"

namespace morlek {

/// Everything that loads and saves keep for the whole run, as one value: for an input that it does
/// not know, a decoder or encoder returns its last result again. The preview of a save runs on a
/// copy.
struct CodecState {
  NameLetterCodec name_letter;
  FieldingPositionCodec fielding_position;
  SmallNumberCodec small_number;
  BattingAverageCodec batting_average;
  EarnedRunAverageCodec earned_run_average;
  BattingSideCodec batting_side;
  PitcherMarksCodec pitcher_marks;
  AppearanceCodec appearance;

  // Results of the last conversions of these two fields; until one has been converted at all,
  // its write is not made.
  std::optional<std::int32_t> uniform_number;
  std::optional<std::int32_t> first_ratings;
};

}  // namespace morlek
