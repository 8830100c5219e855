#pragma once

#include <string_view>

#include "image/cartridge_image.h"
#include "team/kept_state.h"
#include "team/record_bytes.h"
#include "team/roster_grid.h"

namespace morlek {

/// What the loader asks of the window.
class TeamView {
 public:
  virtual ~TeamView() = default;

  /// Shows the name of the team over its roster.
  virtual void ShowTeamName(std::string_view display_name) = 0;

  /// Shows toolbar and grid in the narrow layout.
  virtual void PrepareView() = 0;

 protected:
  TeamView() = default;
  TeamView(const TeamView&) = default;
  TeamView& operator=(const TeamView&) = default;
};

/// Fills a grid from the image, which it only reads.
class TeamLoader {
 public:
  /// Image and kept state outlive the loader.
  TeamLoader(CartridgeImage& image, KeptState& kept) : image_(image), kept_(kept) {}

  /// Loads the team with this toolbar key; an unknown key loads the current team again. Gives the
  /// bytes that were read.
  /// Throws OperationFailed when the image cannot be opened (nothing has changed then) or read, or
  /// when a rating shows no number; the grid is then filled up to that field and the image is open.
  RecordBytes Load(std::string_view toolbar_key, RosterGrid& grid, TeamView& view);

 private:
  CartridgeImage& image_;
  KeptState& kept_;
};

}  // namespace morlek
