#include "shell/main_window.h"

#include <QApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QScreen>
#include <QScrollBar>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "shell/content_area.h"
#include "shell/help_pane.h"
#include "shell/hint_label.h"
#include "shell/identity_label.h"
#include "shell/mark_text.h"
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

constexpr char kFileLeftOpen[] = "a file is still open and blocks SAVE (Ctrl+O, Cancel)";
constexpr int kNarrowWidth = 6705;
constexpr int kWideWidth = 9990;
constexpr int kHintBottom = 560;  // above the middle, in logical pixels
constexpr int kRowMargin = 24;    // what stays in view around a box, likewise

std::optional<std::filesystem::path> ToPath(const std::optional<QString>& path) {
  if (!path) return std::nullopt;
  return QFileInfo(*path).filesystemFilePath();
}

}  // namespace

MainWindow::MainWindow(Editor& editor, User& user)
    : editor_(editor), user_(user), menus_(new MenuBar(this)) {
  setObjectName("Form1");
  setWindowTitle(kProgramTitle);
  setAccessibleName(kProgramTitle);
  setMenuBar(menus_);
  connect(menus_, &MenuBar::Chosen, this, &MainWindow::Run);
  BuildContent();
  SetContentWidth(kNarrowWidth);
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
  connect(toolbar_, &TeamToolbar::TeamPicked, this, &MainWindow::LoadTeam);

  identity_->raise();
}

void MainWindow::AddRoster() {
  roster_ = new RosterFrame(editor_.document(), content_);
  roster_->stackUnder(identity_);
  status_->raise();
  roster_->hide();
  connect(roster_, &RosterFrame::SaveRequested, this, [this] {
    // A button that is hidden or behind a dialog can still be pressed by an assistive tool.
    if (roster_->isVisible() && IsListening()) editor_.Save(*this);
  });

  connect(roster_, &RosterFrame::BlockPasted, this,
          [this](Cell cell, const std::string& block) { editor_.PasteBlock(cell, block); });

  stances_ = new StancePanel(editor_.document(), content_);
  // Who cannot reach the grid cannot pick into it either.
  connect(roster_, &RosterFrame::ReachChanged, stances_, &QWidget::setEnabled);
  connect(stances_, &StancePanel::Picked, roster_, &RosterFrame::SelectForTyping);
  stances_->stackUnder(identity_);
  stances_->show();
  connect(roster_, &RosterFrame::CellVisited, this, [this](Cell cell) {
    // On a screen with less room than the window needs.
    area_->ensureWidgetVisible(QApplication::focusWidget(), 0, kRowMargin);
    if (!IsFeature(cell.column)) return;
    stances_->Choose(cell);
    SetContentWidth(kWideWidth);
    roster_->ShowStanceRow(cell.row);
  });
  subscription_ = editor_.document().Subscribe([this](const GridChange&) { RefreshMarks(); });
  setAcceptDrops(true);
}

void MainWindow::SetContentWidth(int twips) {
  if (roster_ != nullptr && twips == kNarrowWidth) roster_->ShowStanceRow(std::nullopt);
  if (const QWindow* window = windowHandle()) {
    SetWindowBackground(*window, palette().color(QPalette::Window));
  }
  area_->SetContentWidth(twips);
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
      editor_.OpenAnotherImage(ToPath(AskForImage(user_)), *this);
      break;
    case Command::kQuit:
      if (AskToQuit(user_)) close();
      break;
    case Command::kAbout:
      TellAboutProgram(user_);
      break;
    case Command::kImport:
      editor_.ImportTeam(ToPath(AskForTeamToImport(user_)));
      break;
    case Command::kExport:
      ExportTeam();
      break;
    case Command::kMinimizeFeatures:
      SetContentWidth(kNarrowWidth);
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
  EndStep();
}

void MainWindow::OpenFirstImage() {
  // Only now is it known how much the system's borders take.
  FitToScreen();
  const std::optional<QString> path = AskForImage(user_);
  AddRoster();
  editor_.OpenFirstImage(ToPath(path), *this);
  EndStep();
}

void MainWindow::ExportTeam() {
  const std::optional<QString> path = AskWhereToExport(user_);
  if (editor_.ExportTeam(ToPath(path))) TellOfExport(user_, *path);
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

void MainWindow::LoadTeam(std::string_view toolbar_key) {
  // A load that finds a file open fails, tells of it and closes it.
  if (std::exchange(is_file_left_open_, false)) RefreshMarks();
  editor_.LoadTeam(toolbar_key, *this);
  // New texts have no selection; typing is to replace the value, as after a visit.
  roster_->BeginVisit();
  toolbar_->ShowPicked(roster_->isVisible());
  EndStep();
}

void MainWindow::EndStep() {
  is_file_left_open_ = editor_.IsFileOpen();
  RefreshMarks();
}

void MainWindow::RefreshMarks() {
  const GridMarks marks = editor_.Marks();
  roster_->ShowMarks(marks);
  if (!editor_.IsFileOpen()) is_file_left_open_ = false;
  const QString summary = is_file_left_open_ ? QString(kFileLeftOpen) : SummaryOf(marks);
  const std::u16string path = editor_.image_path().u16string();
  status_->ShowImage(QString::fromStdU16String(path), roster_->isVisible() ? summary : QString());
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
  QTimer::singleShot(0, this, [this, path] {
    editor_.TakeFile(*ToPath(path), *this);
    EndStep();
  });
}

void MainWindow::HideRoster() {
  // A hidden widget that kept the focus would go on taking keys.
  QWidget* focused = focusWidget();
  if (focused != nullptr && roster_->isAncestorOf(focused)) focused->clearFocus();
  roster_->hide();
  toolbar_->ShowPicked(false);
  hint_->AskForTeam();
}

void MainWindow::ShowIdentity(std::string_view byte_text) { identity_->ShowByte(byte_text); }

void MainWindow::ShowToolbar() {
  toolbar_->show();
  toolbar_->Restart();
  hint_->AskForTeam();
}

void MainWindow::ShowNarrow() { SetContentWidth(kNarrowWidth); }

void MainWindow::ShowTeamName(std::string_view display_name) {
  roster_->SetTeamName(display_name);
  stances_->ShowTeam(display_name);
}

void MainWindow::PrepareView() {
  toolbar_->show();
  hint_->hide();
  roster_->show();
  SetContentWidth(kNarrowWidth);
}

}  // namespace morlek
