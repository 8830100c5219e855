#pragma once

#include "team/record_bytes.h"
#include "team/rehearsal.h"
#include "team/roster_grid.h"
#include "team/team_saver.h"

namespace morlek {

/// What the image is known to hold of the team in the grid. It is learnt from what loads read and
/// saves write anyway; nothing is read for it.
class ImageKnowledge {
 public:
  /// A load has read these bytes and shown these texts.
  void LearnLoad(const RecordBytes& read, const RosterGrid& shown);

  /// A save came out as `saved`, of which `rehearsal` told before what a load would show then. A
  /// cell of which a byte was refused is known to hold what it held.
  void LearnSave(const SavedBytes& saved, const Rehearsal& rehearsal);

  /// Nothing is known any more: another image, a load that failed.
  void Forget() { *this = {}; }

  /// Whether anything is known: a team has been loaded since.
  [[nodiscard]] bool is_known() const { return is_known_; }

  /// The bytes, as far as they are known.
  [[nodiscard]] const RecordBytes& bytes() const { return bytes_; }

  /// What a load would show, as far as that is known; empty texts before the first load.
  [[nodiscard]] const RosterGrid& texts() const { return texts_; }

 private:
  bool is_known_ = false;
  RecordBytes bytes_;
  RosterGrid texts_;
};

}  // namespace morlek
