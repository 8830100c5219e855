#include "shell/main_window.h"

#include <QApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QScreen>
#include <QScrollBar>
#include <QTimer>
#include <algorithm>

#include "shell/content_area.h"
#include "shell/help_pane.h"
#include "shell/hint_label.h"
#include "shell/identity_label.h"
#include "shell/menu_bar.h"
#include "shell/questions.h"
#include "shell/roster_frame.h"
#include "shell/stance_panel.h"
#include "shell/status_line.h"
#include "shell/team_toolbar.h"
#include "ui/cls_on_top.h"
#include "ui/dropped_file.h"
#include "ui/toolkit_workarounds.h"
#include "ui/twips.h"

namespace morlek {
namespace {

constexpr int kNarrowWidth = 6705;
constexpr int kWideWidth = 9990;
constexpr int kHintBottom = 560;  // above the middle, in logical pixels
constexpr int kRowMargin = 24;    // what stays in view around a box, likewise

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

MainWindow::~MainWindow() = default;

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Paint) {
    content_->removeEventFilter(this);
    // Only now, and from the event loop: the window is to stand on the screen, and not just its
    // frame, while the dialog is made that asks over it.
    QTimer::singleShot(0, this, &MainWindow::OpenFirstImage);
  }
  return QMainWindow::eventFilter(watched, event);
}

void MainWindow::BuildContent() {
  area_ = new ContentArea(this);
  setCentralWidget(area_);
  content_ = area_->widget();
  content_->installEventFilter(this);

  identity_ = new IdentityLabel(content_);

  hint_ = new HintLabel({0, 0, FromTwips(kNarrowWidth), kHintBottom}, content_);
  connect(hint_, &HintLabel::OpenRequested, this, [this] { Run(Command::kOpen); });

  status_ = new StatusLine(content_);
  area_->KeepInView(status_);
  area_->KeepInView(identity_);

  toolbar_ = new TeamToolbar(content_);
  toolbar_->move(FromTwips(60), 1);
  toolbar_->hide();
  connect(toolbar_, &TeamToolbar::TeamPicked, this, [this](auto key) { editor_.LoadTeam(key); });
  connect(toolbar_, &TeamToolbar::StepRequested, this,
          [this](int places) { editor_.LoadTeamBeside(places); });

  identity_->raise();
}

void MainWindow::AddRoster() {
  roster_ = new RosterFrame(editor_, content_);
  roster_->stackUnder(identity_);
  status_->raise();
  connect(roster_, &RosterFrame::SaveRequested, this, [this] {
    // A button that is hidden or behind a dialog can still be pressed by an assistive tool.
    if (editor_.state().scene.is_grid_shown && IsListening()) editor_.Save();
  });
  connect(roster_, &RosterFrame::CellVisited, this, [this](Cell cell) {
    // On a screen with less room than the window needs.
    area_->ensureWidgetVisible(QApplication::focusWidget(), 0, kRowMargin);
    editor_.Visit(cell);
  });

  stances_ = new StancePanel(content_);
  stances_->stackUnder(identity_);
  connect(stances_, &StancePanel::Picked, this,
          [this](Column feature, const std::string& code) { editor_.Pick(feature, code); });
  stances_->show();

  subscription_ = editor_.Subscribe(
      [this](const EditorState& state, const StateChange& change) { Show(state, change); });
  setAcceptDrops(true);
}

void MainWindow::Show(const EditorState& state, const StateChange& change) {
  identity_->ShowByte(state.identity);
  toolbar_->Show(state);
  hint_->Show(state);
  if (change.layout_set) SetLayout(state.layout);
  roster_->Show(state, change);
  stances_->Show(state);
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
  // What the window has grown by is not to stand beyond the desktop.
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
      OpenAnotherImage();
      break;
    case Command::kQuit:
      if (AskToQuit(user_)) close();
      break;
    case Command::kAbout:
      TellAboutProgram(user_);
      break;
    case Command::kImport:
      ImportTeam();
      break;
    case Command::kExport:
      ExportTeam();
      break;
    case Command::kMinimizeFeatures:
      editor_.Minimize();
      break;
    case Command::kAlwaysOnTop:
      SetAlwaysOnTop(true);
      break;
    case Command::kNotOnTop:
      SetAlwaysOnTop(false);
      break;
    case Command::kHelp:
      OpenHelp();
      break;
  }
}

void MainWindow::OpenFirstImage() {
  // Only now is it known how much the system's borders take.
  FitToScreen();
  const QString path = AskForImage(user_).value_or(QString());
  AddRoster();
  editor_.OpenFirstImage(ToPath(path));
}

void MainWindow::OpenAnotherImage() {
  if (const auto path = AskForImage(user_)) {
    editor_.OpenAnotherImage(ToPath(*path));
  } else {
    editor_.CancelDialog();
  }
}

void MainWindow::ImportTeam() {
  if (const auto path = AskForTeamToImport(user_)) {
    editor_.ImportTeam(ToPath(*path));
  } else {
    editor_.CancelDialog();
  }
}

void MainWindow::ExportTeam() {
  if (const auto path = AskWhereToExport(user_)) {
    if (editor_.ExportTeam(ToPath(*path)) == ExportResult::kWritten) TellOfExport(user_, *path);
  } else {
    editor_.CancelDialog();
  }
}

void MainWindow::SetAlwaysOnTop(bool on_top) {
  if (!on_top_) on_top_ = std::make_unique<clsOnTop>();
  if (on_top) {
    on_top_->MakeTopmost(*windowHandle());
  } else {
    on_top_->MakeNotTopmost(*windowHandle());
  }
  menus_->OfferOnTop(!on_top);
}

void MainWindow::OpenHelp() {
  if (help_ == nullptr) {
    help_ = new HelpPane(content_);
    // What the pane covers is not reached by keys either.
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
  // From the event loop: whoever drops is not to wait for an answer to a message.
  QTimer::singleShot(0, this, [this, path] { editor_.TakeFile(ToPath(*path)); });
}

}  // namespace morlek
