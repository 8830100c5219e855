#pragma once

#include <QStringList>
#include <array>
#include <functional>
#include <random>

#include "shell/window_fixture.h"

namespace morlek {

/// Numbers that look random and are the same everywhere for one seed.
class Dice {
 public:
  explicit Dice(int seed) : engine_(static_cast<unsigned>(seed)) {}

  int Below(int count) { return static_cast<int>(engine_() % static_cast<unsigned>(count)); }
  bool OneIn(int count) { return Below(count) == 0; }

  QString OneOf(const QStringList& table) { return table[Below(static_cast<int>(table.size()))]; }

 private:
  std::mt19937 engine_;
};

/// A window in which tests take random steps. MORLEK_TEST_ROUNDS multiplies the rounds.
class RandomWindowTest : public WindowTest {
 protected:
  static constexpr int kColumns = 14;
  static constexpr int kRows = 25;
  static constexpr int kBatters = 15;
  static constexpr int kCells = kColumns * kRows;

  /// All 350 texts, row by row in the order of the arrays' numbers; a place in it stands for a box.
  using Texts = QList<QString>;

  static int ColumnOf(int place) { return place % kColumns + 1; }
  static int RowOf(int place) { return place / kColumns; }
  static bool IsFeature(int place) { return ColumnOf(place) >= 12; }

  /// Runs rounds of their own seeds up to the first that fails, of which it shows the steps.
  void Repeat(int rounds, const std::function<void(int)>& round) {
    const int count = rounds * std::max(qEnvironmentVariableIntValue("MORLEK_TEST_ROUNDS"), 1);
    for (int seed = 1; seed <= count; ++seed) {
      dice = Dice(seed);
      trail.clear();
      round(seed);
      ASSERT_FALSE(HasFailure()) << "round " << seed << ": " << trail.join("; ").toStdString();
    }
  }

  /// Shows a new window over this image and answers its first dialog.
  void StartRound(const std::optional<QString>& answer, const std::vector<std::uint8_t>& image) {
    PutFile(ImageFile(), image);
    Start(answer);
    boxes.clear();
    for (int place = 0; place < kCells; ++place) {
      boxes.push_back(&Box(ColumnOf(place), RowOf(place)));
    }
  }

  [[nodiscard]] Texts Shown() const {
    Texts texts;
    for (const QLineEdit* box : boxes) texts.push_back(box->text());
    return texts;
  }

  static QString Counted(int count, const QString& one, const QString& many) {
    return count == 0 ? QString() : QString::number(count) + " " + (count == 1 ? one : many);
  }
  static QString Changes(int count) {
    return Counted(count, "change not saved", "changes not saved");
  }
  /// What is said of cells with marks.
  static QString Summary(int unsaved, int lossy) {
    QStringList parts = {Changes(unsaved)};
    if (lossy > 0) parts << "SAVE will not keep " + Counted(lossy, "cell", "cells") + " (F8)";
    parts.removeAll("");
    return parts.join(QString::fromUtf8(" · "));
  }

  void Note(const QString& step) { trail << step; }

  /// What a person could put into this column, now and then with a slip.
  QString RandomText(int column) {
    if (dice.OneIn(4)) {
      return dice.OneOf({"",    "",   "",   "",    "ZZ",  "300", "255", "12", ".999", "10",  "0",
                         "007", "00", "-1", "&H5", "1e1", "5 ",  "G",   "x",  "9.99", "199", "8."});
    }
    switch (column) {
      case 1:
        if (dice.OneIn(12)) return "X.ABCDEFGHIJ";
        return dice.OneOf({"J.SMITH", "j.smith", "J.SM1TH", "A.B", "C", "A.BCDEFGHI", "J MCGEE",
                           "J.McGEE", ".", "Q.O'NEIL"});
      case 2:
        return dice.OneOf({"P", "C", "lf", "CF", "3B", "ss", "DH", "OF", "3b "});
      case 4:
        return dice.OneOf({"R", "L", "S", "r", "LS", "R<", "L>", "RS<", "ls>", "R><", "S<"});
      case 9:
        return dice.OneOf({".308", ".000", ".511", ".512", "0.300", "3.45", "5.11", "5.12", "2.5"});
      default:
        if (column >= 12) {
          return dice.OneOf({"0", "4", "13", "57", "F", "ff", "007", "100", "fg", "0a", "A"});
        }
        return QString::number(dice.Below(column < 9 ? 12 : 230));
    }
  }

  /// A box, mostly of a few rows, so that steps meet.
  int RandomPlace() {
    constexpr std::array<int, 4> kOftenRows = {0, 6, 15, 21};
    const int row =
        dice.OneIn(3) ? dice.Below(kRows) : kOftenRows.at(static_cast<std::size_t>(dice.Below(4)));
    return row * kColumns + dice.Below(kColumns);
  }

  /// Pastes some cells with tabs and line breaks between them.
  void PasteRandomBlock(int place) {
    QStringList lines;
    for (int count = 1 + dice.Below(4); count > 0; --count) {
      QStringList fields;
      for (int field = 1 + dice.Below(4); field >= 0; --field) {
        fields << RandomText(dice.OneIn(2) ? ColumnOf(place) : 3);
      }
      lines << fields.join('\t');
    }
    Note("paste at " + boxes[place]->objectName() + " " + lines.join('\n'));
    PasteInto(ColumnOf(place), RowOf(place), lines.join('\n'));
    // An average gets the form of its column.
    if (ColumnOf(place) != 9) {
      EXPECT_EQ(boxes[place]->text(), lines[0].section('\t', 0, 0));
    }
  }

  /// Imports a new team file; true for one that is too short, which is still open then.
  bool ImportRandomFile() {
    const bool is_short = dice.OneIn(2);
    Note(is_short ? "import of a short file" : "import");
    QString content;
    for (int row = is_short ? 20 : 0; row < kRows; ++row) {
      for (int column = 1; column <= kColumns; ++column) {
        content += (dice.OneIn(100) ? QString("4\n2") : RandomText(column)) + ",";
      }
      content += "\r\n";
    }
    PutFile(folder / "random.txt", content.toStdString());
    ChooseWith("mnuImport", PathOf("random.txt"));
    return is_short;
  }

  /// Clicks a features box and then a picture of its chooser, whose code it gives.
  QString PickInto(int place) {
    const int column = ColumnOf(place);
    QTest::mouseClick(boxes[place], Qt::LeftButton);
    // Legs fill the rows of twelve in part.
    const int index = column == 14 ? 12 * dice.Below(3) + dice.Below(2) : dice.Below(48);
    const QString picture = QString("Picture%1(%2)").arg(column - 11).arg(index);
    Note("pick " + picture + " into " + boxes[place]->objectName());
    Click(picture);
    return Find(picture).accessibleName().section(' ', -1);
  }

  Dice dice{0};
  QStringList trail;
  QList<QLineEdit*> boxes;
};

}  // namespace morlek
