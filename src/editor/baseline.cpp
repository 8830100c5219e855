#include "editor/baseline.h"

#include "team/column_bytes.h"

namespace morlek {

void Baseline::FollowSave(const SaveResult& saved, const SavePreview& preview) {
  bytes_.PutAll(saved.taken);
  if (saved.refused == RecordBytes()) {
    texts_ = preview.after();
    return;
  }
  for (const Cell cell : kAllCells) {
    const auto offsets = BytesOf(cell.column);
    if (saved.taken.HasAny(cell.row, offsets) && !saved.refused.HasAny(cell.row, offsets)) {
      texts_.SetText(cell, preview.TextAfter(cell));
    }
  }
}

}  // namespace morlek
