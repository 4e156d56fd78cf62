// SPDX-License-Identifier: GPL-2.0-or-later
// The base of every object the mixer makes by class name, and of those that hold a picture
// a sprite can show.
#pragma once

#include <QImage>
#include <QObject>
#include <QString>

namespace platform {

class RdxObject : public QObject {
  Q_OBJECT

 public:
  RdxObject(const QString& className, QObject* parent) : QObject(parent), className_(className) {}
  // The name it was created by, "RDXCOM.SingleImage" and so on.
  const QString& className() const { return className_; }

 private:
  QString className_;
};

class RdxSource : public RdxObject {
  Q_OBJECT

 public:
  using RdxObject::RdxObject;
  // The picture to show now, or null; RGB32 is opaque, ARGB32 carries the see-through pixels.
  virtual const QImage* picture() const = 0;
};

}  // namespace platform
