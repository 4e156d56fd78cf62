// SPDX-License-Identifier: GPL-2.0-or-later
// The panorama widget as the game uses it: loading by game path, ready state, turning and
// zooming, and the order of its hotspot events with tracking on and off.
#include "platform/panorama/panorama_widget.h"

#include "platform/fakes/panorama_fake_factory.h"
#include "platform/files.h"
#include "platform/panorama_fixture.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace platform {
namespace {

constexpr int kWidth = 1440;
constexpr int kHeight = 300;

class PanoramaWidgetTest : public ::testing::Test {
 protected:
  void SetUp() override {
    files().mapDrive(u'D', root.path().toStdString());
    // ^walk around the heading 180 column; ~poi to its right; ^seam across 0/360.
    panorama_test::writePanorama(root, QStringLiteral("13Lodge.svh"),
                                 QStringLiteral("svh 1\nimage pano.bmp\ncylindrical 60\n"
                                                "hotspot ^walk 700,100 740,100 740,200 700,200\n"
                                                "hotspot ~poi 760,100 800,100 800,200 760,200\n"
                                                "hotspot ^seam -20,0 20,0 20,300 -20,300\n"),
                                 panorama_test::smoothImage(kWidth, kHeight), QStringLiteral("Pano.bmp"));
    widget.resize(400, 300);
    widget.OnEnterHotspot = [this](const QString& name) { events << "enter " + name; };
    widget.OnLeaveHotspot = [this](const QString& name) { events << "leave " + name; };
    widget.OnSelectHotspot = [this](const QString& name) { events << "select " + name; };
    widget.OnLocation = [this](int32_t heading) { events << QStringLiteral("location %1").arg(heading); };
  }
  void TearDown() override { files().clearDrives(); }

  bool loadLodge() { return widget.Load(QStringLiteral("d:\\SURND\\13lodge.SVH")); }

  // Where image point (x, y) shows in the widget.
  QPointF at(double x, double y) const {
    const double zoom = widget.Zoom();
    const PanoramaGeometry g = PanoramaGeometry::cylindrical(kWidth, kHeight, 60);
    return *viewPointAt(g, {QSizeF(widget.size()), widget.Heading(), zoom, widget.centreRow()}, {x, y});
  }

  void mouse(QEvent::Type type, QPointF p, Qt::MouseButton button = Qt::NoButton,
             Qt::MouseButtons held = Qt::NoButton) {
    QMouseEvent event(type, p, widget.mapToGlobal(p), button, held, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
  }
  void moveTo(QPointF p, Qt::MouseButtons held = Qt::NoButton) {
    mouse(QEvent::MouseMove, p, Qt::NoButton, held);
  }
  void click(QPointF p) {
    mouse(QEvent::MouseButtonPress, p, Qt::LeftButton, Qt::LeftButton);
    mouse(QEvent::MouseButtonRelease, p, Qt::LeftButton);
  }

  QTemporaryDir root;
  PanoramaWidget widget;
  QStringList events;
};

TEST_F(PanoramaWidgetTest, LoadsByGamePathAndBecomesComplete) {
  EXPECT_EQ(widget.ReadyState(), 0);
  ASSERT_TRUE(loadLodge()) << widget.errorString().toStdString();
  EXPECT_EQ(widget.ReadyState(), kReadyComplete);
  EXPECT_DOUBLE_EQ(widget.BaseZoom(), 1.0);  // 300 rows fill a 300-pixel-high widget
  EXPECT_DOUBLE_EQ(widget.Zoom(), widget.BaseZoom());
  const QImage shot = widget.grab().toImage();
  EXPECT_EQ(shot.pixel(200, 150), panorama_test::smoothImage(kWidth, kHeight).pixel(0, 150));
}

TEST_F(PanoramaWidgetTest, AFailedLoadLeavesAnEmptyWidgetAndSaysWhy) {
  ASSERT_TRUE(loadLodge());
  panorama_test::writePanorama(root, QStringLiteral("broken.svh"),
                               QStringLiteral("svh 1\nimage gone.png\ncylindrical 60\n"));
  EXPECT_FALSE(widget.Load(QStringLiteral("D:\\surnd\\broken.svh")));
  EXPECT_EQ(widget.ReadyState(), 0);
  EXPECT_TRUE(widget.errorString().contains("missing image")) << widget.errorString().toStdString();
  EXPECT_EQ(widget.grab().toImage().pixel(200, 150), qRgb(0, 0, 0));
  EXPECT_FALSE(widget.Load(QStringLiteral("D:\\surnd\\none.svh")));
  panorama_test::writePanorama(
      root, QStringLiteral("wide.svh"),
      QStringLiteral("svh 1\nimage pano.bmp\ncylindrical 60\nhotspot ~a 0,0 9,0 9,301\n"));
  EXPECT_FALSE(widget.Load(QStringLiteral("D:\\surnd\\wide.svh")));
  EXPECT_TRUE(widget.errorString().contains("outside the 1440 x 300 image"));
  EXPECT_TRUE(widget.HotspotName().isEmpty());
}

TEST_F(PanoramaWidgetTest, HeadingChangesRaiseOnLocationOnce) {
  ASSERT_TRUE(loadLodge());
  widget.SetHeading(648000);
  widget.SetHeading(648000);
  widget.SetHeading(648000 + kFullTurn);
  widget.SetHeading(-3600);
  EXPECT_EQ(events, QStringList({"location 648000", "location 1292400"}));
  EXPECT_EQ(widget.Heading(), kFullTurn - 3600);
}

TEST_F(PanoramaWidgetTest, ArrowKeysTurnAndWheelZoomsWithinLimits) {
  ASSERT_TRUE(loadLodge());
  widget.SetHeading(0);
  QKeyEvent right(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier);
  QApplication::sendEvent(&widget, &right);
  EXPECT_EQ(widget.Heading(), 7200);
  QKeyEvent left(QEvent::KeyPress, Qt::Key_Left, Qt::NoModifier);
  QApplication::sendEvent(&widget, &left);
  QApplication::sendEvent(&widget, &left);
  EXPECT_EQ(widget.Heading(), kFullTurn - 7200);
  for (int i = 0; i < 40; ++i) {
    QWheelEvent wheel({200, 150}, widget.mapToGlobal(QPointF(200, 150)), {}, {0, 120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &wheel);
  }
  EXPECT_DOUBLE_EQ(widget.Zoom(), widget.BaseZoom() * kMaxZoomOverBase);
  widget.SetZoom(widget.BaseZoom() / 3);
  EXPECT_DOUBLE_EQ(widget.Zoom(), widget.BaseZoom());
}

TEST_F(PanoramaWidgetTest, EnterLeaveAndSelectComeInOrder) {
  ASSERT_TRUE(loadLodge());
  widget.SetHeading(648000);
  events.clear();
  moveTo(at(720, 150));
  EXPECT_EQ(widget.HotspotName(), "^walk");
  EXPECT_EQ(widget.cursor().shape(), Qt::PointingHandCursor);
  moveTo(at(780, 150));
  click(at(780, 150));
  moveTo(at(750, 150));
  EXPECT_EQ(widget.cursor().shape(), Qt::ArrowCursor);
  EXPECT_EQ(events, QStringList({"enter ^walk", "leave ^walk", "enter ~poi", "select ~poi", "leave ~poi"}));
}

TEST_F(PanoramaWidgetTest, TrackingOffSilencesEnterAndLeaveButNotSelect) {
  ASSERT_TRUE(loadLodge());
  widget.SetHeading(648000);
  events.clear();
  widget.SetTracking(false);
  moveTo(at(720, 150));
  click(at(720, 150));
  moveTo(at(780, 150));
  EXPECT_EQ(events, QStringList({"select ^walk"}));
  EXPECT_EQ(widget.HotspotName(), "~poi");
  widget.SetTracking(true);
  EXPECT_EQ(events.size(), 1);  // nothing until the pointer moves again
  moveTo(at(781, 150));
  EXPECT_EQ(events, QStringList({"select ^walk", "enter ~poi"}));
}

TEST_F(PanoramaWidgetTest, AHandlerMayTurnTrackingOffAndOnAroundItsWork) {
  ASSERT_TRUE(loadLodge());
  widget.SetHeading(648000);
  events.clear();
  widget.OnEnterHotspot = [this](const QString& name) {
    widget.SetTracking(false);
    events << "enter " + name + " reads " + widget.HotspotName();
    widget.SetTracking(true);
  };
  moveTo(at(720, 150));
  moveTo(at(721, 150));
  EXPECT_EQ(events, QStringList({"enter ^walk reads ^walk"}));
}

TEST_F(PanoramaWidgetTest, TurningUnderAStillPointerEntersWhatComesUnderIt) {
  ASSERT_TRUE(loadLodge());
  widget.SetHeading(648000);
  moveTo({200, 150});
  events.clear();
  widget.SetHeading(0);  // the seam hotspot comes under the pointer
  EXPECT_EQ(events, QStringList({"location 0", "leave ^walk", "enter ^seam"}));
}

TEST_F(PanoramaWidgetTest, ADragTurnsTheViewAndSelectsNothing) {
  ASSERT_TRUE(loadLodge());
  widget.SetHeading(648000);
  const QPointF start = at(720, 150);
  mouse(QEvent::MouseButtonPress, start, Qt::LeftButton, Qt::LeftButton);
  moveTo(start + QPointF(60, 0), Qt::LeftButton);
  mouse(QEvent::MouseButtonRelease, start + QPointF(60, 0), Qt::LeftButton);
  EXPECT_FALSE(events.contains("select ^walk"));
  EXPECT_LT(widget.Heading(), 648000);
  EXPECT_NEAR(at(720, 150).x(), start.x() + 60, 0.5);  // the grabbed point followed the pointer
  EXPECT_TRUE(events.filter("location").size() >= 1);
}

// The frame on screen, and the same view drawn by a renderer of our own.
QImage drawnBy(PanoramaWidget& widget, Sampling sampling) {
  QImage frame(widget.size(), QImage::Format_RGB32);
  const PanoramaImage image(panorama_test::smoothImage(kWidth, kHeight));
  PanoramaRenderer().render(image, PanoramaGeometry::cylindrical(kWidth, kHeight, 60),
                            {QSizeF(widget.size()), widget.Heading(), widget.Zoom(), widget.centreRow()},
                            frame, sampling);
  return frame;
}

TEST_F(PanoramaWidgetTest, ADragDrawsNearestAndAStillReleaseRedrawsBilinear) {
  ASSERT_TRUE(loadLodge());
  widget.SetZoom(widget.BaseZoom() * 3);  // magnified, so the two samplings differ
  const QPointF start(200, 150);
  mouse(QEvent::MouseButtonPress, start, Qt::LeftButton, Qt::LeftButton);
  moveTo(start + QPointF(37, 0), Qt::LeftButton);
  QImage shot = widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
  EXPECT_EQ(widget.frameSampling(), Sampling::Nearest);
  EXPECT_EQ(shot, drawnBy(widget, Sampling::Nearest));
  EXPECT_NE(shot, drawnBy(widget, Sampling::Bilinear));

  QTest::qWait(120);  // the pointer rests before letting go: no glide
  mouse(QEvent::MouseButtonRelease, start + QPointF(37, 0), Qt::LeftButton);
  shot = widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
  EXPECT_EQ(widget.frameSampling(), Sampling::Bilinear);
  EXPECT_EQ(shot, drawnBy(widget, Sampling::Bilinear));
}

TEST_F(PanoramaWidgetTest, AGlideStaysNearestUntilItDiesAway) {
  ASSERT_TRUE(loadLodge());
  widget.show();
  const QPointF start(200, 150);
  mouse(QEvent::MouseButtonPress, start, Qt::LeftButton, Qt::LeftButton);
  QTest::qWait(20);
  moveTo(start + QPointF(80, 0), Qt::LeftButton);
  mouse(QEvent::MouseButtonRelease, start + QPointF(80, 0), Qt::LeftButton);  // let go while moving
  widget.grab();
  EXPECT_EQ(widget.frameSampling(), Sampling::Nearest);
  const int32_t released = widget.Heading();
  ASSERT_TRUE(QTest::qWaitFor(
      [&] {
        widget.grab();
        return widget.frameSampling() == Sampling::Bilinear;
      },
      5000));
  EXPECT_NE(widget.Heading(), released);  // it glided on before coming to rest
  EXPECT_EQ(widget.grab().toImage().convertToFormat(QImage::Format_RGB32),
            drawnBy(widget, Sampling::Bilinear));
}

TEST_F(PanoramaWidgetTest, ASelectHandlerMayLoadTheNextPanorama) {
  ASSERT_TRUE(loadLodge());
  widget.SetHeading(648000);
  widget.OnSelectHotspot = [this](const QString& name) {
    events << "select " + name;
    widget.Load(QStringLiteral("D:\\surnd\\13lodge.svh"));
    widget.SetHeading(0);
  };
  moveTo(at(720, 150));
  click(at(720, 150));
  EXPECT_EQ(events.mid(events.size() - 2), QStringList({"location 0", "enter ^seam"}));
  EXPECT_EQ(events.filter("select").size(), 1);
  EXPECT_EQ(widget.ReadyState(), kReadyComplete);
}

TEST(PanoramaFactoryTest, ScreensGetFakesWhenATestAsks) {
  ScopedService<PanoramaFactory, FakePanoramaFactory> fakes;
  QWidget screen;
  auto panorama = createPanorama(&screen);
  ASSERT_EQ(fakes->created().size(), 1u);
  EXPECT_EQ(panorama->widget()->parent(), &screen);
  QStringList seen;
  panorama->OnEnterHotspot = [&](const QString& name) { seen << "enter " + name; };
  panorama->OnLeaveHotspot = [&](const QString& name) { seen << "leave " + name; };
  FakeSVControl& fake = *fakes->created().front();
  fake.pointAt(QStringLiteral("~a"));
  fake.SetTracking(false);
  fake.pointAt(QStringLiteral("~b"));
  fake.SetTracking(true);
  fake.pointAt(QString());
  EXPECT_EQ(seen, QStringList({"enter ~a", "leave ~a"}));
  EXPECT_EQ(fake.calls(), QStringList({"SetTracking 0", "SetTracking 1"}));
}

}  // namespace
}  // namespace platform
