#include <QAbstractButton>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>

#include "image/team_directory.h"
#include "shell/eye.h"
#include "shell/window_fixture.h"

namespace morlek {
namespace {

// What a person reads in the window, as it is to stand there.

constexpr char kMenus[] = R"(
&File
  mnuOpen "&Open Rom" Ctrl+O
  mnuQuit "&Quit" Ctrl+Q
Options
  mnuImport "&Import Team Data" Ctrl+I
  mnuExport "&Export Team Data" Ctrl+E
  mnuMini "&Minimize Player Features" Ctrl+M
  mnuAlwaysOnTop "Always On top" Ctrl+T
  mnuNotTop "Not Always On Top" Ctrl+N
Help
  mnuMorlekHELP "Morlek &Help" Ctrl+H
  mnuAboutMorlek "&About MORLEK EDITOR" Ctrl+A
)";

struct TeamButton {
  const char* tool_tip;
  const char* letters;
  const char* team;
};
// In two rows of fourteen.
constexpr std::array<TeamButton, 28> kTeamButtons = {{
    {"Braves", "ATL", "ATLANTA BRAVES"},
    {"Orioles", "BAL", "BALTIMORE ORIOLES"},
    {"Red Sox", "BOS", "BOSTON RED SOX"},
    {"Angels", "CAL", "CALIFORNIA ANGELS"},
    {"White Sox", "CWS", "CHICAGO WHITE SOX"},
    {"Cubs", "CHC", "CHICAGO CUBS"},
    {"Reds", "CIN", "CINCINNATI REDS"},
    {"Indians", "CLE", "CLEVELAND INDIANS"},
    {"Rockies", "COL", "COLORADO ROCKIES"},
    {"Tigers", "DET", "DETROIT TIGERS"},
    {"Marlins", "FLA", "FLORIDA MARLINS"},
    {"Astros", "HOU", "HOUSTON ASTROS"},
    {"Royals", "KC", "KANSAS CITY ROYALS"},
    {"Dodgers", "LA", "LOS ANGELES DODGERS"},
    {"Brewers", "MIL", "MILWAUKEE BREWERS"},
    {"Twins", "MIN", "MINNESOTA TWINS"},
    {"Expos", "MON", "MONTREAL EXPOS"},
    {"Yankees", "NYY", "NEW YORK YANKEES"},
    {"Mets", "NYM", "NEW YORK METS"},
    {"Athletics", "OAK", "OAKLAND ATHLETICS"},
    {"Phillies", "PHI", "PHILADELPHIA PHILLIES"},
    {"Pirates", "PIT", "PITTSBURGH PIRATES"},
    {"Padres", "SD", "SAN DIEGO PADRES"},
    {"Giants", "SF", "SAN FRANCISCO GIANTS"},
    {"Mariners", "SEA", "SEATTLE MARINERS"},
    {"Cardinals", "STL", "ST. LOUIS CARDINALS"},
    {"Rangers", "TEX", "TEXAS RANGERS"},
    {"Blue Jays", "TOR", "TORONTO BLUE JAYS"},
}};

struct Head {
  int index;
  const char* caption;
  const char* meaning;
  const char* box;  // that stands under it
};
constexpr std::array<Head, 28> kHeads = {{
    {1, "P.NAME", "name", "Text1(0)"},
    {2, "P", "fielding position", "Text2(0)"},
    {3, "#", "uniform number", "Text3(0)"},
    {4, "B", "batting side", "Text4(0)"},
    {5, "Bt", "batting rating", "Text5(0)"},
    {6, "Po", "power rating", "Text6(0)"},
    {7, "Sp", "speed rating", "Text7(0)"},
    {8, "Fd", "fielding rating", "Text8(0)"},
    {9, "AVG", "batting average", "Text9(0)"},
    {10, "HR", "home runs", "Text10(0)"},
    {11, "RBI", "runs batted in", "Text11(0)"},
    {12, "F", "face", "Text12(0)"},
    {13, "Bo", "body", "Text13(0)"},
    {14, "L", "legs", "Text14(0)"},
    {15, "P.NAME", "name", "Text1(15)"},
    {16, "P", "fielding position", "Text2(15)"},
    {17, "#", "uniform number", "Text3(15)"},
    {18, "TH", "throwing hand", "Text4(15)"},
    {19, "ERA", "earned run average", "Text9(15)"},
    {20, "Sp", "speed rating", "Text5(15)"},
    {21, "Co", "control rating", "Text6(15)"},
    {22, "Fa", "fatigue rating", "Text7(15)"},
    {23, "W", "wins", "Text8(15)"},
    {24, "L", "losses", "Text10(15)"},
    {25, "S", "saves", "Text11(15)"},
    {26, "F", "face", "Text12(15)"},
    {27, "Bo", "body", "Text13(15)"},
    {28, "L", "legs", "Text14(15)"},
}};

/// The shape of white letters: where they are white, stretched to one size.
QImage ShapeOf(const QImage& picture) {
  QImage white(picture.size(), QImage::Format_Grayscale8);
  QRect inked;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const bool is_white = picture.pixelColor(x, y) == Qt::white;
      white.setPixelColor(x, y, is_white ? Qt::white : Qt::black);
      if (is_white) inked |= QRect(x, y, 1, 1);
    }
  }
  return white.copy(inked).scaled(120, 60);
}

QImage ShapeOfLetters(const QString& letters) {
  QImage picture(400, 200, QImage::Format_RGB32);
  picture.fill(Qt::black);
  QPainter painter(&picture);
  QFont font = QApplication::font();
  font.setPixelSize(100);
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(Qt::white);
  painter.drawText(picture.rect(), Qt::AlignCenter, letters);
  painter.end();
  return ShapeOf(picture);
}

/// What part of two shapes differs, in hundredths.
int Difference(const QImage& one, const QImage& other) {
  int different = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      if ((qGray(one.pixel(x, y)) > 127) != (qGray(other.pixel(x, y)) > 127)) ++different;
    }
  }
  return 100 * different / (one.width() * one.height());
}

class WindowContentsTest : public WindowTest {};

TEST_F(WindowContentsTest, Menus) {
  Start(std::nullopt);
  QString menus = "\n";
  for (const QAction* entry : window->menuBar()->actions()) {
    menus += entry->text() + "\n";
    for (const QAction* item : entry->menu()->actions()) {
      EXPECT_EQ(item->isEnabled(), item->isVisible());
      menus += QString("  %1 \"%2\" %3\n")
                   .arg(item->objectName(), item->text(), item->shortcut().toString());
    }
  }
  EXPECT_EQ(menus.toStdString(), kMenus);
}

TEST_F(WindowContentsTest, TeamButtons) {
  Start(ImagePath());
  const QWidget& toolbar = Find("Toolbar1");
  for (int place = 0; place < 28; ++place) {
    const auto& [tool_tip, letters, team] = kTeamButtons.at(static_cast<std::size_t>(place));
    const QPoint middle((2 * (place % 14) + 1) * toolbar.width() / 28,
                        (2 * (place / 14) + 1) * toolbar.height() / 4);
    auto* button = qobject_cast<QAbstractButton*>(toolbar.childAt(middle));
    ASSERT_NE(button, nullptr) << tool_tip;
    EXPECT_EQ(button->toolTip(), tool_tip);
    EXPECT_EQ(button->objectName(), tool_tip);
    EXPECT_EQ(button->accessibleName(), team);
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(LabelText("Label4(0)"), team);
    // Without the stripe below the letters, which can be white too.
    const QImage badge = button->icon().pixmap(270, 190).toImage().copy(0, 0, 270, 155);
    EXPECT_LE(Difference(ShapeOf(badge), ShapeOfLetters(letters)), 5) << tool_tip;
  }
}

TEST_F(WindowContentsTest, ColumnHeads) {
  StartWithTeam();
  for (const auto& [index, caption, meaning, box] : kHeads) {
    const auto& head = Find<QLabel>(QString("Label4(%1)").arg(index));
    EXPECT_EQ(head.text(), caption) << index;
    EXPECT_EQ(head.toolTip(), meaning) << index;
    const QWidget* below = Find("Frame1").childAt(head.geometry().center() + QPoint(0, 24));
    ASSERT_NE(below, nullptr) << index;
    EXPECT_EQ(below->objectName(), box) << index;
    EXPECT_EQ(below->accessibleName().section(", ", 0, 0), meaning) << index;
    EXPECT_LE(head.fontMetrics().horizontalAdvance(caption), head.width()) << "cut off: " << index;
  }
}

TEST_F(WindowContentsTest, NamesForAScreenReader) {
  StartWithTeam();
  EXPECT_EQ(Box(3, 0).accessibleName(), "uniform number, batter 1");
  EXPECT_EQ(Box(9, 14).accessibleName(), "batting average, batter 15");
  EXPECT_EQ(Box(9, 15).accessibleName(), "earned run average, pitcher 1");
  EXPECT_EQ(Box(8, 24).accessibleName(), "wins, pitcher 10");
  EXPECT_EQ(Find("Picture1(12)").accessibleName(), "face 1");
  EXPECT_EQ(Find("Picture2(1)").accessibleName(), "body 4");
  EXPECT_EQ(Find("Picture3(13)").accessibleName(), "legs 10");
  EXPECT_EQ(Find("StanceView").accessibleDescription(), Box(1, 0).text());
}

TEST_F(WindowContentsTest, HintsAndTips) {
  Start(std::nullopt);
  EXPECT_EQ(window->windowTitle(), "MORLEK EDITOR");
  EXPECT_EQ(LabelText("labelHint"), "Open a ROM with Ctrl+O");
  EXPECT_TRUE(IsShown("labelHint"));
  EXPECT_EQ(Find("Label3").toolTip(), "identity byte of the last file opened");
  EXPECT_EQ(Find("Label1").toolTip(),
            "This will edit the skin color and facial features of a player but not hair color. "
            "Click to make selection.");
  for (int times = 0; times < 2; ++times) {
    user.paths.emplace_back(ImagePath());
    Choose("mnuOpen");
    EXPECT_EQ(LabelText("labelHint"), "Pick a team above, or press Ctrl+Page Down");
    EXPECT_TRUE(IsShown("labelHint"));
    Click("Cubs");
    EXPECT_FALSE(IsShown("labelHint"));
    EXPECT_EQ(Find<QAbstractButton>("Command1").text(), "SAVE");
  }
}

}  // namespace
}  // namespace morlek
