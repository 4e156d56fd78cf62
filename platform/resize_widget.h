// SPDX-License-Identifier: GPL-2.0-or-later
// Keeps a screen's widgets where the artwork expects them at any size: each child is laid
// out in a fixed design size and scaled with the screen, fonts included.
#pragma once

#include <QObject>
#include <QPoint>
#include <QRect>
#include <QSize>

#include <map>

class QWidget;

namespace platform {

class ReSize : public QObject {
 public:
  // Stretch follows the screen's size on each axis; KeepShape scales both axes alike, to the
  // smaller of the two, and centres the design in the screen.
  enum class Fit { Stretch, KeepShape };

  // `design` is the size the positions given to place() are measured in.
  ReSize(QWidget* screen, QSize design, Fit fit = Fit::Stretch);

  void place(QWidget* child, QRect designRect, int designPointSize = 0);
  // Applies the current scale to every placed child.
  void apply();
  double scaleX() const;
  double scaleY() const;
  // Where the design's top left corner lies in the screen.
  QPoint origin() const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Placement {
    QRect rect;
    int pointSize;
  };
  QWidget* screen_;
  QSize design_;
  Fit fit_;
  std::map<QWidget*, Placement> placements_;
};

}  // namespace platform
