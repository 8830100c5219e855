#pragma once

#include <cstdint>
#include <string_view>

#include "image/cartridge_image.h"
#include "team/codecs.h"
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

/// Fills the roster grid from the image, one field at a time across the whole roster. What a
/// decoder does not know shows its previous result, so the order of the passes is part of what the
/// loader does.
class TeamLoader {
 public:
  TeamLoader(CartridgeImage& image, Codecs& codecs, RosterGrid& grid)
      : image_(image), codecs_(codecs), grid_(grid) {}

  /// Loads the team with this toolbar key; an unknown key loads the current team again.
  /// Throws OperationFailed when the image cannot be opened (nothing has changed then) or read, or
  /// when a rating shows no number; the grid is then filled up to that field and the image is open.
  void Load(std::string_view toolbar_key, TeamView& view);

 private:
  void LoadNames();
  void LoadFieldingPositions();
  void LoadUniformNumbers();
  void LoadHands();
  void LoadPitcherMarks();
  void LoadFirstRatings();
  void LoadSecondRatings();
  void LoadAppearance(Column column, int offset);
  void LoadBattingAverages();
  void LoadEarnedRunAverages();

  /// Which block of the grid shows what a pass has decoded.
  enum class Rows { kAll, kBatters, kPitchers };
  void LoadNumbers(Column column, Rows rows, int offset);

  void ShowRating(Column column, int row, int offset, std::string_view digits);
  [[nodiscard]] std::uint8_t Read(int row, int offset);

  CartridgeImage& image_;
  Codecs& codecs_;
  RosterGrid& grid_;
};

}  // namespace morlek
