#include "team/team_loader.h"

#include "image/failure.h"
#include "team/record_decoder.h"

namespace morlek {

LoadResult LoadTeam(CartridgeImage& image, const RecordLocation& location, CodecState& state,
                    RosterGrid& grid) {
  using enum LoadResult::Outcome;
  LoadResult result;
  if (!image.Open(location.image)) {
    result.outcome = kNotOpened;
    result.failure =
        "The team could not be loaded, because the image could not be opened for reading and "
        "writing.";
    return result;
  }
  const auto source = [&](int row, int offset) {
    const std::uint8_t byte = image.ReadField(location.base, row, offset);
    result.read.Put(row, offset, byte);
    return byte;
  };
  DecodingListener strict;
  try {
    DecodeRecord(source, state, grid, strict);
    image.Close();
  } catch (const OperationFailed& failure) {
    result.outcome = kEndedEarly;
    result.failure = failure.what();
  }
  return result;
}

}  // namespace morlek
