// SPDX-License-Identifier: GPL-2.0-or-later
// "RDXCOM.SingleImage": one picture from a file, with an optional colour that is see-through.
#pragma once

#include "platform/mixer/rdx_object.h"

#include <optional>

namespace platform {

// Colours arrive as the game writes them: 0x00BBGGRR.
QRgb rgbFromColorRef(int colorRef);

class SingleImage final : public RdxSource {
  Q_OBJECT

 public:
  explicit SingleImage(QObject* parent = nullptr);

  // Reads a game path; false (and no picture) when the file is missing or unreadable.
  Q_INVOKABLE bool Load(const QString& gamePath);
  Q_INVOKABLE void setTransparencyColor(int colorRef);

  void setImage(const QImage& image);
  const QImage* picture() const override { return shown_.isNull() ? nullptr : &shown_; }

 private:
  void applyKey();

  QImage original_;  // RGB32
  QImage shown_;     // original_, or ARGB32 with the keyed colour cleared
  std::optional<QRgb> key_;
};

}  // namespace platform
