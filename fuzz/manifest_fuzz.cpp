// SPDX-License-Identifier: GPL-2.0-or-later
// Fuzzes the panorama manifest (.svh) reader and its hotspot bounds check.
#include "fuzz_support.h"
#include "platform/panorama/panorama_manifest.h"

#include <variant>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const auto result =
      platform::parseManifest(QString::fromUtf8(fuzzing::bytesOf(data, size)),
                              std::filesystem::temp_directory_path(), QStringLiteral("fuzz.svh"));
  if (const auto* manifest = std::get_if<platform::PanoramaManifest>(&result)) {
    platform::checkHotspotBounds(*manifest, 4096, 1024);
    platform::checkHotspotBounds(*manifest, 1, 1);
  }
  return 0;
}
