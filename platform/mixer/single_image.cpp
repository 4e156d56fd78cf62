// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/mixer/single_image.h"

#include "platform/files.h"
#include "platform/media/media_log.h"

namespace platform {

QRgb rgbFromColorRef(int colorRef) {
  return qRgb(colorRef & 0xff, (colorRef >> 8) & 0xff, (colorRef >> 16) & 0xff);
}

SingleImage::SingleImage(QObject* parent) : RdxSource(QStringLiteral("RDXCOM.SingleImage"), parent) {}

bool SingleImage::Load(const QString& gamePath) {
  const QImage read(QString::fromStdString(files().resolve(gamePath).string()));
  if (read.isNull()) qCDebug(mediaLog) << "no picture at" << gamePath;
  setImage(read);
  return !read.isNull();
}

void SingleImage::setImage(const QImage& image) {
  original_ = image.isNull() ? QImage() : image.convertToFormat(QImage::Format_RGB32);
  applyKey();
}

void SingleImage::setTransparencyColor(int colorRef) {
  key_ = rgbFromColorRef(colorRef);
  applyKey();
}

void SingleImage::applyKey() {
  if (!key_ || original_.isNull()) {
    shown_ = original_;
    return;
  }
  shown_ = original_.convertToFormat(QImage::Format_ARGB32);
  const QRgb key = *key_ | 0xff000000u;
  for (int y = 0; y < shown_.height(); ++y) {
    auto* row = reinterpret_cast<QRgb*>(shown_.scanLine(y));
    for (int x = 0; x < shown_.width(); ++x)
      if ((row[x] | 0xff000000u) == key) row[x] = 0;
  }
}

}  // namespace platform
