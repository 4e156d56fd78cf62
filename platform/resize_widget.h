// SPDX-License-Identifier: GPL-2.0-or-later
// Keeps a screen's widgets where the artwork expects them at any size: each child is laid
// out in a fixed design size and scaled with the screen, fonts included.
#pragma once

#include <QObject>
#include <QRect>
#include <QSize>

#include <map>

class QWidget;

namespace platform {

class ReSize : public QObject {
 public:
  // `design` is the size the positions given to place() are measured in.
  ReSize(QWidget* screen, QSize design);

  void place(QWidget* child, QRect designRect, int designPointSize = 0);
  // Applies the current scale to every placed child.
  void apply();
  double scaleX() const;
  double scaleY() const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Placement {
    QRect rect;
    int pointSize;
  };
  QWidget* screen_;
  QSize design_;
  std::map<QWidget*, Placement> placements_;
};

}  // namespace platform
