#pragma once

#include <QMainWindow>
#include <memory>

#include "editor/editor.h"
#include "shell/menu_table.h"
#include "shell/user.h"

class QLabel;
class QScrollArea;

namespace morlek {

class HelpPane;
class RosterFrame;
class StancePanel;
class TeamToolbar;
class clsOnTop;

/// The main window: it owns the editor and turns what the person does into its operations.
class MainWindow : public QMainWindow, private TeamView {
  Q_OBJECT

 public:
  Q_DISABLE_COPY_MOVE(MainWindow)

  /// The user is asked and told everything that a dialog is for, and outlives the window.
  explicit MainWindow(User& user);
  ~MainWindow() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildMenus();
  void BuildContent();
  [[nodiscard]] QLabel* AddLabel(const char* name, const QRect& place);

  /// Sets the width of the content in twips; what stands further right is out of view.
  void SetContentWidth(int twips);

  /// Gives the window the size of its content, or as much of it as the screen has room for.
  void FitToScreen();

  void Run(Command command);
  void OpenFirstImage();
  void OpenAnotherImage();
  void ImportTeam();
  void ExportTeam();
  void SetAlwaysOnTop(bool on_top);
  void Quit();
  void ShowAbout();
  void LoadTeam(std::string_view toolbar_key);

  /// Hides the grid and SAVE with it, until a team is loaded.
  void HideRoster();

  void ShowIdentity();
  void ShowHint();
  void ShowTeamName(std::string_view display_name) override;
  void PrepareView() override;

  User& user_;
  Editor editor_;
  // From the answer to the first question on, which is asked over the painted window.
  bool takes_commands_ = false;

  QScrollArea* scroll_ = nullptr;
  QWidget* content_ = nullptr;
  TeamToolbar* toolbar_ = nullptr;
  RosterFrame* roster_ = nullptr;
  StancePanel* stances_ = nullptr;
  HelpPane* help_ = nullptr;
  QLabel* identity_ = nullptr;
  QLabel* hint_ = nullptr;
  std::unique_ptr<clsOnTop> on_top_;
};

}  // namespace morlek
