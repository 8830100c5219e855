#pragma once

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QString>
#include <optional>

namespace morlek {

/// What the tip of a box says, word by word: of every sentence that may stand there.
struct SpokenTip {
  QString all;
  enum class Save { kKeeps, kStores, kSkips, kEnds, kNotReached };
  Save save = Save::kKeeps;
  // What a load after SAVE shows, unless SAVE keeps the text.
  QString after;
  bool is_held_already = false;
  // "batter 7", whose name ends SAVE before this box, and what the image does with the text.
  QString too_long;
  QString verb;
  // What the image holds now, where that is told.
  std::optional<QString> held;

  [[nodiscard]] bool is_lossy() const { return save != Save::kKeeps; }
};

/// Reads a text that a load has shown, as a tip quotes it.
inline QString Unquoted(const QString& quoted) {
  return quoted == "an empty box" ? QString() : quoted;
}

/// Understands a tip to the last letter. A sentence that it does not know fails the test.
inline SpokenTip ReadTip(const QString& tip) {
  if (tip.isEmpty()) return {};
  static const QRegularExpression grammar([] {
    const QString text("(an empty box|[0-9A-Zc.<>]+)");
    const QString player("((?:batter ([1-9]|1[0-5])|pitcher ([1-9]|10)))");
    return R"(\A(?:SAVE (?:stores )" + text + "(; the image holds that already)?" +
           "|skips this; the image keeps " + text +
           "|ends here, because this name is too long; the image then holds " + text +
           "|does not reach this, because the name of " + player +
           " is too long; the image (keeps|then holds) " + text + "))?" +
           R"((\n|\z)(?:Not saved yet; the image holds )" + text + R"()?\z)";
  }());
  const QRegularExpressionMatch match = grammar.match(tip.startsWith("Not") ? "\n" + tip : tip);
  EXPECT_TRUE(match.hasMatch() && tip[0] != '\n') << "no such sentence: " << tip.toStdString();
  SpokenTip spoken;
  spoken.all = tip;
  const auto say = [&](SpokenTip::Save save, int group) {
    if (match.captured(group).isEmpty()) return;
    spoken.save = save;
    spoken.after = Unquoted(match.captured(group));
  };
  say(SpokenTip::Save::kStores, 1);
  spoken.is_held_already = !match.captured(2).isEmpty();
  say(SpokenTip::Save::kSkips, 3);
  say(SpokenTip::Save::kEnds, 4);
  spoken.too_long = match.captured(5);
  spoken.verb = match.captured(8);
  say(SpokenTip::Save::kNotReached, 9);
  if (!match.captured(11).isEmpty()) spoken.held = Unquoted(match.captured(11));
  EXPECT_EQ(spoken.held.has_value(), match.captured(10) == "\n") << tip.toStdString();
  return spoken;
}

/// What the line at the foot says behind the name of the image.
struct SpokenSummary {
  int unsaved = 0;
  int lossy = 0;
  bool is_file_open = false;

  friend bool operator==(const SpokenSummary&, const SpokenSummary&) = default;
};

/// The line without what it says of the last step.
inline QString WithoutNote(QString line) {
  static const QRegularExpression note(QString::fromUtf8(
      R"( · (?:[A-Z][A-Za-z ]+: (?:1 change|(?:[2-9]|[1-9]\d+) changes) not saved, Ctrl\+Z goes back)"
      R"(|\d+ changes? stored(?:, \d+ refused by the disk)?|\d+ refused by the disk)"
      R"(|\d+ of 25 lines read|\d+ cells? found no place))"));
  return line.remove(note);
}

/// Understands the line to the last letter, one and many included.
inline SpokenSummary ReadSummary(const QString& line) {
  static const QRegularExpression grammar(QString::fromUtf8(
      R"(\Agame\.smc(?:( · a file is still open and blocks SAVE \(Ctrl\+O, Cancel\)))"
      R"(|(?: · (?:(1) change|([2-9]|[1-9]\d+) changes) not saved)?)"
      R"((?: · SAVE will not keep (?:(1) cell|([2-9]|[1-9]\d+) cells) \(F8\))?)\z)"));
  const QRegularExpressionMatch match = grammar.match(WithoutNote(line));
  EXPECT_TRUE(match.hasMatch()) << "no such line: " << line.toStdString();
  return {.unsaved = (match.captured(2) + match.captured(3)).toInt(),
          .lossy = (match.captured(4) + match.captured(5)).toInt(),
          .is_file_open = !match.captured(1).isEmpty()};
}

}  // namespace morlek
