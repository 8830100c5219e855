#include <QToolTip>

#include "image/team_directory.h"
#include "shell/random_window.h"
#include "shell/tip_grammar.h"

namespace morlek {
namespace {

constexpr int kRecordBytes = 800;
constexpr int kSlotBytes = 32;

/// What the window says of every box before SAVE, beside what a load shows after it.
class MarksPropertyTest : public RandomWindowTest {
 protected:
  void StartRandomRound(int seed);
  void TakeRandomStep();

  void ReadEveryMark();
  void WalkByKeys();

  void SaveAndLoad();
  void SaveIntoAnotherRecord();
  void SaveWithRefusedWrites();
  void LoadAlone();
  void LookRoundAndLoad();

  void Save();
  [[nodiscard]] std::ptrdiff_t Place(const QString& key, int offset = 0) const {
    return FindTeam(key.toStdString())->base - 1 + offset;
  }

  /// The text without what makes no difference to the image.
  static QString Essence(int place, QString text) {
    while (IsFeature(place) && text.size() > 1 && text[0] == '0') text.remove(0, 1);
    return text.toUpper();
  }
  static bool IsSame(int place, const QString& one, const QString& other) {
    return one == other || Essence(place, one) == Essence(place, other);
  }
  [[nodiscard]] bool IsUnsaved(int place) const {
    return !IsSame(place, texts[place], held[place]);
  }
  /// What a load after SAVE shows by what is said.
  [[nodiscard]] QString Said(int place) const {
    if (tips[place].is_lossy()) return tips[place].after;
    return texts[place] == held[place] ? held[place] : Essence(place, texts[place]);
  }
  /// Shown by more than one byte, of which the image may have taken a part.
  static bool HasSeveralBytes(int place) {
    const int column = ColumnOf(place);
    return column == 1 || column == 9 || (column == 4 && RowOf(place) >= kBatters);
  }
  [[nodiscard]] std::string Where(int place) const {
    return QString("%1 with [%2] over [%3]: %4")
        .arg(boxes[place]->objectName(), texts[place], held[place], tips[place].all)
        .toStdString();
  }

  QString team;
  bool is_odd = false;  // some bytes of the team are known to no decoder
  Texts held;           // what the image holds now
  // As last read.
  Texts texts;
  QList<SpokenTip> tips;
};

void MarksPropertyTest::StartRandomRound(int seed) {
  const auto number = static_cast<std::size_t>(seed) % kTeamDirectory.size();
  team = QString::fromStdString(std::string(kTeamDirectory.at(number).key));
  std::vector<std::uint8_t> image = Sample();
  is_odd = seed % 2 == 0;
  for (int count = is_odd ? 1 + dice.Below(8) : 0; count > 0; --count) {
    // Above all the position and the side of the first row, before which nothing has been shown,
    // and the small letter that SAVE makes a capital.
    const int kind = dice.Below(4);
    const int offset = kind < 2    ? 9 + 4 * kind
                       : kind == 2 ? kSlotBytes * dice.Below(kRows) + 2
                                   : dice.Below(kRecordBytes);
    const bool is_rating = offset % kSlotBytes == 11 || offset % kSlotBytes == 12;
    const int byte = kind == 2 ? 0x36 : is_rating ? 16 * dice.Below(10) + 9 : dice.Below(256);
    image.at(static_cast<std::size_t>(Place(team, offset))) = static_cast<std::uint8_t>(byte);
    Note(QString("byte %1 is %2").arg(offset).arg(byte));
  }
  StartRound(ImagePath(), image);
  Click(team);
  held = Shown();
}

void MarksPropertyTest::TakeRandomStep() {
  const int place = RandomPlace();
  switch (dice.Below(14)) {
    case 0:
      PickInto(RowOf(place) * kColumns + 11 + dice.Below(3));
      break;
    case 1:
      PasteRandomBlock(place);
      break;
    case 2:
      if (!dice.OneIn(4)) break;
      if (ImportRandomFile()) {
        EXPECT_TRUE(ReadSummary(Find("labelStatus").accessibleDescription()).is_file_open);
        // SAVE stores nothing then, but frees the file as well.
        if (dice.OneIn(2)) Save();
        ChooseWith("mnuOpen", std::nullopt);
      }
      break;
    case 3:
      Note("undo and redo");
      for (int times = 1 + dice.Below(4); times > 0; --times) {
        Press(Qt::Key_Z, Qt::ControlModifier);
        if (dice.OneIn(3)) Press(Qt::Key_Y, Qt::ControlModifier);
      }
      break;
    case 4:
      Note("SAVE without an image file");
      std::filesystem::rename(ImageFile(), folder / "away.smc");
      Press(Qt::Key_S, Qt::ControlModifier);
      std::filesystem::rename(folder / "away.smc", ImageFile());
      break;
    case 5:
      ReadEveryMark();
      Save();
      for (int each = 0; each < kCells; ++each) held[each] = Said(each);
      break;
    default: {
      const QString text = dice.OneIn(6) ? held[place].toLower() : RandomText(ColumnOf(place));
      Note("type into " + boxes[place]->objectName() + " " + text);
      TypeInto(ColumnOf(place), RowOf(place), text);
      if (text.isEmpty()) Press(Qt::Key_Delete);
    }
  }
}

/// Every sentence, the counts and what a screen reader is given agree with texts and image.
void MarksPropertyTest::ReadEveryMark() {
  using enum SpokenTip::Save;
  texts = Shown();
  tips.clear();
  QString too_long;
  SpokenSummary counted;
  for (int place = 0; place < kCells; ++place) {
    const SpokenTip said = ReadTip(boxes[place]->toolTip());
    tips << said;
    EXPECT_EQ(boxes[place]->accessibleDescription(), said.all);

    const bool is_name = ColumnOf(place) == 1;
    if (is_name && too_long.isEmpty() && texts[place].size() > 10) {
      too_long = boxes[place]->accessibleName().section(", ", 1);
      EXPECT_TRUE(said.save == kEnds || !said.is_lossy()) << Where(place);
    } else if (said.is_lossy()) {
      EXPECT_EQ(said.save == kNotReached, !too_long.isEmpty()) << Where(place);
      EXPECT_EQ(said.too_long, too_long) << Where(place);
      EXPECT_NE(said.save, kEnds) << Where(place);
      const QString verb = is_name ? "then holds" : "keeps";
      EXPECT_EQ(said.verb, too_long.isEmpty() ? QString() : verb) << Where(place);
    }
    // Nothing is marked that stays.
    const bool is_lost = texts[place] == held[place] ? said.after != texts[place]
                                                     : !IsSame(place, said.after, texts[place]);
    EXPECT_TRUE(is_lost || !said.is_lossy()) << Where(place);
    const bool is_told = said.is_lossy() && said.after == held[place];
    EXPECT_EQ(said.is_held_already, is_told && said.save == kStores) << Where(place);
    EXPECT_EQ(said.held, IsUnsaved(place) && !is_told ? std::optional(held[place]) : std::nullopt)
        << Where(place);
    counted.unsaved += IsUnsaved(place) ? 1 : 0;
    counted.lossy += said.is_lossy() ? 1 : 0;
  }
  const auto& foot = Find<QLabel>("labelStatus");
  EXPECT_EQ(ReadSummary(foot.accessibleDescription()), counted);
  const QString tail = foot.accessibleDescription().mid(QString("game.smc").size());
  const bool is_cut = foot.text().endsWith(QChar(0x2026));
  EXPECT_TRUE(foot.text().endsWith(tail.mid(3)) || is_cut) << foot.text().toStdString();
  EXPECT_EQ(Find("Command1").accessibleDescription(), WithoutNote(tail).mid(3));
}

/// F8 goes round the red corners in the order of the screen, Shift+F8 against it.
void MarksPropertyTest::WalkByKeys() {
  const bool backwards = dice.OneIn(2);
  const auto where = [&](int place) {
    const std::pair there(RowOf(place), boxes[place]->x());
    return backwards ? std::pair(-there.first, -there.second) : there;
  };
  QList<int> marked;
  for (int place = 0; place < kCells; ++place) {
    if (tips[place].is_lossy()) marked << place;
  }
  std::ranges::sort(marked, {}, where);
  Find("Command1").setFocus();
  if (dice.OneIn(2)) {
    const int from = RandomPlace();
    boxes[from]->setFocus();
    const auto behind = std::ranges::upper_bound(marked, where(from), {}, where);
    std::rotate(marked.begin(), behind, marked.end());
  }
  if (!marked.isEmpty()) marked << marked.first();
  const QString before = Focused();
  for (const int place : marked) {
    Press(Qt::Key_F8, backwards ? Qt::ShiftModifier : Qt::NoModifier);
    ASSERT_EQ(Focused(), boxes[place]->objectName()) << (backwards ? "backwards" : "forwards");
    ASSERT_EQ(QToolTip::text(), boxes[place]->toolTip()) << "who comes by keys has no pointer";
  }
  if (!marked.isEmpty()) return;
  Press(Qt::Key_F8);
  EXPECT_EQ(Focused(), before);
}

/// SAVE, behind whose message the foot is up to date already.
void MarksPropertyTest::Save() {
  Note("SAVE");
  const auto& foot = Find<QLabel>("labelStatus");
  QString behind;
  user.while_told = [&] { behind = foot.text(); };
  Press(Qt::Key_S, Qt::ControlModifier);
  user.while_told = {};
  const bool is_told = user.messages.back().text == "Your changes have been saved.";
  EXPECT_EQ(behind, is_told ? foot.text() : behind);
}

void MarksPropertyTest::SaveAndLoad() {
  Save();
  Click(team);
  for (int place = 0; place < kCells; ++place) {
    EXPECT_EQ(boxes[place]->text(), Said(place)) << Where(place);
  }
  held = Shown();
}

/// What SAVE skips is as another program has left it in the meantime; of what it stores in part
/// nothing is said that could be compared.
void MarksPropertyTest::SaveIntoAnotherRecord() {
  // Of what is empty SAVE mostly stores nothing.
  const int row = RowOf(RandomPlace());
  Note(QString("clear half of row %1, and another record").arg(row));
  for (int place = row * kColumns; place < (row + 1) * kColumns; ++place) {
    if (dice.OneIn(2)) boxes[place]->clear();
  }
  ReadEveryMark();
  const QString other = team == "Twins" ? "Expos" : "Twins";
  std::vector<std::uint8_t> image = Sample();
  std::copy_n(Sample().begin() + Place(other), kRecordBytes, image.begin() + Place(team));
  PutFile(ImageFile(), image);
  Save();
  Click(team);
  const Texts now = Shown();
  PutFile(ImageFile(), image);
  Click(team);
  for (int place = 0; place < kCells; ++place) {
    const SpokenTip& said = tips[place];
    const bool is_skipped = said.save == SpokenTip::Save::kSkips;
    if (!said.is_lossy() || (HasSeveralBytes(place) && !is_skipped)) continue;
    const bool is_stored = said.save == SpokenTip::Save::kStores;
    EXPECT_EQ(now[place], is_stored ? said.after : boxes[place]->text()) << Where(place);
  }
  PutFile(ImageFile(), Sample());
  Click(team);
  held = Shown();
}

/// Only what the image has taken whole counts as saved.
void MarksPropertyTest::SaveWithRefusedWrites() {
  const int row = RowOf(RandomPlace());
  const bool is_pitcher = row >= kBatters;
  TypeInto(1, row, dice.OneOf({"Q.ZWYXVUTS", "Z.QXYZ"}));
  TypeInto(4, row, dice.OneOf(is_pitcher ? QStringList{"LS<", "R>"} : QStringList{"L", "S"}));
  TypeInto(9, row, is_pitcher ? dice.OneOf({"5.11", "0.00"}) : dice.OneOf({".511", ".000"}));
  const int halves = is_pitcher ? (dice.OneIn(2) ? 22 + dice.Below(2) : 29) : 25;
  const int byte = dice.OneIn(2) ? 1 + dice.Below(8) : halves;
  const int offset = kSlotBytes * row + byte;
  Note(QString("refused from byte %1 on").arg(offset));
  disk.first_refused = Place(team, offset) + 1;
  Save();
  disk.first_refused = FullDisk::kNone;
  LoadAlone();
}

/// What the image is said to hold is what a load shows.
void MarksPropertyTest::LoadAlone() {
  Note("load");
  texts = Shown();
  tips.clear();
  for (const QLineEdit* box : boxes) tips << ReadTip(box->accessibleDescription());
  Click(team);
  held = Shown();
  for (int place = 0; place < kCells; ++place) {
    const SpokenTip& said = tips[place];
    if (said.held) {
      EXPECT_TRUE(said.held == held[place] || HasSeveralBytes(place)) << Where(place);
    } else {
      EXPECT_TRUE(!IsUnsaved(place) || (said.is_lossy() && said.after == held[place]))
          << "counted as saved: " << Where(place);
    }
  }
}

void MarksPropertyTest::LookRoundAndLoad() {
  if (dice.OneIn(2)) WalkByKeys();
  // A decoder that does not know a byte shows something else at each load.
  const int end = dice.Below(is_odd ? 1 : 6);
  if (end == 0) SaveAndLoad();
  if (end == 1) LoadAlone();
  if (end == 2 || end == 3) SaveWithRefusedWrites();
  if (end > 3) SaveIntoAnotherRecord();
}

TEST_F(MarksPropertyTest, TellTheTruth) {
  constexpr int kRounds = 6;
  constexpr int kSteps = 50;
  Repeat(kRounds, [this](int seed) {
    StartRandomRound(seed);
    for (int step = 0; step < kSteps && !HasFailure(); ++step) {
      TakeRandomStep();
      ReadEveryMark();
      if (dice.OneIn(4) && !HasFailure()) LookRoundAndLoad();
    }
  });
}

}  // namespace
}  // namespace morlek
