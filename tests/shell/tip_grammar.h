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

}  // namespace morlek
