#pragma once

#include <string>
#include <vector>

#include "editor/editor_view.h"

namespace morlek {

/// A window that notes what loader and editor ask of it.
class RecordingView : public EditorView {
 public:
  void ShowTeamName(std::string_view name) override { calls.emplace_back(name); }
  void PrepareView() override { calls.emplace_back("prepare"); }
  void ShowIdentity(std::string_view byte) override { identity = byte; }
  void ShowToolbar() override { calls.emplace_back("toolbar"); }
  void HideRoster() override { calls.emplace_back("hide"); }
  void ShowNarrow() override { calls.emplace_back("narrow"); }
  void RefreshMarks() override {}

  std::vector<std::string> calls;
  std::string identity;
};

}  // namespace morlek
