#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "sample_image.h"
#include "shell/main_window.h"
#include "support/scripted_user.h"
#include "support/temp_dir.h"

namespace morlek {

[[nodiscard]] inline QString PathText(const std::filesystem::path& path) {
  return QString::fromStdU16String(path.generic_u16string());
}

/// The real main window over real files, with a scripted user.
class WindowTest : public ::testing::Test {
 protected:
  WindowTest() { PutFile(ImageFile(), Sample()); }

  static const std::vector<std::uint8_t>& Sample() {
    static const std::vector<std::uint8_t> sample = MakeSampleImage();
    return sample;
  }

  [[nodiscard]] std::filesystem::path ImageFile() const { return folder / "game.smc"; }
  [[nodiscard]] QString ImagePath() const { return PathText(ImageFile()); }
  [[nodiscard]] QString PathOf(std::string_view name) const { return PathText(folder / name); }

  /// A new run of the program, its window not yet shown.
  void MakeWindow() {
    window.reset();
    editor = std::make_unique<Editor>(user);
    window = std::make_unique<MainWindow>(*editor, user);
  }

  /// Shows the window and answers its first dialog.
  void Start(const std::optional<QString>& first_answer) {
    user.open_questions.clear();
    user.paths.push_back(first_answer);
    MakeWindow();
    if (screen != nullptr) window->move(screen->geometry().topLeft());
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    ASSERT_TRUE(QTest::qWaitFor([this] { return !user.open_questions.empty(); }));
  }

  void StartWithTeam(const char* key = "Braves") {
    Start(ImagePath());
    Click(key);
  }

  template <typename Widget = QWidget>
  [[nodiscard]] Widget& Find(const QString& name) const {
    auto* widget = window->findChild<Widget*>(name);
    if (widget == nullptr) throw std::invalid_argument("no " + name.toStdString());
    return *widget;
  }

  [[nodiscard]] QLineEdit& Box(int column, int row) const {
    return Find<QLineEdit>(QString("Text%1(%2)").arg(column).arg(row));
  }
  [[nodiscard]] QString LabelText(const QString& name) const { return Find<QLabel>(name).text(); }
  [[nodiscard]] bool IsShown(const QString& name) const { return Find(name).isVisible(); }

  void Click(const QString& name) { QTest::mouseClick(&Find(name), Qt::LeftButton); }
  /// Lets go of the button as well, which the toolkit's own double-click leaves held down.
  static void DoubleClick(QWidget& widget, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseDClick(&widget, button);
    QTest::mouseRelease(&widget, button);
  }
  void Choose(const QString& menu_item) { Find<QAction>(menu_item).trigger(); }
  /// Chooses a menu item and answers its dialog.
  void ChooseWith(const QString& menu_item, const std::optional<QString>& answer) {
    user.paths.push_back(answer);
    Choose(menu_item);
  }
  void CloseHelp() { DoubleClick(*Find<QPlainTextEdit>("Text15").viewport()); }

  /// Presses a key where the focus is.
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* focused = QApplication::focusWidget();
    QTest::keyClick(focused == nullptr ? window.get() : focused, key, modifiers);
  }
  [[nodiscard]] static QString Focused() { return QApplication::focusWidget()->objectName(); }

  /// Clicks a box, which selects its text if it had no focus yet, and types over it.
  void TypeInto(int column, int row, const QString& text) {
    QLineEdit& box = Box(column, row);
    if (box.hasFocus()) box.selectAll();
    if (!box.hasFocus()) QTest::mouseClick(&box, Qt::LeftButton);
    QTest::keyClicks(&box, text);
  }

  /// Goes to a box and pastes a text by its key.
  void PasteInto(int column, int row, const QString& text) {
    QApplication::clipboard()->setText(text);
    Box(column, row).setFocus();
    Press(Qt::Key_V, Qt::ControlModifier);
  }

  /// The path of a new team file in which all 25 players have one name.
  [[nodiscard]] QString TeamFile(const QString& player) const {
    PutFile(folder / "team.TXT", (player + ",\r\n").repeated(25).toStdString());
    return PathOf("team.TXT");
  }

  /// All 350 texts.
  [[nodiscard]] std::vector<QString> GridTexts() const {
    std::vector<QString> texts;
    for (int row = 0; row < 25; ++row) {
      for (int column = 1; column <= 14; ++column) texts.push_back(Box(column, row).text());
    }
    return texts;
  }

  TempDir folder;
  ScriptedUser user;
  std::unique_ptr<Editor> editor;
  QScreen* screen = nullptr;  // null for the first
  std::unique_ptr<MainWindow> window;
};

}  // namespace morlek
