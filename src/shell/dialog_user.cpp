#include "shell/dialog_user.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QHeaderView>
#include <QMessageBox>
#include <QSettings>
#include <QTreeView>

namespace morlek {

DialogUser::DialogUser() {
  // The toolkit's file dialog writes the folders that it showed to a settings file of its own; the
  // program keeps nothing between runs. Below this path no file can be.
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/dev/null");
}

namespace {

/// A box is as wide as its text by itself, and a short one then cuts its title.
void MakeRoomForTitle(QMessageBox& box) {
  constexpr int kWidth = 260;
  auto* layout = qobject_cast<QGridLayout*>(box.layout());
  if (layout == nullptr) return;
  layout->addItem(new QSpacerItem(kWidth, 0), layout->rowCount(), 0, 1, layout->columnCount());
}

/// The toolkit's own dialog, where the system has none, cuts sizes and dates although it has room.
void FitColumns(const QFileDialog& dialog) {
  const auto* details = dialog.findChild<QTreeView*>("treeView");
  if (details == nullptr) return;
  QHeaderView& header = *details->header();
  header.setStretchLastSection(false);
  header.setSectionResizeMode(QHeaderView::ResizeToContents);
  header.setSectionResizeMode(0, QHeaderView::Stretch);
}

}  // namespace

std::optional<QString> DialogUser::AskOpenPath(const FileQuestion& question) {
  QFileDialog dialog(window_);
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  // Whether the file can be opened is found out by opening it.
  dialog.setFileMode(QFileDialog::AnyFile);
  return Ask(dialog, question);
}

std::optional<QString> DialogUser::AskSavePath(const FileQuestion& question) {
  QFileDialog dialog(window_);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  return Ask(dialog, question);
}

std::optional<QString> DialogUser::Ask(QFileDialog& dialog, const FileQuestion& question) {
  dialog.setObjectName("CommonDialog1");
  dialog.setWindowTitle(question.title);
  dialog.setNameFilter(question.filter.section('|', 0, 0));
  dialog.setDirectory(folder_);
  FitColumns(dialog);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  const QString path = dialog.selectedFiles().value(0);
  folder_ = QFileInfo(path).absolutePath();
  return path;
}

bool DialogUser::AskYesNo(const QString& text, const QString& title) {
  QMessageBox box(QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No, window_);
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

void DialogUser::ShowMessage(const QString& text, const QString& title, Message::Icon icon) {
  const auto shown = icon == Message::Icon::kCritical ? QMessageBox::Critical : QMessageBox::NoIcon;
  QMessageBox box(shown, title, text, QMessageBox::Ok, window_);
  box.setTextFormat(Qt::PlainText);
  MakeRoomForTitle(box);
  box.exec();
}

}  // namespace morlek
