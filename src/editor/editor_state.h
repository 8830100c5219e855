#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <variant>

#include "editor/grid_change.h"
#include "editor/grid_marks.h"
#include "editor/place.h"
#include "team/team_loader.h"
#include "team/team_saver.h"
#include "textfile/pasted_block.h"
#include "textfile/team_export.h"
#include "textfile/team_import.h"

namespace morlek {

/// What came of opening an image.
enum class OpenResult {
  kOpened,
  kRefused,    // the file is another game's, by its identity byte
  kNotOpened,  // the file could not be opened or read
};

/// How much of the window is in view: the grid, or the choosers right of it as well.
enum class Layout { kNarrow, kWide };

/// What came of the last step, when that had to do with a file or pasted a block; else nothing.
using StepOutcome = std::variant<std::monostate, OpenResult, LoadResult, SaveResult, ImportResult,
                                 ExportResult, PasteResult>;

/// A file that was chosen as an image and did not become one.
struct RefusedImage {
  std::filesystem::path path;
  OpenResult why;
};

/// Changes that a step to another team or image has left unsaved; taking it back brings them back.
struct LeftBehind {
  Place place;
  int changes;
};

/// A letter of a row's name that the game lacks, empty for an empty name, while its message stands.
struct UnknownLetter {
  int row;
  std::string letter;
};

/// Of the cells that were not saved yet: how many a SAVE has stored, and how many the disk refused
/// at least in part.
struct SavedChanges {
  int stored = 0;
  int refused = 0;
  /// An open team file was in the way, not the disk.
  bool was_blocked;
};

/// An import that ended early, whose file a cancelled dialog has closed.
struct ClosedImport {
  int lines;
};

/// Who was copied to the clipboard, by his name or in words.
struct CopyNote {
  std::string who;
};

/// A file that is no image of this game.
struct RefusedFile {
  std::filesystem::path path;
  /// By its size it is an image without the 512 bytes that stand in front of the game.
  bool lacks_header;
};

/// What a person should know of the last step, until the next one.
using StepNote = std::variant<std::monostate, LeftBehind, UnknownLetter, SavedChanges, ClosedImport,
                              CopyNote, RefusedFile>;

/// How things stand: all that a window shows, as one value.
struct EditorState {
  /// The current image, the team that is named over the grid, and whether the grid can be seen:
  /// SAVE writes there, and only then.
  Scene scene;
  /// The identity byte of the file that was checked last, as hexadecimal text.
  std::string identity;
  /// The team that was asked for last, where the next and the previous one are counted from; null
  /// when an image has just been opened.
  const Team* picked = nullptr;
  /// The team of the last load that came through; null while no grid is shown. While a load that
  /// ended early reports its failure, it is still the team before.
  const Team* loaded = nullptr;

  RosterGrid grid;
  GridMarks marks;
  bool can_undo = false;
  bool can_redo = false;

  Layout layout = Layout::kNarrow;
  /// The row, 0 to 24, into which picked pictures go.
  int stance_row = 0;
  /// The features column whose chooser is in view; nothing before the first.
  std::optional<Column> chooser;

  /// Whether a step that is over has left a file open, which keeps others from being opened.
  bool is_file_held = false;
  StepOutcome outcome;
  /// What became of the last file that was chosen as an image; nothing once one was opened.
  std::optional<RefusedImage> refused;
  StepNote note;
};

/// What a step has done, beside leaving the state as it is now.
struct StateChange {
  GridChange texts = {};
  /// The cell into which a picture's code was put, be it the same as before.
  std::optional<Cell> picked_into = {};
  /// A team has come to the screen.
  bool loaded = false;
  /// The layout was asked for, be it the same as before.
  bool layout_set = false;
};

}  // namespace morlek
