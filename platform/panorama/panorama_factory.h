// SPDX-License-Identifier: GPL-2.0-or-later
// Makes panorama widgets for screens; tests put a factory of fakes in its place.
#pragma once

#include "platform/panorama/sv_control.h"
#include "platform/service.h"

#include <memory>

namespace platform {

class PanoramaFactory {
 public:
  virtual ~PanoramaFactory() = default;
  // A panorama widget, a child of `parent`. The caller owns it; deleting it first is safe.
  virtual std::unique_ptr<SVControl> create(QWidget* parent) = 0;
};

class QtPanoramaFactory final : public PanoramaFactory {
 public:
  std::unique_ptr<SVControl> create(QWidget* parent) override;
};

template <>
std::unique_ptr<PanoramaFactory> Service<PanoramaFactory>::makeDefault();

inline std::unique_ptr<SVControl> createPanorama(QWidget* parent) {
  return Service<PanoramaFactory>::get().create(parent);
}

}  // namespace platform
