#pragma once

#include <string_view>

#include "editor/editor.h"

// For programs that use an editor without showing anything.
namespace morlek {

class SilentMessages : public MessagePort {
 public:
  void Show(const Message& /*message*/) override {}
};

class NoView : public EditorView {
 public:
  void ShowTeamName(std::string_view /*display_name*/) override {}
  void PrepareView() override {}
  void ShowIdentity(std::string_view /*byte_text*/) override {}
  void ShowToolbar() override {}
  void HideRoster() override {}
  void ShowNarrow() override {}
  void RefreshMarks() override {}
};

}  // namespace morlek
