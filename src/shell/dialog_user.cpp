#include "shell/dialog_user.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QHeaderView>
#include <QMessageBox>
#include <QTreeView>

#include "ui/toolkit_workarounds.h"

namespace morlek {

DialogUser::DialogUser() { KeepNoSettings(); }

namespace {

/// A box without an icon has more room to the left of its text than to the right, and is as wide as
/// its text, so that a short text truncates the title.
void EvenOut(QMessageBox& box) {
  constexpr int kWidth = 260;
  constexpr int kMargin = 18;
  auto* layout = qobject_cast<QGridLayout*>(box.layout());
  if (layout == nullptr) return;
  if (box.icon() == QMessageBox::NoIcon) {
    QLayoutItem* indent = layout->itemAtPosition(0, 0);
    if (indent != nullptr && indent->spacerItem() != nullptr) {
      indent->spacerItem()->changeSize(0, 0, QSizePolicy::Fixed, QSizePolicy::Fixed);
    }
    layout->setHorizontalSpacing(0);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  }
  const int text_column = layout->columnCount() - 1;
  layout->setColumnStretch(text_column, 1);
  layout->addItem(new QSpacerItem(kWidth, 0), layout->rowCount(), text_column);
}

/// The toolkit's own dialog, where the system has none, truncates sizes and dates although it has
/// room.
void FitColumns(const QFileDialog& dialog) {
  const auto* details = dialog.findChild<QTreeView*>("treeView");
  if (details == nullptr) return;
  QHeaderView& header = *details->header();
  header.setStretchLastSection(false);
  header.setSectionResizeMode(QHeaderView::ResizeToContents);
  header.setSectionResizeMode(0, QHeaderView::Stretch);
}

}  // namespace

std::optional<QString> DialogUser::Ask(QFileDialog::AcceptMode mode, const FileQuestion& question) {
  QFileDialog dialog(window_);
  dialog.setAcceptMode(mode);
  if (mode == QFileDialog::AcceptSave) {
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setLabelText(QFileDialog::LookIn, "Save in:");
  }
  dialog.setObjectName("CommonDialog1");
  dialog.setWindowTitle(question.title);
  dialog.setNameFilter(question.filter.section('|', 0, 0));
  const auto folder = folders_.find(question.filter);
  dialog.setDirectory(folder == folders_.end() ? last_folder_ : folder->second);
  FitColumns(dialog);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  const QString path = dialog.selectedFiles().value(0);
  last_folder_ = QFileInfo(path).absolutePath();
  folders_[question.filter] = last_folder_;
  return path;
}

bool DialogUser::AskYesNo(const QString& text, const QString& title) {
  QMessageBox box(QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No, window_);
  box.setDefaultButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

void DialogUser::ShowMessage(const QString& text, const QString& title, Message::Icon icon) {
  const auto shown = icon == Message::Icon::kCritical ? QMessageBox::Critical : QMessageBox::NoIcon;
  QMessageBox box(shown, title, text, QMessageBox::Ok, window_);
  box.setTextFormat(Qt::PlainText);
  EvenOut(box);
  box.exec();
}

}  // namespace morlek
