// SPDX-License-Identifier: GPL-2.0-or-later
// Reading .svh manifests: what a good one yields and how each kind of damage is reported.
#include "platform/panorama/panorama_manifest.h"

#include "platform/files.h"
#include "platform/panorama_fixture.h"

#include <QRandomGenerator>

#include <gtest/gtest.h>

namespace platform {
namespace {

const std::filesystem::path kNowhere = "/nonexistent-folder";

ManifestResult parse(const QString& text) {
  return parseManifest(text, kNowhere, QStringLiteral("t.svh"));
}

QString errorOf(const QString& text) {
  const auto result = parse(text);
  const auto* error = std::get_if<ManifestError>(&result);
  return error ? error->message : QStringLiteral("<parsed>");
}

TEST(PanoramaManifest, ReadsImageProjectionAndHotspotsInOrder) {
  const auto result =
      parse(QStringLiteral("# lodge\nsvh 1\n\nimage lodge.png\ncylindrical 62.5\n"
                           "hotspot ~DPOI14 10,20 30,20 30,40\n\thotspot  ^3lodge  -5,0 5,0 5,9 -5,9 "
                           "\r\nhotspot :3 1.5,2 4,2 4,7.25\n"));
  ASSERT_TRUE(std::holds_alternative<PanoramaManifest>(result)) << errorOf("").toStdString();
  const auto& manifest = std::get<PanoramaManifest>(result);
  EXPECT_EQ(manifest.image.filename(), "lodge.png");
  EXPECT_DOUBLE_EQ(manifest.verticalFovDegrees, 62.5);
  ASSERT_EQ(manifest.hotspots.size(), 3u);
  EXPECT_EQ(manifest.hotspots[0].name, "~DPOI14");
  EXPECT_EQ(manifest.hotspots[1].name, "^3lodge");
  EXPECT_EQ(manifest.hotspots[1].polygon.front(), QPointF(-5, 0));
  EXPECT_EQ(manifest.hotspots[2].polygon.back(), QPointF(4, 7.25));
}

TEST(PanoramaManifest, FindsItsImageBesideItWhateverTheCase) {
  QTemporaryDir root;
  panorama_test::writePanorama(root, QStringLiteral("a.svh"),
                               QStringLiteral("svh 1\nimage pano.png\ncylindrical 60\n"),
                               panorama_test::smoothImage(8, 4));
  const auto result = readManifest(root.filePath(QStringLiteral("Surnd/a.svh")).toStdString());
  ASSERT_TRUE(std::holds_alternative<PanoramaManifest>(result));
  EXPECT_EQ(std::get<PanoramaManifest>(result).image.filename(), "Pano.PNG");
}

TEST(PanoramaManifest, NamesTheLineOfEachMistake) {
  const QString head = QStringLiteral("svh 1\nimage a.png\ncylindrical 60\n");
  EXPECT_EQ(errorOf(""), "t.svh:1: empty manifest");
  EXPECT_EQ(errorOf("svh 2\n"), "t.svh:1: not a panorama manifest (want 'svh 1')");
  EXPECT_EQ(errorOf(head + "spin 3\n"), "t.svh:4: unknown line 'spin'");
  EXPECT_EQ(errorOf(head + "hotspot ~A 1,1 2,2 x,3\n"), "t.svh:4: hotspot ~A: 'x,3' is not a point x,y");
  EXPECT_EQ(errorOf(head + "hotspot ~A 1,1 2,2\n"), "t.svh:4: hotspot ~A: a polygon needs at least 3 points");
  EXPECT_EQ(errorOf(head + "hotspot ~A 1,1 2,2 3,3\n"), "t.svh:4: hotspot ~A: the polygon encloses no area");
  EXPECT_EQ(errorOf(head + "hotspot\n"), "t.svh:4: hotspot without a name");
  EXPECT_EQ(errorOf(head + "image b.png\n"), "t.svh:4: a second image line");
  EXPECT_TRUE(errorOf("svh 1\ncylindrical 60\n").endsWith("no image line"));
  EXPECT_TRUE(errorOf("svh 1\nimage a.png\n").endsWith("no cylindrical line"));
}

TEST(PanoramaManifest, RefusesFieldsOfViewOutsideZeroTo180) {
  for (const char* fov : {"0", "180", "-5", "wide", "60 70"}) {
    EXPECT_TRUE(
        errorOf(QStringLiteral("svh 1\nimage a.png\ncylindrical %1\n").arg(fov)).contains("field of view"))
        << fov;
  }
}

TEST(PanoramaManifest, ReportsUnreadableFiles) {
  QTemporaryDir root;
  const auto missing = readManifest(root.filePath(QStringLiteral("none.svh")).toStdString());
  EXPECT_TRUE(std::get<ManifestError>(missing).message.endsWith("cannot open"));
  QFile binary(root.filePath(QStringLiteral("bin.svh")));
  binary.open(QIODevice::WriteOnly);
  binary.write(QByteArray("svh 1\n\0\x01\x02", 9));
  binary.close();
  const auto damaged = readManifest(binary.fileName().toStdString());
  EXPECT_TRUE(std::get<ManifestError>(damaged).message.endsWith("not a text file"));
}

TEST(PanoramaManifest, HotspotsMayCrossTheSeamButNotLeaveTheImage) {
  auto result = parse(QStringLiteral("svh 1\nimage a.png\ncylindrical 60\nhotspot ^a 90,0 110,0 110,10\n"));
  const auto& manifest = std::get<PanoramaManifest>(result);
  EXPECT_EQ(checkHotspotBounds(manifest, 100, 10), "");
  EXPECT_EQ(checkHotspotBounds(manifest, 100, 9), "hotspot ^a: point 110,10 lies outside the 100 x 9 image");
  EXPECT_NE(checkHotspotBounds(manifest, 50, 10), "");
}

TEST(PanoramaManifest, DamagedTextNeverCrashesAndAlwaysExplains) {
  const QByteArray good =
      "svh 1\nimage a.png\ncylindrical 60\nhotspot ~a 1,1 9,1 9,9 1,9\nhotspot ^b -3,0 3,0 0,5\n";
  QRandomGenerator random(1997);
  for (int round = 0; round < 3000; ++round) {
    QByteArray text = good;
    for (int n = random.bounded(1, 6); n > 0; --n)
      text[random.bounded(text.size())] = static_cast<char>(random.bounded(256));
    const auto result = parseManifest(QString::fromUtf8(text), kNowhere, QStringLiteral("t.svh"));
    if (const auto* error = std::get_if<ManifestError>(&result))
      ASSERT_TRUE(error->message.startsWith("t.svh:")) << text.toStdString();
    else
      ASSERT_GE(std::get<PanoramaManifest>(result).verticalFovDegrees, 0);
  }
}

}  // namespace
}  // namespace platform
