#pragma once

#include <filesystem>
#include <tuple>

#include "image/team_directory.h"

namespace morlek {

/// Where a roster lives: an image, and one of its teams.
struct Place {
  /// Empty before the first image.
  std::filesystem::path image;
  /// One of the directory; null before a team has been picked.
  const Team* team = nullptr;

  friend bool operator==(const Place&, const Place&) = default;
  friend bool operator<(const Place& one, const Place& other) {
    return std::tie(one.image, one.team) < std::tie(other.image, other.team);
  }
};

/// What the window shows: the grid of a place, or, while none is shown, the place that is named.
struct Scene {
  Place place;
  bool is_grid_shown = false;

  friend bool operator==(const Scene&, const Scene&) = default;
};

}  // namespace morlek
