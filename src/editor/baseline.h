#pragma once

#include <utility>

#include "team/record_bytes.h"
#include "team/roster_grid.h"
#include "team/save_preview.h"
#include "team/team_saver.h"

namespace morlek {

/// What the image is known to hold of one team. It follows from what loads read and saves write
/// anyway; nothing is read for it.
class Baseline {
 public:
  /// A load has read these bytes and shown these texts.
  Baseline(const RecordBytes& read, RosterGrid shown) : bytes_(read), texts_(std::move(shown)) {}

  /// Takes over what a save has written; `preview` was made just before it. A cell of which a byte
  /// was refused keeps its text.
  void FollowSave(const SaveResult& saved, const SavePreview& preview);

  [[nodiscard]] const RecordBytes& bytes() const { return bytes_; }

  /// What a load would show.
  [[nodiscard]] const RosterGrid& texts() const { return texts_; }

 private:
  RecordBytes bytes_;
  RosterGrid texts_;
};

}  // namespace morlek
