// SPDX-License-Identifier: GPL-2.0-or-later
// worldgen: writes the sample world into a folder, or lists the media files it refers to.
#include "tools/worldgen/animal_photos.h"
#include "tools/worldgen/content.h"
#include "tools/worldgen/media_refs.h"
#include "tools/worldgen/terminal_progress.h"
#include "tools/worldgen/world_writer.h"

#include <QGuiApplication>
#include <QStringList>

#include <cstdio>
#include <exception>

namespace {

int usage() {
  std::fprintf(stderr,
               "usage: worldgen [--content DIR] OUTPUT-FOLDER\n"
               "       worldgen [--content DIR] --list-media\n");
  return 2;
}

int listMedia(const worldgen::Content& content) {
  for (const worldgen::MediaRef& ref : worldgen::referencedMedia(content))
    std::printf("%s\n", qPrintable(ref.path));
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  // Painting text needs fonts, and fonts need a GUI application, though no window opens.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);
  QStringList args = app.arguments().mid(1);
  std::filesystem::path contentFolder = worldgen::defaultContentFolder();
  if (args.size() >= 2 && args[0] == QStringLiteral("--content")) {
    contentFolder = args[1].toStdString();
    args = args.mid(2);
  }
  if (args.size() != 1) return usage();
  try {
    const worldgen::Content content = worldgen::loadContent(contentFolder);
    if (args[0] == QStringLiteral("--list-media")) return listMedia(content);
    if (!worldgen::animalPhotosFound())
      std::fprintf(stderr, "worldgen: no animal photographs in %s; every animal is drawn\n",
                   worldgen::animalPhotoFolder().c_str());
    const std::filesystem::path root = args[0].toStdString();
    worldgen::TerminalProgress progress(root);
    worldgen::writeWorld(content, root, worldgen::WorldParts::Everything,
                         [&progress](std::string_view stage) { progress.stage(stage); });
  } catch (const std::exception& error) {
    std::fprintf(stderr, "worldgen: %s\n", error.what());
    return 1;
  }
  return 0;
}
