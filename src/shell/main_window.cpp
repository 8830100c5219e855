#include "shell/main_window.h"

#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMimeData>
#include <QScreen>
#include <QScrollBar>
#include <QTimer>
#include <algorithm>

#include "shell/code_page_text.h"
#include "shell/content_area.h"
#include "shell/drop_guide.h"
#include "shell/help_pane.h"
#include "shell/hint_label.h"
#include "shell/hint_note.h"
#include "shell/roster_frame.h"
#include "shell/stance_mark.h"
#include "shell/stance_panel.h"
#include "shell/status_line.h"
#include "shell/team_toolbar.h"
#include "ui/cls_on_top.h"
#include "ui/dropped_file.h"
#include "ui/toolkit_workarounds.h"
#include "ui/twips.h"
#include "version.h"

namespace morlek {
namespace {

constexpr int kNarrowWidth = 6705;
constexpr int kWideWidth = 9990;
constexpr int kHintBottom = 560;  // above the middle, in logical pixels
constexpr int kHintNoteHeight = 60;
constexpr int kRowMargin = 24;  // what stays in view around a box, in logical pixels

constexpr char kTeamDataFilter[] = "Morlek Team Data File (*.txt)|*.txt";

/// The path of an image, or nothing when the dialog was cancelled.
std::optional<QString> AskForImage(User& user) {
  return user.AskOpenPath({"Open Dale Harrow Jr. Baseball Rom", "SNES File (*.smc)|*.smc"});
}

std::optional<QString> AskForTeam(User& user) {
  return user.AskOpenPath({"Open Dale Harrow Jr. Baseball Team Data", kTeamDataFilter});
}

void ShowAbout(User& user) {
  const QString text =
      "MORLEK EDITOR for SNES Dale Harrow Baseball.\n"
      "Version %1, free software under the MIT licence; uses Qt under the LGPL version 3.";
  user.ShowMessage(text.arg(kVersion), kProgramTitle, Message::Icon::kNone);
}

std::filesystem::path ToPath(const QString& path) { return QFileInfo(path).filesystemFilePath(); }

}  // namespace

MainWindow::MainWindow(Editor& editor, User& user)
    : editor_(editor), user_(user), menus_(new MenuBar(this)) {
  setObjectName("Form1");
  setWindowTitle(kProgramTitle);
  setAccessibleName(kProgramTitle);
  setMenuBar(menus_);
  connect(menus_, &MenuBar::Chosen, this, &MainWindow::Run);
  BuildContent();
  SetLayout(Layout::kNarrow);
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Paint) {
    content_->removeEventFilter(this);
    // Only now, and from the event loop: the whole window, and not just its frame, should be
    // visible while the dialog that covers it is created.
    QTimer::singleShot(0, this, &MainWindow::OpenFirstImage);
  }
  return QMainWindow::eventFilter(watched, event);
}

void MainWindow::BuildContent() {
  area_ = new ContentArea(this);
  setCentralWidget(area_);
  content_ = area_->widget();
  content_->installEventFilter(this);

  AddIdentity();

  hint_ = new HintLabel({0, 0, FromTwips(kNarrowWidth), kHintBottom}, content_);
  connect(hint_, &HintLabel::OpenRequested, this, [this] { Run(Command::kOpen); });

  hint_note_ = new HintNote({kRowMargin, hint_->geometry().bottom(),
                             FromTwips(kNarrowWidth) - 2 * kRowMargin, kHintNoteHeight},
                            content_);

  status_ = new StatusLine(content_);
  area_->KeepInView(status_);
  area_->KeepInView(identity_);

  toolbar_ = new TeamToolbar(content_);
  toolbar_->move(FromTwips(60), 1);
  toolbar_->hide();
  connect(toolbar_, &TeamToolbar::TeamPicked, this, [this](auto key) { editor_.LoadTeam(key); });
  connect(toolbar_, &TeamToolbar::StepRequested, this,
          [this](int places) { editor_.LoadTeamBeside(places); });
}

void MainWindow::AddIdentity() {
  identity_ = new QLabel(content_);
  identity_->setObjectName("Label3");
  identity_->setAccessibleName("identity byte");
  identity_->setToolTip("identity byte of the last file opened");
  identity_->setGeometry(FromTwips(6060), 635, FromTwips(555), 16);
  identity_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  identity_->setForegroundRole(QPalette::PlaceholderText);
}

void MainWindow::AddRoster() {
  roster_ = new RosterFrame(editor_, content_);
  connect(roster_, &RosterFrame::SaveRequested, this, [this] {
    // A button that is hidden or behind a dialog can still be pressed by an assistive tool.
    if (editor_.state().scene.is_grid_shown && IsListening()) editor_.Save();
  });
  connect(roster_, &RosterFrame::CellVisited, this, [this](Cell cell) {
    // On a screen that is too low for the window.
    area_->ensureWidgetVisible(QApplication::focusWidget(), 0, kRowMargin);
    editor_.Visit(cell);
  });

  stances_ = new StancePanel(content_);
  connect(stances_, &StancePanel::Picked, this,
          [this](Column feature, const std::string& code) { editor_.Pick(feature, code); });
  stances_->show();
  // Both stand over the foot of the grid.
  identity_->raise();
  status_->raise();
  stance_mark_ = new StanceMark(*roster_, content_);

  subscription_ = editor_.Subscribe(
      [this](const EditorState& state, const StateChange& change) { Show(state, change); });
  setAcceptDrops(true);
  new DropGuide(editor_, *area_);
}

void MainWindow::Show(const EditorState& state, const StateChange& change) {
  identity_->setText(FromCodePage(state.identity));
  identity_->setAccessibleDescription(identity_->text());
  toolbar_->Show(state);
  hint_->Show(state);
  hint_note_->Show(state);
  if (change.layout_set) SetLayout(state.layout);
  roster_->Show(state, change);
  stances_->Show(state);
  stance_mark_->Show(state);
  status_->Show(state);
}

void MainWindow::SetLayout(Layout layout) {
  if (const QWindow* window = windowHandle()) {
    SetWindowBackground(*window, palette().color(QPalette::Window));
  }
  area_->SetContentWidth(layout == Layout::kNarrow ? kNarrowWidth : kWideWidth);
  FitToScreen();
}

void MainWindow::FitToScreen() {
  const int menu_height = menus_->sizeHint().height();
  const int borders = frameGeometry().height() - height();
  const int room = screen()->availableGeometry().height() - borders - menu_height;
  setFixedSize(area_->FitInto(room) + QSize(0, menu_height));
  if (!isVisible()) return;
  // The part by which the window has grown must not be beyond the desktop.
  const QRect desktop = screen()->availableVirtualGeometry();
  const int beyond = frameGeometry().right() - desktop.right();
  if (beyond > 0) move(std::max(x() - beyond, desktop.left()), y());
}

bool MainWindow::IsListening() const {
  return roster_ != nullptr && QApplication::activeModalWidget() == nullptr;
}

void MainWindow::Run(Command command) {
  if (!IsListening()) return;
  switch (command) {
    case Command::kOpen:
      if (const auto path = PathIn(AskForImage(user_))) editor_.OpenAnotherImage(*path);
      break;
    case Command::kQuit:
      if (user_.AskYesNo("Are you sure you want to quit MORLEK EDITOR?\n\nIf not then click NO.",
                         kProgramTitle)) {
        close();
      }
      break;
    case Command::kAbout:
      ShowAbout(user_);
      break;
    case Command::kImport:
      if (const auto path = PathIn(AskForTeam(user_))) editor_.ImportTeam(*path);
      break;
    case Command::kExport:
      ExportTeam();
      break;
    case Command::kMinimizeFeatures:
      editor_.Minimize();
      break;
    case Command::kAlwaysOnTop:
    case Command::kNotOnTop:
      SetAlwaysOnTop(command == Command::kAlwaysOnTop);
      break;
    case Command::kHelp:
      OpenHelp();
      break;
  }
}

void MainWindow::OpenFirstImage() {
  // The size of the system's borders is known only now.
  FitToScreen();
  const QString path = AskForImage(user_).value_or(QString());
  AddRoster();
  editor_.OpenFirstImage(ToPath(path));
}

std::optional<std::filesystem::path> MainWindow::PathIn(const std::optional<QString>& answer) {
  if (answer) return ToPath(*answer);
  editor_.CancelDialog();
  return std::nullopt;
}

void MainWindow::ExportTeam() {
  const auto answer =
      user_.AskSavePath({"Save Dale Harrow Jr. Baseball Team Data", kTeamDataFilter});
  const auto path = PathIn(answer);
  if (!path || editor_.ExportTeam(*path) != ExportResult::kWritten) return;
  user_.ShowMessage("Your team data has been saved to " + QDir::toNativeSeparators(*answer),
                    kProgramTitle, Message::Icon::kNone);
}

void MainWindow::SetAlwaysOnTop(bool on_top) {
  const auto set = on_top ? clsOnTop::MakeTopmost : clsOnTop::MakeNotTopmost;
  set(*windowHandle());
  menus_->OfferOnTop(!on_top);
}

void MainWindow::OpenHelp() {
  if (help_ == nullptr) {
    help_ = new HelpPane(content_);
    // Keys must not reach what the pane covers.
    connect(help_, &HelpPane::Covered, toolbar_, &QWidget::setDisabled);
    connect(help_, &HelpPane::Covered, roster_, &QWidget::setDisabled);
    connect(help_, &HelpPane::LineReached, this,
            [this](int middle) { area_->ensureVisible(0, middle, 0, kRowMargin); });
  }
  area_->verticalScrollBar()->setValue(0);
  help_->Open();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (!IsListening() || !DroppedFile(*event->mimeData())) return;
  if (!(event->possibleActions() & Qt::CopyAction)) return;
  // Never as a move, after which the other program would delete the file.
  event->setDropAction(Qt::CopyAction);
  event->accept();
}

void MainWindow::dropEvent(QDropEvent* event) {
  const std::optional<QString> path = DroppedFile(*event->mimeData());
  if (!path) return;
  event->setDropAction(Qt::CopyAction);
  event->accept();
  // From the event loop, so that the other program does not wait until a message is answered.
  QTimer::singleShot(0, this, [this, path] { editor_.TakeFile(ToPath(*path)); });
}

}  // namespace morlek
