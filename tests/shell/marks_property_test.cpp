#include <sys/resource.h>

#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QToolTip>
#include <csignal>

#include "image/team_directory.h"
#include "shell/eye.h"
#include "shell/random_window.h"
#include "shell/tip_grammar.h"

namespace morlek {
namespace {

constexpr int kRecordBytes = 800;

/// While it lives, the system refuses every write to a file from this 1-based position on.
class RefusedWrites {
 public:
  explicit RefusedWrites(int position) {
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &before_);
    rlimit limit = before_;
    limit.rlim_cur = static_cast<rlim_t>(position - 1);
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~RefusedWrites() { setrlimit(RLIMIT_FSIZE, &before_); }
  RefusedWrites(const RefusedWrites&) = delete;
  RefusedWrites& operator=(const RefusedWrites&) = delete;

 private:
  rlimit before_ = {};
};

/// What a person reads in a tip: what could be taken for marked-up text is protected.
QString PlainTextOf(const QString& tip) {
  return Qt::mightBeRichText(tip) ? QTextDocumentFragment::fromHtml(tip).toPlainText() : tip;
}

/// What the window says of every box before SAVE, beside what a load shows after it.
class MarksPropertyTest : public RandomWindowTest {
 protected:
  void StartRandomRound(int seed);
  void TakeRandomStep();

  void ReadEveryMark();
  void LookAtEveryMark() const;
  void WalkByKeys();

  void SaveAndLoad();
  void SaveIntoAnotherRecord();
  void SaveWithRefusedWrites();
  void LoadAlone();

  bool is_odd = false;  // some bytes of the team are known to no decoder

 private:
  void Load() {
    Click(team);
    held = Shown();
    EXPECT_TRUE(IsShown("Frame1"));
  }
  [[nodiscard]] int Position(int offset) const {
    return FindTeam(team.toStdString())->base + offset;
  }
  void ExpectWhatWasSaid() const;

  /// The text without what makes no difference to the image.
  static QString Essence(int place, QString text) {
    if (IsFeature(place)) text.remove(QRegularExpression("^0+(?=.)"));
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
    if (tips[place].is_unkept()) return tips[place].after;
    return texts[place] == held[place] ? held[place] : Essence(place, texts[place]);
  }
  /// Shown by more than one byte, of which SAVE may store a part.
  static bool HasSeveralBytes(int place) {
    const int column = ColumnOf(place);
    return column == 1 || column == 9 || (column == 4 && RowOf(place) >= kBatters);
  }
  [[nodiscard]] std::string Where(int place) const {
    return boxes[place]->objectName().toStdString() + " \"" + texts[place].toStdString() + "\" \"" +
           boxes[place]->toolTip().toStdString() + "\"";
  }

  QString team;
  QImage calm_save;  // the button without its dot
  Texts held;        // what the image holds now
  // As last read.
  Texts texts;
  QList<SpokenTip> tips;
};

void MarksPropertyTest::StartRandomRound(int seed) {
  team = QString::fromUtf8(
      kTeamDirectory.at(static_cast<std::size_t>(seed) % kTeamDirectory.size()).key.data());
  std::vector<std::uint8_t> image = Sample();
  is_odd = seed % 2 == 0;
  for (int count = is_odd ? 1 + dice.Below(8) : 0; count > 0; --count) {
    // Above all in the first row, where nothing is kept yet that could be shown instead.
    const int row = dice.OneIn(2) ? 0 : dice.Below(kRows);
    const int offset = dice.Below(32);
    const bool is_rating = offset == 11 || offset == 12;
    const int byte = is_rating       ? 16 * dice.Below(10) + (dice.OneIn(2) ? 9 : dice.Below(10))
                     : dice.OneIn(4) ? 0x36
                                     : dice.Below(256);
    image.at(static_cast<std::size_t>(Position(32 * row + offset) - 1)) =
        static_cast<std::uint8_t>(byte);
    Note(QString("byte %1 of row %2 is %3").arg(offset).arg(row).arg(byte));
  }
  StartRound(team.toUtf8(), image);
  held = Shown();
  Find("Command1").setFocus();
  calm_save = Seen(Find("Command1"));
}

void MarksPropertyTest::TakeRandomStep() {
  const int place = dice.Below(kCells);
  const int column = ColumnOf(place);
  switch (dice.Below(16)) {
    case 0: {
      const int feature = RowOf(place) * kColumns + 11 + dice.Below(3);
      Note("pick into " + boxes[feature]->objectName() + " " + PickInto(feature));
      break;
    }
    case 1: {
      const QString block = RandomBlock(column);
      Note("paste at " + boxes[place]->objectName() + " " + block);
      PasteInto(column, RowOf(place), block);
      break;
    }
    case 2: {
      if (!dice.OneIn(4)) break;
      const bool is_short = dice.OneIn(2);
      Note(is_short ? "import of a short file" : "import");
      ChooseWith("mnuImport", RandomTeamFile(is_short));
      EXPECT_EQ(ReadSummary(Find("labelStatus").accessibleDescription()).is_file_open, is_short);
      if (is_short && dice.OneIn(2)) {
        // SAVE writes nothing then, but frees the file.
        Press(Qt::Key_S, Qt::ControlModifier);
      } else {
        ChooseWith("mnuOpen", std::nullopt);
      }
      break;
    }
    case 3:
    case 4:
      Note("undo and redo");
      for (int times = 1 + dice.Below(4); times > 0; --times) {
        Press(Qt::Key_Z, Qt::ControlModifier);
        if (dice.OneIn(3)) Press(Qt::Key_Y, Qt::ControlModifier);
      }
      break;
    case 5:
      Note("SAVE without an image file");
      std::filesystem::rename(ImageFile(), folder / "away.smc");
      Press(Qt::Key_S, Qt::ControlModifier);
      std::filesystem::rename(folder / "away.smc", ImageFile());
      break;
    case 6:
      Note("SAVE");
      ReadEveryMark();
      Press(Qt::Key_S, Qt::ControlModifier);
      for (int each = 0; each < kCells; ++each) held[each] = Said(each);
      break;
    default: {
      const QString text = dice.OneIn(6) ? held[place].toLower() : RandomText(column);
      Note("type into " + boxes[place]->objectName() + " " + text);
      TypeInto(column, RowOf(place), text);
      if (text.isEmpty()) Press(Qt::Key_Delete);
    }
  }
}

void MarksPropertyTest::ReadEveryMark() {
  texts = Shown();
  tips.clear();
  QString too_long;
  SpokenSummary counted;
  for (int place = 0; place < kCells; ++place) {
    const QString tip = boxes[place]->accessibleDescription();
    tips.push_back(ReadTip(tip));
    const SpokenTip& said = tips.back();
    EXPECT_EQ(PlainTextOf(boxes[place]->toolTip()), tip) << Where(place);

    const bool is_name = ColumnOf(place) == 1;
    if (is_name && too_long.isEmpty() && texts[place].size() > 10) {
      too_long = boxes[place]->accessibleName().section(", ", 1);
      EXPECT_TRUE(said.save == SpokenTip::Save::kEnds || !said.is_unkept()) << Where(place);
    } else if (said.is_unkept()) {
      EXPECT_EQ(said.save == SpokenTip::Save::kNotReached, !too_long.isEmpty()) << Where(place);
      EXPECT_EQ(said.too_long, too_long) << Where(place);
      EXPECT_NE(said.save, SpokenTip::Save::kEnds) << Where(place);
      const QString verb = is_name ? "then holds" : "keeps";
      EXPECT_EQ(said.verb, too_long.isEmpty() ? QString() : verb) << Where(place);
    }
    // Nothing that is lost goes unmarked, and nothing is marked that stays.
    const bool is_untouched = texts[place] == held[place];
    if (said.is_unkept()) {
      EXPECT_FALSE(is_untouched ? said.after == texts[place]
                                : IsSame(place, said.after, texts[place]))
          << Where(place);
    }
    const bool is_told = said.is_unkept() && said.after == held[place];
    if (said.save == SpokenTip::Save::kStores) {
      EXPECT_EQ(said.is_held_already, is_told) << Where(place) << held[place].toStdString();
    }
    EXPECT_EQ(said.held, IsUnsaved(place) && !is_told ? std::optional(held[place]) : std::nullopt)
        << Where(place) << " holds " << held[place].toStdString();
    counted.unsaved += IsUnsaved(place) ? 1 : 0;
    counted.unkept += said.is_unkept() ? 1 : 0;
  }
  const auto& foot = Find<QLabel>("labelStatus");
  const SpokenSummary summary = ReadSummary(foot.accessibleDescription());
  EXPECT_EQ(summary.unsaved, counted.unsaved);
  EXPECT_EQ(summary.unkept, counted.unkept);
  EXPECT_FALSE(summary.is_file_open);
  const QString tail = foot.accessibleDescription().mid(QString("game.smc").size());
  EXPECT_TRUE(foot.text().endsWith(tail) && foot.text().size() > tail.size());
  EXPECT_EQ(Find("Command1").accessibleDescription(), tail.mid(3));
}

void MarksPropertyTest::LookAtEveryMark() const {
  constexpr QColor kRed(0xd3, 0x2f, 0x2f);
  constexpr QColor kBlue(0x1f, 0x5f, 0xd0);
  Find("Command1").setFocus();
  const QImage all = Seen(*window);
  const auto part = [&](const QWidget& widget, const QRect& inside) {
    return all.copy(inside.translated(widget.mapTo(window.get(), QPoint(0, 0))));
  };
  bool is_any_unsaved = false;
  for (int place = 0; place < kCells; ++place) {
    const QLineEdit& box = *boxes[place];
    const int red = CountOf(part(box, QRect(box.width() - 8, 0, 8, 9)), kRed);
    EXPECT_TRUE(tips[place].is_unkept() ? red >= 12 : red == 0) << red << Where(place);
    is_any_unsaved |= IsUnsaved(place);
    if (texts[place].trimmed().isEmpty()) continue;
    const int blue = CountOf(part(box, box.rect().adjusted(2, 2, -2, -2)), kBlue, 60);
    EXPECT_EQ(blue > 0, IsUnsaved(place)) << blue << Where(place);
  }
  EXPECT_EQ(part(Find("Command1"), Find("Command1").rect()) != calm_save, is_any_unsaved);
}

void MarksPropertyTest::WalkByKeys() {
  std::vector<int> marked;
  for (int place = 0; place < kCells; ++place) {
    if (tips[place].is_unkept()) marked.push_back(place);
  }
  const auto where = [this](int place) { return std::pair(RowOf(place), boxes[place]->x()); };
  std::ranges::sort(marked, {}, where);
  const bool backwards = dice.OneIn(2);
  if (backwards) std::ranges::reverse(marked);
  const auto press = [&] { Press(Qt::Key_F8, backwards ? Qt::ShiftModifier : Qt::NoModifier); };
  if (dice.OneIn(2)) {
    const int from = dice.Below(kCells);
    boxes[from]->setFocus();
    // Those behind the box come first.
    const auto next = std::ranges::find_if(marked, [&](int place) {
      return backwards ? where(place) < where(from) : where(place) > where(from);
    });
    std::ranges::rotate(marked, next);
  } else {
    Find("Command1").setFocus();
  }
  if (marked.empty()) {
    const QString before = Focused();
    press();
    EXPECT_EQ(Focused(), before);
    return;
  }
  marked.push_back(marked.front());
  for (const int place : marked) {
    press();
    ASSERT_EQ(Focused(), boxes[place]->objectName()) << (backwards ? "backwards" : "forwards");
    ASSERT_EQ(QToolTip::text(), boxes[place]->toolTip()) << "who comes by keys has no pointer";
  }
  QToolTip::hideText();
}

void MarksPropertyTest::ExpectWhatWasSaid() const {
  for (int place = 0; place < kCells; ++place) {
    EXPECT_EQ(boxes[place]->text(), Said(place)) << boxes[place]->objectName().toStdString();
  }
}

void MarksPropertyTest::SaveAndLoad() {
  Note("SAVE and load");
  Press(Qt::Key_S, Qt::ControlModifier);
  Click(team);
  ExpectWhatWasSaid();
  held = Shown();
}

/// What SAVE skips is as another program has left it in the meantime.
void MarksPropertyTest::SaveIntoAnotherRecord() {
  Note("SAVE into another record");
  const QString other = team == "Twins" ? "Expos" : "Twins";
  const auto record = Sample().begin() + FindTeam(other.toStdString())->base - 1;
  std::vector<std::uint8_t> image = Sample();
  std::copy(record, record + kRecordBytes, image.begin() + Position(0) - 1);
  PutFile(ImageFile(), image);
  Press(Qt::Key_S, Qt::ControlModifier);
  Click(team);
  const Texts now = Shown();
  PutFile(ImageFile(), image);
  Click(team);
  const Texts skipped = Shown();
  for (int place = 0; place < kCells; ++place) {
    const SpokenTip& said = tips[place];
    if (!said.is_unkept() || (HasSeveralBytes(place) && said.save != SpokenTip::Save::kSkips)) {
      continue;
    }
    const bool is_stored = said.save == SpokenTip::Save::kStores;
    EXPECT_EQ(now[place], is_stored ? said.after : skipped[place])
        << boxes[place]->objectName().toStdString() << " said of " << texts[place].toStdString();
  }
  PutFile(ImageFile(), Sample());
  Load();
}

/// Only what the image has taken whole counts as saved.
void MarksPropertyTest::SaveWithRefusedWrites() {
  const int offset = dice.Below(kRecordBytes);
  Note(QString("SAVE refused from byte %1 on").arg(offset));
  {
    const RefusedWrites refused(Position(offset));
    Press(Qt::Key_S, Qt::ControlModifier);
  }
  LoadAlone();
}

/// What the image is said to hold is what a load shows.
void MarksPropertyTest::LoadAlone() {
  Note("load");
  const Texts before = Shown();
  QList<SpokenTip> said;
  for (const QLineEdit* box : boxes) said.push_back(ReadTip(box->accessibleDescription()));
  Load();
  for (int place = 0; place < kCells; ++place) {
    if (said[place].held) {
      EXPECT_TRUE(*said[place].held == held[place] || HasSeveralBytes(place))
          << Where(place) << held[place].toStdString();
    } else {
      EXPECT_TRUE(IsSame(place, before[place], held[place]) ||
                  (said[place].is_unkept() && said[place].after == held[place]))
          << boxes[place]->objectName().toStdString() << " " << before[place].toStdString()
          << " counted as saved, but " << held[place].toStdString();
    }
  }
}

TEST_F(MarksPropertyTest, TellTheTruth) {
  constexpr int kRounds = 6;
  constexpr int kSteps = 50;
  Repeat(kRounds, [this](int seed) {
    StartRandomRound(seed);
    for (int step = 0; step < kSteps && !HasFailure(); ++step) {
      TakeRandomStep();
      ReadEveryMark();
      if (!dice.OneIn(5) || HasFailure()) continue;
      if (dice.OneIn(2)) LookAtEveryMark();
      if (dice.OneIn(2)) WalkByKeys();
      // A decoder that does not know a byte shows something else at each load.
      switch (is_odd ? 3 : dice.Below(6)) {
        case 0:
          SaveIntoAnotherRecord();
          break;
        case 1:
          SaveWithRefusedWrites();
          break;
        case 2:
          LoadAlone();
          break;
        default:
          SaveAndLoad();
      }
    }
  });
}

}  // namespace
}  // namespace morlek
