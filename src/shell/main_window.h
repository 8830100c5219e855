#pragma once

#include <QMainWindow>

#include "editor/editor.h"
#include "shell/menu_bar.h"
#include "shell/user.h"

class QLabel;

namespace morlek {

class ContentArea;
class HelpPane;
class HintLabel;
class HintNote;
class RosterFrame;
class StanceMark;
class StancePanel;
class StatusLine;
class TeamToolbar;

/// The main window: it turns what the person does into steps of the editor, and passes the editor's
/// state on to its parts.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  /// `user` answers every dialog. Editor and user outlive the window.
  MainWindow(Editor& editor, User& user);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void BuildContent();
  void AddIdentity();

  /// Adds the grid and the choosers. Creating their 500 controls takes as long as the rest of the
  /// window, which is shown before.
  void AddRoster();

  /// Shows the current state.
  void Show(const EditorState& state, const StateChange& change);

  /// Gives the content the width of a layout; whatever is further right is out of view.
  void SetLayout(Layout layout);

  /// Gives the window the size of its content, or as much of it as the screen has room for.
  void FitToScreen();

  void Run(Command command);
  void OpenFirstImage();
  /// The path that a dialog gave; nothing when it was cancelled, which is a step of its own.
  std::optional<std::filesystem::path> PathIn(const std::optional<QString>& answer);
  void ExportTeam();
  void SetAlwaysOnTop(bool on_top);
  void OpenHelp();

  /// Whether the window takes commands: once its first question has been answered, and never while
  /// a dialog is open.
  [[nodiscard]] bool IsListening() const;

  Editor& editor_;
  User& user_;

  MenuBar* menus_;
  ContentArea* area_ = nullptr;
  QWidget* content_ = nullptr;
  TeamToolbar* toolbar_ = nullptr;
  // Created once the first question has been answered, which is asked over the painted window.
  RosterFrame* roster_ = nullptr;
  StancePanel* stances_ = nullptr;
  StanceMark* stance_mark_ = nullptr;
  QLabel* identity_ = nullptr;
  HintLabel* hint_ = nullptr;
  HintNote* hint_note_ = nullptr;
  StatusLine* status_ = nullptr;
  Editor::Subscription subscription_;
  // Created when it is first needed, so that the start does not wait for it.
  HelpPane* help_ = nullptr;
};

}  // namespace morlek
