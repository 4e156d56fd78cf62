// SPDX-License-Identifier: GPL-2.0-or-later
// Makes fake panorama widgets and keeps a handle on each, so a test can drive the panoramas
// of the screen it built.
#pragma once

#include "platform/fakes/panorama_fake_control.h"
#include "platform/panorama/panorama_factory.h"

#include <memory>
#include <vector>

namespace platform {

class FakePanoramaFactory final : public PanoramaFactory {
 public:
  std::unique_ptr<SVControl> create(QWidget* parent) override {
    auto made = std::make_unique<FakeSVControl>(parent);
    created_.push_back(made.get());
    return made;
  }
  // In order of creation; valid while the screen that asked keeps them.
  const std::vector<FakeSVControl*>& created() const { return created_; }

 private:
  std::vector<FakeSVControl*> created_;
};

}  // namespace platform
