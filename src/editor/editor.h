#pragma once

#include <filesystem>
#include <string>

#include "codecs/message_port.h"
#include "image/cartridge_image.h"
#include "image/channel.h"
#include "team/codecs.h"
#include "team/roster_grid.h"
#include "team/team_loader.h"
#include "team/team_saver.h"

namespace morlek {

/// Everything that lives as long as the program runs, without a window: the one file channel, the
/// current image, what the codecs keep, the roster grid, and the operations on them.
class Editor {
 public:
  /// No image, no team, an empty grid. The message port outlives the object.
  explicit Editor(MessagePort& messages, FileOpener opener = OpenFile);

  /// What the identity check of a file came to.
  enum class Opening { kAccepted, kRefused };

  /// Checks the first file of the run and takes it as the image when it passes. A file that cannot
  /// be opened or read counts as refused, and channel 1 is closed in any case.
  [[nodiscard]] Opening OpenFirstImage(const std::filesystem::path& path);

  /// Checks a later file likewise. Throws OperationFailed when it cannot be opened or read; the
  /// identity text is then as before, and a channel that was opened stays open.
  [[nodiscard]] Opening OpenAnotherImage(const std::filesystem::path& path);

  /// The identity byte of the last file checked, passed or not, as hexadecimal text.
  [[nodiscard]] const std::string& identity_text() const { return identity_text_; }

  Channel channel;       // the one file channel, through which all below read and write
  CartridgeImage image;  // the current image and team
  Codecs codecs;         // what decoders and encoders keep
  RosterGrid grid;       // the texts on the screen
  TeamLoader loader;     // fills the grid from the image
  TeamSaver saver;       // writes the grid into the image

 private:
  [[nodiscard]] Opening Judge(const std::filesystem::path& path, std::uint8_t identity);

  std::string identity_text_;
};

}  // namespace morlek
