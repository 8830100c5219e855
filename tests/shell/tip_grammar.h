#pragma once

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QString>
#include <QTextDocumentFragment>
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
  // "Bt and Po share a byte, and Po is not 1 to 9": the four parts in this order.
  QStringList shared;
  // "Character 4 is no letter that the game has".
  QString fault;
  // "Bt takes 1 to 10".
  QString head;
  QString takes;
  // What the image holds now, where that is told.
  std::optional<QString> held;

  [[nodiscard]] bool is_lossy() const { return save != Save::kKeeps; }
  /// Whether another cell is to blame.
  [[nodiscard]] bool is_consequence() const {
    return save == Save::kNotReached || !shared.isEmpty();
  }
};

/// Reads a text that a load has shown, as a tip quotes it.
inline QString Unquoted(const QString& quoted) {
  return quoted == "an empty box" ? QString() : quoted;
}

/// What a person sees of a tip.
inline QString ShownTip(const QString& tip) {
  return Qt::mightBeRichText(tip) ? QTextDocumentFragment::fromHtml(tip).toPlainText() : tip;
}

/// Understands a tip to the last letter. A sentence that it does not know fails the test.
inline SpokenTip ReadTip(const QString& tip) {
  if (tip.isEmpty()) return {};
  static const QRegularExpression grammar([] {
    const QString text("an empty box|[0-9A-Zc.<>]+");
    const QString player("(?:batter (?:[1-9]|1[0-5])|pitcher (?:[1-9]|10))");
    return R"(\A(?:SAVE (?:stores (?<stores>)" + text +
           ")(?<already>; the image holds that already)?|skips this; the image keeps (?<skips>" +
           text + ")|ends here, because this name is too long; the image then holds (?<ends>" +
           text + ")|does not reach this, because the name of (?<player>" + player +
           ") is too long; the image (?<verb>keeps|then holds) (?<unreached>" + text + "))" +
           R"((?:\n(?<one>\w+) and (?<other>\w+) share a byte, )"
           R"(and (?<bad>\w+) is not (?<not>.+))?)"
           R"((?:\n(?<fault>Character \d+ is no letter that the game has|No initial stands )"
           R"(before the period|No period follows the initial|A second period stands in )"
           R"(the name))?)"
           R"((?:\n(?<head>[\w.#]+) takes (?<takes>.+))?)?)"
           R"((?<end>\n|\z)(?:Not saved yet; the image holds (?<held>)" +
           text + R"())?\z)";
  }());
  const QRegularExpressionMatch match = grammar.match(tip.startsWith("Not") ? "\n" + tip : tip);
  EXPECT_TRUE(match.hasMatch() && tip[0] != '\n') << "no such sentence: " << tip.toStdString();
  SpokenTip spoken;
  spoken.all = tip;
  const auto say = [&](SpokenTip::Save save, const QString& group) {
    if (match.captured(group).isEmpty()) return;
    spoken.save = save;
    spoken.after = Unquoted(match.captured(group));
  };
  say(SpokenTip::Save::kStores, "stores");
  spoken.is_held_already = !match.captured("already").isEmpty();
  say(SpokenTip::Save::kSkips, "skips");
  say(SpokenTip::Save::kEnds, "ends");
  spoken.too_long = match.captured("player");
  spoken.verb = match.captured("verb");
  say(SpokenTip::Save::kNotReached, "unreached");
  for (const char* group : {"one", "other", "bad", "not"}) spoken.shared << match.captured(group);
  if (spoken.shared[0].isEmpty()) spoken.shared.clear();
  spoken.fault = match.captured("fault");
  spoken.head = match.captured("head");
  spoken.takes = match.captured("takes");
  if (match.hasCaptured("held")) spoken.held = Unquoted(match.captured("held"));
  EXPECT_EQ(spoken.held.has_value(), match.captured("end") == "\n") << tip.toStdString();
  return spoken;
}

}  // namespace morlek
