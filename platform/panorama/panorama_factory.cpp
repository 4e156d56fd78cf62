// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/panorama/panorama_factory.h"

#include "platform/panorama/panorama_widget.h"

namespace platform {

std::unique_ptr<SVControl> QtPanoramaFactory::create(QWidget* parent) {
  return std::make_unique<PanoramaWidget>(parent);
}

template <>
std::unique_ptr<PanoramaFactory> Service<PanoramaFactory>::makeDefault() {
  return std::make_unique<QtPanoramaFactory>();
}

}  // namespace platform
