#pragma once

#include <QAction>
#include <optional>
#include <utility>

#include "shell/one_truth.h"

namespace morlek {

/// What came into a box key by key, or picture by picture, in one visit.
enum class Way { kTyping, kLeafing };

/// Undo and redo beside a plain list of the place and the texts that each step must lead to.
class WayBack : public OneTruth {
 protected:
  struct State {
    Texts texts;
    QString team;
    QString image;
    bool is_shown = true;

    friend bool operator==(const State&, const State&) = default;
  };

  void Begin() {
    states = {CurrentState()};
    now = 0;
    EndVisit();
    entry_text = FocusedText();
    copied.reset();
    QApplication::clipboard()->clear();
  }

  [[nodiscard]] State CurrentState() const {
    const QString foot = Find("labelStatus").accessibleDescription();
    return {Shown(), LabelText("Label4(0)"), foot.section(' ', 0, 0), IsShown("Frame1")};
  }

  /// Another team is a step, and the same one is when it changes a text; so is another image, and
  /// a load that fails.
  void GoElsewhereAtRandom();

  void TakeRandomStep();
  void GoBackAndForth(int most, bool backwards);
  void ExpectFocusOfTheStep(std::size_t from, const QWidget* before);

  /// The window and the list agree.
  void ExpectState() const {
    EXPECT_TRUE(CurrentState() == states[now]) << LabelText("Label4(0)").toStdString();
    ExpectTruth();
  }

  [[nodiscard]] QLineEdit* FocusedBox() const {
    return qobject_cast<QLineEdit*>(QApplication::focusWidget());
  }
  [[nodiscard]] QString FocusedText() const {
    return FocusedBox() == nullptr ? QString() : FocusedBox()->text();
  }
  [[nodiscard]] int FocusedPlace() const {
    return static_cast<int>(std::ranges::find(boxes, FocusedBox()) - boxes.begin());
  }

  void EndVisit() { visit.reset(); }

  /// A step of its own, unless it has changed nothing.
  bool AddState(const State& state) {
    EndVisit();
    if (state == states[now]) return false;
    states.resize(now + 1);
    states.push_back(state);
    ++now;
    return true;
  }
  bool AddStep(const Texts& texts) {
    return AddState({texts, states[now].team, states[now].image});
  }

  /// A key has turned the text of the box with the focus into this one.
  void AddVisit(int place, const QString& text, Way way = Way::kTyping) {
    Texts texts = states[now].texts;
    if (texts[place] == text) return;
    texts[place] = text;
    if (visit == std::pair(place, way)) states.resize(now--);
    if (AddStep(texts)) visit = {place, way};
  }

  void Enter(int place);
  void TypeAtRandom();
  [[nodiscard]] QString NextPicture(int place, bool is_down) const;
  void LeafAtRandom(int place);
  void CommandPlayer(int place);
  void WalkByKeys();
  void TryTheOtherCell();
  void ExpectWholeTextIsNew(int place, const QString& before) const;

  struct Copied {
    bool is_batter;
    Texts texts;
  };
  [[nodiscard]] Copied PlayerIn(int row) const {
    return {row < kBatters, states[now].texts.mid(row * kColumns, kColumns)};
  }
  static void PutPlayer(Texts& texts, int row, const Copied& player) {
    for (int place = row * kColumns; place < (row + 1) * kColumns; ++place) {
      const int column = ColumnOf(place);
      const bool have_both = player.is_batter == (row < kBatters) || column <= 3 || column >= 12;
      if (have_both) texts[place] = player.texts[column - 1];
    }
  }

  std::vector<State> states;
  std::size_t now = 0;
  // What made the last step in a box and goes on, and what Escape gives back to the box with the
  // focus.
  std::optional<std::pair<int, Way>> visit;
  QString entry_text;
  // The player in the clipboard.
  std::optional<Copied> copied;
};

}  // namespace morlek
