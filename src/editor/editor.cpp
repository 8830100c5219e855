#include "editor/editor.h"

#include <utility>

#include "codecs/code_page.h"
#include "codecs/hex_text.h"
#include "image/failure.h"
#include "team/team_saver.h"
#include "textfile/pasted_block.h"
#include "textfile/team_export.h"
#include "textfile/team_import.h"

namespace morlek {
namespace {

constexpr char kImageFailureTitle[] = "Morlek Editor";

}  // namespace

Editor::Editor(MessagePort& messages, FileOpener opener)
    : messages_(messages), channel_(std::move(opener)) {}

void Editor::OpenFirstImage(const std::optional<std::filesystem::path>& chosen, EditorView& view) {
  const std::filesystem::path path = chosen.value_or(std::filesystem::path());
  std::uint8_t identity = 0;
  try {
    identity = image_.ReadIdentityByte(path);
  } catch (const OperationFailed&) {
    image_.Close();
  }
  if (Judge(path, identity, view)) {
    view.ShowToolbar();
    return;
  }
  image_.Close();
  messages_.Show({"You must first open a Dale Harrow Baseball SNES rom.", kImageFailureTitle});
}

void Editor::OpenAnotherImage(const std::optional<std::filesystem::path>& chosen,
                              EditorView& view) {
  if (!chosen) {
    image_.Close();
    return;
  }
  std::uint8_t identity = 0;
  try {
    identity = image_.ReadIdentityByte(*chosen);
  } catch (const OperationFailed&) {
    // The image that was current stays so, and nobody is told.
    return;
  }
  if (!Judge(*chosen, identity, view)) {
    image_.Close();
    messages_.Show({"This is not a Dale Harrow Baseball SNES rom.", kImageFailureTitle});
    return;
  }
  // The grid keeps its texts, but they are no longer this image's.
  knowledge_.Forget();
  document_.ForgetHistory();
  view.ShowToolbar();
  view.HideRoster();
  view.ShowNarrow();
}

bool Editor::Judge(const std::filesystem::path& path, std::uint8_t identity, EditorView& view) {
  const std::string text = ByteToText(identity);
  view.ShowIdentity(text);
  if (text != ByteToText(kIdentityByte)) return false;
  image_.SetPath(path);
  return true;
}

void Editor::LoadTeam(std::string_view toolbar_key, EditorView& view) {
  const bool was_held = channel_.is_open_for_text();
  RosterGrid grid = document_.grid();
  try {
    const RecordBytes read = TeamLoader(image_, kept_).Load(toolbar_key, grid, view);
    knowledge_.LearnLoad(read, grid);
    document_.Restart(grid);
  } catch (const OperationFailed& failure) {
    knowledge_.Forget();
    document_.Restart(grid);
    messages_.Show({was_held ? "The team could not be loaded, because a team file was still "
                               "open since an import or export failed. It is closed now, so pick "
                               "the team again."
                             : failure.what(),
                    kProgramTitle, Message::Icon::kCritical});
    image_.Close();
    view.HideRoster();
  }
}

void Editor::Save(EditorView& view) {
  const Rehearsal rehearsal = Rehearse();
  const auto settled = [&](const SavedBytes& saved) {
    knowledge_.LearnSave(saved, rehearsal);
    view.RefreshMarks();
  };
  TeamSaver(image_, kept_, messages_).Save(document_.grid(), settled);
}

void Editor::ImportTeam(const std::optional<std::filesystem::path>& chosen) {
  if (!chosen) {
    image_.Close();
    return;
  }
  RosterGrid grid = document_.grid();
  try {
    ImportTeamData(channel_, *chosen, grid);
  } catch (const OperationFailed&) {
    // An import that fails ends where it is, and nobody is told.
  }
  document_.Replace(grid);
}

bool Editor::ExportTeam(const std::optional<std::filesystem::path>& chosen) {
  if (!chosen) {
    image_.Close();
    return false;
  }
  try {
    ExportTeamData(channel_, *chosen, document_.grid());
  } catch (const OperationFailed&) {
    // An export that fails ends where it is, and nobody is told.
    return false;
  }
  return true;
}

void Editor::TakeFile(const std::filesystem::path& path, EditorView& view) {
  if (UpperCase(path.extension().string()) == ".TXT") {
    ImportTeam(path);
  } else {
    OpenAnotherImage(path, view);
  }
}

void Editor::PasteBlock(Cell start, std::string_view block) {
  document_.Replace(WithBlock(document_.grid(), start, block));
}

Rehearsal Editor::Rehearse() const { return {document_.grid(), kept_, knowledge_.bytes()}; }

GridMarks Editor::Marks() const {
  if (!knowledge_.is_known()) return {};
  return {document_.grid(), Rehearse(), knowledge_};
}

}  // namespace morlek
