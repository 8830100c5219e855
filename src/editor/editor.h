#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "codecs/message_port.h"
#include "editor/editor_view.h"
#include "editor/grid_marks.h"
#include "editor/image_knowledge.h"
#include "image/cartridge_image.h"
#include "image/channel.h"
#include "team/kept_state.h"
#include "team/rehearsal.h"
#include "team/roster_document.h"

namespace morlek {

/// The program without a window: the one file channel, the current image, what the codecs keep, the
/// roster, and every step that a person can take. It outlives the windows that show it.
/// A path that is nothing is a file dialog that was cancelled.
class Editor {
 public:
  /// No image, no team, an empty grid. The message port outlives the object; `opener` opens files.
  explicit Editor(MessagePort& messages, FileOpener opener = OpenFile);

  /// The first file of the run: takes it as the image when its identity byte is right, else tells
  /// that an image must be opened. No file, and one that cannot be opened or read, count as wrong.
  void OpenFirstImage(const std::optional<std::filesystem::path>& chosen, EditorView& view);

  /// A later file, likewise. A file that cannot be opened or read changes nothing and is not told;
  /// one that was opened before its reading failed keeps channel 1. Cancelling frees channel 1.
  void OpenAnotherImage(const std::optional<std::filesystem::path>& chosen, EditorView& view);

  /// Loads the team with this toolbar key into the grid. A failure is told, and the grid hidden,
  /// with what has been read so far in it.
  void LoadTeam(std::string_view toolbar_key, EditorView& view);

  /// Saves the grid into the image and says so, whatever could be written, with the marks already
  /// fresh; a name that is too long ends the save where it stands, and is told instead.
  void Save(EditorView& view);

  /// Replaces the grid by a team data file, in one step. A failure is not told: a file that cannot
  /// be opened changes nothing, one that ends too soon leaves the grid in part filled, and channel
  /// 1 held. Cancelling frees channel 1.
  void ImportTeam(const std::optional<std::filesystem::path>& chosen);

  /// Writes the grid to a team data file; true when that came through. A failure is not told, and
  /// holds channel 1 when it came while the file was written. Cancelling frees channel 1.
  [[nodiscard]] bool ExportTeam(const std::optional<std::filesystem::path>& chosen);

  /// Takes a file that was given without a question as if it had been chosen: a ".txt" to import,
  /// anything else as another image.
  void TakeFile(const std::filesystem::path& path, EditorView& view);

  /// Lays a pasted block of cells into the grid from a cell on, in one step.
  void PasteBlock(Cell start, std::string_view block);

  /// The roster, in which a window types, picks, undoes and redoes.
  [[nodiscard]] RosterDocument& document() { return document_; }
  [[nodiscard]] const RosterDocument& document() const { return document_; }

  /// What SAVE would make of the grid as it stands.
  [[nodiscard]] Rehearsal Rehearse() const;

  /// What a person should know of each cell before pressing SAVE; no cell is marked before a team
  /// has been loaded.
  [[nodiscard]] GridMarks Marks() const;

  /// What the image is known to hold of the team in the grid.
  [[nodiscard]] const ImageKnowledge& knowledge() const { return knowledge_; }

  /// Whether channel 1 is open. When no step is under way, one that failed has left it so, and
  /// whichever step comes next cannot open its file.
  [[nodiscard]] bool IsFileOpen() const { return channel_.is_open(); }

  /// The current image; empty before the first one.
  [[nodiscard]] const std::filesystem::path& image_path() const { return image_.path(); }

 private:
  /// Takes the file as the image when its identity byte is right, and shows what it is either way.
  [[nodiscard]] bool Judge(const std::filesystem::path& path, std::uint8_t identity,
                           EditorView& view);

  MessagePort& messages_;
  Channel channel_;
  CartridgeImage image_{channel_};
  KeptState kept_;
  RosterDocument document_;
  ImageKnowledge knowledge_;
};

}  // namespace morlek
