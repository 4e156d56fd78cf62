// SPDX-License-Identifier: GPL-2.0-or-later
// A picture that scales to its box and reports clicks, as the screens' picture widgets do.
#pragma once

#include <QLabel>

#include <functional>

namespace platform {

class PictureBox : public QLabel {
 public:
  explicit PictureBox(QWidget* parent = nullptr);
  // Shows the picture at `gamePath`; a missing one leaves the box empty.
  void setPicturePath(const QString& gamePath);
  const QString& picturePath() const { return path_; }
  void onClick(std::function<void()> handler) { click_ = std::move(handler); }
  // A full-screen picture keeps its shape: scaled to fit, centred between dark bars.
  void setKeepShape(bool keep);
  // Where the picture is drawn inside the box.
  QRect pictureRect() const;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QString path_;
  bool keepShape_ = false;
  std::function<void()> click_;
};

}  // namespace platform
