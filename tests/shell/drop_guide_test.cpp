#include <QDropEvent>
#include <QMimeData>
#include <QWindow>

#include "shell/eye.h"
#include "shell/window_fixture.h"
#include "ui/theme.h"

namespace morlek {
namespace {

class DropGuideTest : public WindowTest {
 protected:
  /// Drags files over a part of the window, as the desktop does; true when they would be taken.
  bool Drag(const QList<QUrl>& files, Qt::DropActions actions = Qt::CopyAction,
            const char* over = "Label4(0)") {
    data.setUrls(files);
    data.setText("their paths");
    const QPoint place = Find(over).mapTo(window.get(), QPoint(9, 9));
    QDragEnterEvent enter(place, actions, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window->windowHandle(), &enter);
    QDragMoveEvent move(place, actions, &data, Qt::LeftButton, Qt::NoModifier);
    move.setAccepted(enter.isAccepted());
    QApplication::sendEvent(window->windowHandle(), &move);
    return move.isAccepted();
  }
  void Leave() {
    QDragLeaveEvent leave;
    QApplication::sendEvent(window->windowHandle(), &leave);
  }
  /// What the window says; nothing when it says nothing.
  [[nodiscard]] QString Said() const {
    const QWidget& guide = Find("labelDrop");
    return guide.isVisible() ? guide.accessibleDescription() : QString();
  }
  static QUrl Url(const QString& path) { return QUrl::fromLocalFile(path); }

  QMimeData data;
};

TEST_F(DropGuideTest, SaysWhatADropWillDoAndThenDoesIt) {
  const QUrl image = Url(ImagePath());
  const QUrl team = Url(TeamFile("D.ROP"));
  Start(std::nullopt);
  user.messages.clear();
  EXPECT_TRUE(Drag({team}));
  EXPECT_EQ(Said(), "Import into the grid");
  EXPECT_TRUE(Drag({image}));
  EXPECT_EQ(Said(), "Open this image");
  Leave();
  EXPECT_EQ(Said(), "");

  ChooseWith("mnuOpen", ImagePath());
  Click("Cardinals");
  Drag({team});
  EXPECT_EQ(Said(), "Import into St. Louis Cardinals");
  TypeInto(3, 14, "77");
  Drag({image});
  EXPECT_EQ(Said(), "Open this image; 1 change stays behind Ctrl+Z");
  TypeInto(3, 15, "77");
  Drag({image});
  EXPECT_EQ(Said(), "Open this image; 2 changes stay behind Ctrl+Z");
  EXPECT_EQ(CountOf(Seen(*window).copy(0, 100, 4, 500), theme::kLight.accent), 2000) << "the frame";
  EXPECT_TRUE(IsShown("Frame1")) << "not before the drop";

  QDropEvent drop(window->rect().center(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(window->windowHandle(), &drop);
  EXPECT_EQ(Said(), "");
  QCoreApplication::processEvents();
  EXPECT_FALSE(IsShown("Frame1"));
}

TEST_F(DropGuideTest, SaysWhyAThingIsNotTakenAndLeavesItAlone) {
  StartWithTeam();
  const QUrl image = Url(ImagePath());
  EXPECT_FALSE(Drag({image, image}));
  EXPECT_EQ(Said(), "Not taken: one file at a time");
  EXPECT_FALSE(Drag({Url(PathOf("."))}));
  EXPECT_EQ(Said(), "Not taken: not a file");
  EXPECT_FALSE(Drag({image}, Qt::MoveAction));
  EXPECT_EQ(Said(), "Not taken: only copies are");
  Leave();
  const EditorState& state = editor->state();
  EXPECT_TRUE(state.scene.is_grid_shown && state.marks.modified_count() == 0);

  // Nor does a box take the paths as a text, but an address from elsewhere it does.
  EXPECT_FALSE(Drag({image, image}, Qt::CopyAction, "Text3(2)"));
  EXPECT_EQ(Said(), "Not taken: one file at a time");
  EXPECT_TRUE(Drag({QUrl("https://example.org")}, Qt::CopyAction, "Text3(2)"));
  EXPECT_EQ(Said(), "");
  Leave();

  // An export whose file cannot be written to the end stays open.
  disk.first_refused = 1;
  ChooseWith("mnuExport", PathOf("full.txt"));
  Drag({image});
  EXPECT_EQ(Said(), "Nothing can be opened: a file is still open (Ctrl+O, Cancel)");
}

TEST_F(DropGuideTest, TheEmptyWindowAsksForADropAndSaysWhatWentWrong) {
  Start(std::nullopt);
  user.messages.clear();
  EXPECT_EQ(LabelText("labelHintNote"), "or drop it here");
  PutFile(folder / "other.smc", std::vector<std::uint8_t>(Sample().size()));
  for (const auto& [name, reason] : {std::pair("other.smc", " is not this game's image."),
                                     {"gone.smc", " could not be opened."}}) {
    ChooseWith("mnuOpen", PathOf(name));
    ChooseWith("mnuOpen", std::nullopt);
    EXPECT_EQ(LabelText("labelHintNote"), QString("or drop it here\n\n") + name + reason);
    EXPECT_EQ(LabelText("labelHint"), "Open a ROM with Ctrl+O");
  }
  const QImage note = Seen(Find("labelHintNote"));
  EXPECT_GE(ContrastIn(note.copy(0, 28, note.width(), 28)), 4.5);
  ChooseWith("mnuOpen", ImagePath());
  ChooseWith("mnuOpen", PathOf("gone.smc"));
  EXPECT_TRUE(IsShown("labelHint"));
  EXPECT_FALSE(IsShown("labelHintNote")) << "an image is there";
}

}  // namespace
}  // namespace morlek
