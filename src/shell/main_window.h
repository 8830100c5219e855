#pragma once

#include <QMainWindow>
#include <memory>

#include "editor/editor.h"
#include "shell/menu_table.h"
#include "shell/user.h"

namespace morlek {

class ContentArea;
class HelpPane;
class HintLabel;
class HintNote;
class IdentityLabel;
class MenuBar;
class RosterFrame;
class StanceMark;
class StancePanel;
class StatusLine;
class TeamToolbar;
class clsOnTop;

/// The main window: it turns what the person does into the editor's steps, and hands the editor's
/// state on to its parts.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  Q_DISABLE_COPY_MOVE(MainWindow)

  /// `user` answers every dialog. Editor and user outlive the window.
  MainWindow(Editor& editor, User& user);
  ~MainWindow() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void BuildContent();

  /// Adds the grid and the choosers. Their 500 controls take as long as the rest of the window,
  /// which need not wait for them.
  void AddRoster();

  /// Shows how things stand now.
  void Show(const EditorState& state, const StateChange& change);

  /// Gives the content the width of a layout; what stands further right is out of view.
  void SetLayout(Layout layout);

  /// Gives the window the size of its content, or as much of it as the screen has room for.
  void FitToScreen();

  void Run(Command command);
  void OpenFirstImage();
  void OpenAnotherImage();
  void ImportTeam();
  void ExportTeam();
  void SetAlwaysOnTop(bool on_top);
  void OpenHelp();

  /// Whether the window does what it is told: once its first question was answered, and never while
  /// a dialog stands over it.
  [[nodiscard]] bool IsListening() const;

  Editor& editor_;
  User& user_;

  MenuBar* menus_;
  ContentArea* area_ = nullptr;
  QWidget* content_ = nullptr;
  TeamToolbar* toolbar_ = nullptr;
  // There from the answer to the first question on, which is asked over the painted window.
  RosterFrame* roster_ = nullptr;
  StancePanel* stances_ = nullptr;
  StanceMark* stance_mark_ = nullptr;
  IdentityLabel* identity_ = nullptr;
  HintLabel* hint_ = nullptr;
  HintNote* hint_note_ = nullptr;
  StatusLine* status_ = nullptr;
  Editor::Subscription subscription_;
  // Made when they are first needed: the start does not wait for them.
  HelpPane* help_ = nullptr;
  std::unique_ptr<clsOnTop> on_top_;
};

}  // namespace morlek
