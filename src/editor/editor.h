#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "editor/baseline.h"
#include "editor/editor_state.h"
#include "editor/history.h"
#include "editor/message_port.h"
#include "image/cartridge_image.h"
#include "image/channel.h"
#include "team/codec_state.h"
#include "team/player.h"

namespace morlek {

/// The program without a window: the one file channel, what the codecs keep, how things stand, and
/// every step that a person can take. Each step ends in one notification of all observers, or in
/// none when it changed nothing. Before a message that a step shows, observers are notified of what
/// the person is to see behind it.
class Editor {
 public:
  using Observer = std::function<void(const EditorState& state, const StateChange& change)>;

  /// Keeps an observer subscribed; destroying it, before or after the editor, ends that.
  using Subscription = std::shared_ptr<const Observer>;

  /// No image, no team, an empty grid. The message port outlives the object; `opener` opens files.
  explicit Editor(MessagePort& messages, FileOpener opener = OpenFile);

  [[nodiscard]] const EditorState& state() const { return state_; }

  /// Calls `observer` after every change, as long as the subscription lives.
  [[nodiscard]] Subscription Subscribe(Observer observer);

  /// The first file of the run, empty when the dialog was cancelled: becomes the image when its
  /// identity byte is right, else a message says that an image must be opened.
  OpenResult OpenFirstImage(const std::filesystem::path& path);

  /// A later file, in the same way. A file that cannot be opened or read changes nothing and is not
  /// reported; one that was opened before its reading failed keeps channel 1.
  OpenResult OpenAnotherImage(const std::filesystem::path& path);

  /// A later file dialog was cancelled: closes channel 1, whatever is open on it.
  void CancelDialog();

  /// Loads the team with this toolbar key into the grid; an unknown key loads the current team
  /// again. A failure is reported in a message, and the grid hidden, with what has been read in it.
  LoadResult LoadTeam(std::string_view toolbar_key);

  /// Loads the team so many places further in the directory, going round. Before any was picked,
  /// forwards is the first one, and backwards does nothing.
  void LoadTeamBeside(int places);

  /// Saves the grid into the image and says so in a message, whatever could be written; a name that
  /// is too long ends the save where it stands, and a message says that instead.
  SaveResult Save();

  /// Replaces the grid by a team data file, in one step. A failure is not reported.
  ImportResult ImportTeam(const std::filesystem::path& path);

  /// Writes the grid to a team data file. A failure is not reported.
  ExportResult ExportTeam(const std::filesystem::path& path);

  /// Takes a file that was given without a question as if it had been chosen: a team file to
  /// import, anything else as another image.
  void TakeFile(const std::filesystem::path& path);

  /// Whether a file is a team file by its name: a ".txt".
  [[nodiscard]] static bool IsTeamFile(const std::filesystem::path& path);

  /// The focus came to a cell: what is typed from now on is a step of its own.
  void EndVisit() { history_.EndVisit(); }

  /// The box of a cell was visited: for a features column shows its chooser in the wide layout and
  /// makes the cell's row the stance row.
  void Visit(Cell cell);

  /// Puts what was typed into a cell, truncated to kLongestText.
  void Type(Cell cell, std::string text);

  /// Puts the code of a picked picture into a features column of the stance row, in one step.
  void Pick(Column feature, std::string code_text);

  /// Puts the code of a next picture into a features cell, whose chooser comes into view as by a
  /// visit. All leafing of one visit is one step.
  void Leaf(Cell cell, std::string code_text);

  /// Lays a pasted block of cells into the grid from a cell on, in one step. The outcome says what
  /// found no place.
  void PasteBlock(Cell start, std::string_view block);

  /// Puts a player into a row, in one step.
  void PastePlayer(int row, const Player& player);

  /// Has the player of a row trade places with the neighbour above (-1) or below (+1), in one step.
  /// Gives his row then; nothing where the block ends.
  std::optional<int> MovePlayer(int row, int direction);

  /// Takes the last step back, or makes it again: every step but SAVE, since the program began. No
  /// file is opened. Gives the first cell that changed; nothing when there was no such step, and
  /// when it led to another team or image.
  std::optional<Cell> Undo();
  std::optional<Cell> Redo();

  /// A player or the team was copied to the clipboard, which changes nothing here.
  void NoteCopy(std::string who);

  /// Asks for the narrow layout.
  void Minimize();

  /// What SAVE would make of the grid as it stands.
  [[nodiscard]] SavePreview Preview() const;

  /// What the image is known to hold of the team in the grid; null before a load came through.
  [[nodiscard]] const Baseline* baseline() const { return baseline_; }

 private:
  /// Shows the identity byte of a file; true when it is this game's.
  [[nodiscard]] bool ShowIdentity(std::uint8_t identity);

  [[nodiscard]] RecordLocation LocationOf(const Team* team) const;

  /// Reports a load that failed, closes channel 1 and hides the grid.
  void AbandonLoad(const std::string& failure);

  /// What a step away from a scene leaves unsaved, while the marks are still that scene's.
  [[nodiscard]] StepNote LeftBehindIn(const Scene& left) const;

  /// What a save has made of the changes, of which the marks from before it tell.
  [[nodiscard]] StepNote SavedIn(const SaveResult& saved, bool was_blocked) const;

  /// Adds the step that led from a scene to the current one, if there is anything to take back.
  void AddStep(const PassedScene& before, const GridChange& texts);

  /// Goes to a scene, whose grid is in place, in the narrow layout. No file is opened.
  void Enter(const Scene& scene);

  /// Makes a step of the history. Gives the first cell that changed, unless the scene did.
  std::optional<Cell> Follow(const std::optional<Step>& step);

  /// Brings the chooser of a features cell into view.
  void ShowChooser(Cell cell);

  /// Replaces the grid in one step of the history; nothing when no text changes.
  [[nodiscard]] GridChange Replace(const RosterGrid& grid);

  /// Works out the marks of the grid.
  void RefreshMarks();

  /// Works out the marks anew of what a change of texts may have changed: often one row alone.
  void FollowTexts(const GridChange& texts);

  /// Ends a step that has to do with no file.
  void EndStep(const StateChange& change, StepOutcome outcome = {}, StepNote note = {});

  /// Ends a step that had to do with a file.
  void EndFileStep(StepOutcome outcome, const StateChange& change = {}, StepNote note = {});

  /// Ends a step that chose an image.
  void EndOpening(const std::filesystem::path& path, OpenResult result,
                  const StateChange& change = {}, StepNote note = {});

  void Publish(const StateChange& change = {});

  MessagePort& messages_;
  Channel channel_;
  CartridgeImage image_{channel_};
  CodecState codec_state_;
  EditorState state_;
  History history_;
  // Of all places that were loaded in this run.
  std::map<Place, Baseline> baselines_;
  // That of the team in the grid; null while no load has come through.
  Baseline* baseline_ = nullptr;
  // What SAVE would make of the grid, while there is a baseline.
  std::optional<SavePreview> preview_;
  std::vector<std::weak_ptr<const Observer>> observers_;
};

}  // namespace morlek
