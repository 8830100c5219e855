#include <QDialog>
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
    place = Find(over).mapTo(window.get(), QPoint(9, 9));
    QDragEnterEvent enter(place, actions, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window->windowHandle(), &enter);
    QDragMoveEvent move(place, actions, &data, Qt::LeftButton, Qt::NoModifier);
    move.setAccepted(enter.isAccepted());
    QApplication::sendEvent(window->windowHandle(), &move);
    return move.isAccepted();
  }
  /// Drags files there and lets go of them; true when they are taken, and as a copy.
  bool Drop(const QList<QUrl>& files, Qt::DropActions actions = Qt::CopyAction,
            const char* over = "Label4(0)") {
    if (!Drag(files, actions, over)) return false;
    // Which asks for a move.
    QDropEvent drop(place, actions, &data, Qt::LeftButton, Qt::ShiftModifier);
    QApplication::sendEvent(window->windowHandle(), &drop);
    QCoreApplication::processEvents();
    return drop.isAccepted() && drop.dropAction() == Qt::CopyAction;
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
  QPoint place;
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
  EXPECT_TRUE(Drop({team}, Qt::CopyAction, "Text1(0)"));
  EXPECT_EQ(Box(1, 24).text(), "D.ROP");
  Click("Cardinals");
  TypeInto(3, 14, "77");
  Drag({image});
  EXPECT_EQ(Said(), "Open this image; 1 change stays behind Ctrl+Z");
  TypeInto(3, 15, "77");
  Drag({image});
  EXPECT_EQ(Said(), "Open this image; 2 changes stay behind Ctrl+Z");
  EXPECT_TRUE(IsShown("Frame1")) << "not before the drop";

  EXPECT_TRUE(Drop({image}, Qt::CopyAction | Qt::MoveAction));
  EXPECT_EQ(Said(), "");
  EXPECT_FALSE(IsShown("Frame1"));
  EXPECT_TRUE(user.messages.empty());
}

TEST_F(DropGuideTest, SaysWhyAThingIsNotTakenAndLeavesItAlone) {
  const QUrl image = Url(ImagePath());
  StartWithTeam();
  EXPECT_FALSE(Drag({QUrl("https://example.org/game.smc")}));
  {
    QDialog question;  // as one of the editor's own stands over the window
    question.setModal(true);
    question.show();
    EXPECT_FALSE(Drag({image}));
  }
  EXPECT_FALSE(Drag({image, image}));
  EXPECT_EQ(Said(), "Not taken: one file at a time");
  EXPECT_FALSE(Drag({Url(PathOf("."))}));
  EXPECT_EQ(Said(), "Not taken: not a file");
  EXPECT_FALSE(Drag({image}, Qt::MoveAction));
  EXPECT_EQ(Said(), "Not taken: only copies are");
  EXPECT_EQ(Seen(*window).pixelColor(3, 300), theme::kLight.lossy_mark) << "the frame";
  Leave();
  const EditorState& state = editor->state();
  EXPECT_TRUE(state.scene.is_grid_shown && state.marks.modified_count() == 0);

  // Nor does a box take the paths as a text, but an address from elsewhere it does.
  EXPECT_FALSE(Drag({image, image}, Qt::CopyAction, "Text3(2)"));
  EXPECT_EQ(Said(), "Not taken: one file at a time");
  EXPECT_TRUE(Drag({QUrl("https://example.org")}, Qt::CopyAction, "Text3(2)"));
  EXPECT_EQ(Said(), "");
  Leave();

  // A team file that ends early stays open.
  PutFile(folder / "short.txt", std::string("A.B,P,\r\n"));
  ChooseWith("mnuImport", PathOf("short.txt"));
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
  }
  ChooseWith("mnuOpen", ImagePath());
  ChooseWith("mnuOpen", PathOf("gone.smc"));
  EXPECT_FALSE(IsShown("labelHintNote")) << "an image is there";
}

}  // namespace
}  // namespace morlek
