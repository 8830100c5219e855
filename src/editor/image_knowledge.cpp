#include "editor/image_knowledge.h"

#include <algorithm>

#include "team/shown_bytes.h"

namespace morlek {

void ImageKnowledge::LearnLoad(const RecordBytes& read, const RosterGrid& shown) {
  is_known_ = true;
  bytes_ = read;
  texts_ = shown;
}

void ImageKnowledge::LearnSave(const SavedBytes& saved, const Rehearsal& rehearsal) {
  bytes_.PutAll(saved.taken);
  if (saved.refused == RecordBytes()) {
    texts_ = rehearsal.after();
    return;
  }
  for (const Cell cell : kAllCells) {
    const auto was_put_into = [cell](const RecordBytes& bytes) {
      return std::ranges::any_of(ShownOffsets(cell), [&bytes, cell](int offset) {
        return bytes.At(cell.row, offset).has_value();
      });
    };
    if (was_put_into(saved.taken) && !was_put_into(saved.refused)) {
      texts_.SetText(cell, rehearsal.TextAfter(cell));
    }
  }
}

}  // namespace morlek
