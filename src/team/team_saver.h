#pragma once

#include <functional>

#include "codecs/message_port.h"
#include "image/cartridge_image.h"
#include "team/kept_state.h"
#include "team/record_bytes.h"
#include "team/roster_grid.h"

namespace morlek {

/// Which bytes the image took in a save, and which it refused.
struct SavedBytes {
  RecordBytes taken;
  RecordBytes refused;
};

/// Writes a grid into the image, the program's only write path.
class TeamSaver {
 public:
  /// Image, kept state and message port outlive the saver.
  TeamSaver(CartridgeImage& image, KeptState& kept, MessagePort& messages)
      : image_(image), kept_(kept), messages_(messages) {}

  /// Saves the grid into the current record and says so, also when nothing could be written. A name
  /// of more than 10 characters is told instead and ends the save; what was written stays. Either
  /// way `settled` hears once what the image took, as soon as its file is closed: before the person
  /// is told that the changes have been saved.
  void Save(
      const RosterGrid& grid,
      const std::function<void(const SavedBytes&)>& settled = [](const SavedBytes&) {});

 private:
  CartridgeImage& image_;
  KeptState& kept_;
  MessagePort& messages_;
};

}  // namespace morlek
