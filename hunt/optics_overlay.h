// SPDX-License-Identifier: GPL-2.0-or-later
// The binoculars' or rangefinder's frame drawn over the magnified view. The picture is opaque;
// its see-through part is the colour at its centre, which is keyed out.
#pragma once

#include <QPixmap>
#include <QString>
#include <QWidget>

class OpticsOverlay : public QWidget {
  Q_OBJECT

 public:
  explicit OpticsOverlay(QWidget* parent = nullptr);
  // A missing picture shows nothing.
  void setPicturePath(const QString& gamePath);
  const QString& picturePath() const { return path_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString path_;
  QPixmap frame_;
};
