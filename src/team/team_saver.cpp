#include "team/team_saver.h"

namespace morlek {

SaveResult SaveTeam(CartridgeImage& image, const RecordLocation& location, const RosterGrid& grid,
                    CodecState& state, EncodingListener& listener) {
  SaveResult result;
  const auto sink = [&](int row, int offset, std::uint8_t byte) {
    const bool taken = image.WriteField(location.base, row, offset, byte);
    (taken ? result.taken : result.refused).Put(row, offset, byte);
  };
  static_cast<void>(image.Open(location.image));
  result.end_row = EncodeRecord(grid, state, sink, listener);
  if (!image.Close()) {
    // Any of the bytes may be lost.
    result.refused.PutAll(result.taken);
    result.taken = {};
  }
  return result;
}

}  // namespace morlek
