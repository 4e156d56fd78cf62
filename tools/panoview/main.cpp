// SPDX-License-Identifier: GPL-2.0-or-later
// svhview: opens a panorama manifest as the game would, outlines its hotspots on demand (O)
// and prints the hotspot under the pointer, clicks and headings. With --shot it saves one
// view to a PNG and exits, for looking at panoramas without a display.
#include "platform/panorama/panorama_widget.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QKeyEvent>
#include <QTextStream>

namespace {

QTextStream& out() {
  static QTextStream stream(stdout);
  return stream;
}

// Toggles the outlines on O and passes every other key on to the panorama.
class Viewer final : public QObject {
 public:
  explicit Viewer(platform::PanoramaWidget& panorama) : panorama_(panorama) {}

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(event)->key() != Qt::Key_O) return false;
    outlines_ = !outlines_;
    panorama_.setOutlinesShown(outlines_);
    return true;
  }

 private:
  platform::PanoramaWidget& panorama_;
  bool outlines_ = false;
};

void reportEvents(platform::PanoramaWidget& panorama) {
  panorama.OnEnterHotspot = [](const QString& name) { out() << "over " << name << Qt::endl; };
  panorama.OnLeaveHotspot = [](const QString& name) { out() << "left " << name << Qt::endl; };
  panorama.OnSelectHotspot = [](const QString& name) { out() << "clicked " << name << Qt::endl; };
  panorama.OnLocation = [](int32_t heading) { out() << "heading " << heading << Qt::endl; };
}

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral("Shows a .svh panorama. O outlines the hotspots."));
  parser.addHelpOption();
  parser.addPositionalArgument(QStringLiteral("manifest"), QStringLiteral("the .svh file"));
  const QCommandLineOption heading(QStringLiteral("heading"), QStringLiteral("start heading, 1/3600 degree"),
                                   QStringLiteral("n"), QStringLiteral("648000"));
  const QCommandLineOption zoom(QStringLiteral("zoom"), QStringLiteral("zoom over the base zoom"),
                                QStringLiteral("z"), QStringLiteral("1"));
  const QCommandLineOption size(QStringLiteral("size"), QStringLiteral("window size"), QStringLiteral("WxH"),
                                QStringLiteral("1024x600"));
  const QCommandLineOption outlines(QStringLiteral("outlines"), QStringLiteral("start with outlines shown"));
  const QCommandLineOption shot(QStringLiteral("shot"), QStringLiteral("save the view to a PNG and exit"),
                                QStringLiteral("file"));
  parser.addOptions({heading, zoom, size, outlines, shot});
  parser.process(app);
  if (parser.positionalArguments().size() != 1) parser.showHelp(2);

  platform::PanoramaWidget panorama;
  const QStringList wh = parser.value(size).split(u'x');
  panorama.resize(wh.value(0).toInt(), wh.value(1).toInt());
  reportEvents(panorama);
  if (!panorama.Load(parser.positionalArguments().front())) {
    QTextStream(stderr) << panorama.errorString() << Qt::endl;
    return 1;
  }
  out() << panorama.hotspots().size() << " hotspots, base zoom " << panorama.BaseZoom() << Qt::endl;
  panorama.SetHeading(parser.value(heading).toInt());
  panorama.SetZoom(panorama.BaseZoom() * parser.value(zoom).toDouble());
  panorama.setOutlinesShown(parser.isSet(outlines));
  if (parser.isSet(shot)) return panorama.grab().save(parser.value(shot)) ? 0 : 1;

  Viewer viewer(panorama);
  panorama.installEventFilter(&viewer);
  panorama.setWindowTitle(parser.positionalArguments().front());
  panorama.show();
  return app.exec();
}
