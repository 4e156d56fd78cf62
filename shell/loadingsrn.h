// SPDX-License-Identifier: GPL-2.0-or-later
// The loading screen: a still picture shown while the hunting screen loads.
#pragma once

#include <QWidget>

namespace platform {
class PictureBox;
}

class Loadingsrn : public QWidget {
  Q_OBJECT

 public:
  Loadingsrn();
  void Form_Load();

  platform::PictureBox* Picture;

 protected:
  void resizeEvent(QResizeEvent* event) override;
};
