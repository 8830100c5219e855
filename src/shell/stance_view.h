#pragma once

#include <QWidget>

#include "art/stance_figure.h"

namespace morlek {

/// A picture of one player put together from his face, body and legs, with his name.
class StanceView : public QWidget {
  Q_OBJECT

 public:
  explicit StanceView(QWidget* parent);

  /// Shows a player; a code without a picture leaves its piece blank.
  void ShowPlayer(const QString& name, const StanceCodes& codes);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString name_;
  StanceCodes codes_;
};

}  // namespace morlek
