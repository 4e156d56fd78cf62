// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/animal_photos.h"

#include "platform/records/record_csv.h"
#include "tools/worldgen/content.h"

#include <QFile>
#include <QPainter>
#include <QPainterPath>
#include <QStringList>

#include <algorithm>
#include <map>
#include <mutex>
#include <optional>

namespace worldgen {

namespace {

namespace fs = std::filesystem;

struct Shelf {
  std::mutex lock;
  std::optional<fs::path> folder;
  std::optional<std::map<int, AnimalPhoto>> photos;
};

Shelf& shelf() {
  static Shelf s;
  return s;
}

QList<double> numbers(const QString& text) {
  QList<double> out;
  for (const QString& part : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) out << part.toDouble();
  return out;
}

QRectF box(const QString& text) {
  const QList<double> v = numbers(text);
  return v.size() == 4 ? QRectF(QPointF(v[0], v[1]), QPointF(v[2], v[3])) : QRectF();
}

// Moves the coat towards the species' colour but keeps the photograph's light and shade.
void tint(QImage& image, QColor colour, double strength) {
  if (strength <= 0) return;
  const double tr = colour.redF(), tg = colour.greenF(), tb = colour.blueF();
  const double tintLight = std::max(0.05, 0.3 * tr + 0.59 * tg + 0.11 * tb);
  for (int y = 0; y < image.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x) {
      const QRgb c = line[x];
      const double light = (0.3 * qRed(c) + 0.59 * qGreen(c) + 0.11 * qBlue(c)) / tintLight;
      auto mix = [&](int own, double target) {
        return std::clamp(int(own * (1 - strength) + target * light * strength), 0, 255);
      };
      line[x] = qRgba(mix(qRed(c), tr), mix(qGreen(c), tg), mix(qBlue(c), tb), qAlpha(c));
    }
  }
}

// The opaque part of rows `from` .. `to` (fractions of the height), as fractions.
QRectF opaqueBounds(const QImage& image, double from, double to) {
  QRect r;
  const int last = std::min(image.height(), int(to * image.height()));
  for (int y = int(from * image.height()); y < last; ++y)
    for (int x = 0; x < image.width(); ++x)
      if (qAlpha(image.pixel(x, y)) > 160) r |= QRect(x, y, 1, 1);
  return QRectF(double(r.left()) / image.width(), double(r.top()) / image.height(),
                double(r.width()) / image.width(), double(r.height()) / image.height());
}

// Room above the photograph for antlers, and the authored boxes moved to match.
void padTop(AnimalPhoto& photo, double share) {
  const int pad = int(photo.image.height() * share);
  QImage taller(photo.image.width(), photo.image.height() + pad, photo.image.format());
  taller.fill(Qt::transparent);
  QPainter(&taller).drawImage(0, pad, photo.image);
  const double keep = 1.0 / (1 + share), shift = share / (1 + share);
  auto move = [&](QRectF& r) {
    if (!r.isNull()) r = QRectF(r.x(), r.y() * keep + shift, r.width(), r.height() * keep);
  };
  for (QRectF* r : {&photo.vital, &photo.head, &photo.gut, &photo.headgear}) move(*r);
  photo.neck.setY(photo.neck.y() * keep + shift);
  photo.legTop = photo.legTop * keep + shift;
  photo.image = taller;
}

// A buck's rack painted on a photographed doe: two beams sweeping back and up, tines rising.
void paintAntlers(AnimalPhoto& photo, int tines) {
  padTop(photo, 0.22);
  const double w = photo.image.width(), h = photo.image.height();
  const QRectF g(photo.headgear.x() * w, photo.headgear.y() * h, photo.headgear.width() * w,
                 photo.headgear.height() * h);
  QPainter p(&photo.image);
  p.setRenderHint(QPainter::Antialiasing);
  for (const double side : {0.0, 1.0}) {  // far beam first, a little darker and behind
    const QPointF base(g.left() + g.width() * (0.45 + 0.12 * side), g.bottom());
    QPainterPath beam(base);
    beam.cubicTo(base + QPointF(-g.width() * 0.35, -g.height() * 0.5),
                 base + QPointF(-g.width() * 0.1, -g.height() * 1.0),
                 base + QPointF(g.width() * 0.45, -g.height() * 0.85));
    const QColor bone = side > 0 ? QColor(0xd6c6a4) : QColor(0xa89a80);
    p.setPen(QPen(bone, std::max(1.5, w * 0.022), Qt::SolidLine, Qt::RoundCap));
    p.setBrush(Qt::NoBrush);
    p.drawPath(beam);
    p.setPen(QPen(bone, std::max(1.2, w * 0.016), Qt::SolidLine, Qt::RoundCap));
    for (int t = 1; t <= tines; ++t) {
      const QPointF on = beam.pointAtPercent(0.25 + 0.7 * t / tines);
      p.drawLine(on, on + QPointF(g.width() * 0.04, -g.height() * 0.32));
    }
  }
}

QImage readPhoto(const fs::path& file, bool flip, QColor colour, double strength) {
  QImage image(QString::fromStdString(file.string()));
  if (image.isNull()) return {};
  image = image.convertToFormat(QImage::Format_ARGB32);
  if (flip) image = image.mirrored(true, false);
  tint(image, colour, strength);
  return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

std::map<int, AnimalPhoto> loadPhotos(const fs::path& folder) {
  std::map<int, AnimalPhoto> out;
  if (folder.empty() || !fs::is_directory(folder)) return out;
  QFile in(QString::fromStdString((defaultContentFolder() / "animal_photos.csv").string()));
  if (!in.open(QIODevice::ReadOnly)) return out;
  const platform::RecordTable table = platform::parseRecordCsv(QString::fromUtf8(in.readAll()));
  for (int row = 0; row < table.rows.size(); ++row) {
    auto at = [&](const char* field) { return cell(table, row, QString::fromLatin1(field)); };
    AnimalPhoto photo;
    photo.image = readPhoto(folder / at("Photo").toStdString(), at("Flip") == QStringLiteral("1"),
                            QColor(QLatin1Char('#') + at("Tint")), at("Tint strength").toDouble());
    if (photo.image.isNull()) continue;
    photo.metres = at("Metres").toDouble();
    photo.legTop = at("Leg top").toDouble();
    photo.legSplit = at("Leg split").toDouble();
    const QList<double> neck = numbers(at("Neck"));
    photo.neck = neck.size() == 2 ? QPointF(neck[0], neck[1]) : QPointF(0.7, 0.35);
    photo.vital = box(at("Vital"));
    photo.head = box(at("Head"));
    photo.gut = box(at("Gut"));
    photo.headgear = box(at("Headgear"));
    if (const int tines = at("Antlers").toInt(); tines > 0) paintAntlers(photo, tines);
    photo.body = opaqueBounds(photo.image, 0, photo.legTop);
    photo.legs = opaqueBounds(photo.image, photo.legTop, 1);
    out.emplace(at("Species").toInt(), photo);
  }
  return out;
}

const std::map<int, AnimalPhoto>& photos() {
  Shelf& s = shelf();
  std::lock_guard guard(s.lock);
  if (!s.photos) s.photos = loadPhotos(animalPhotoFolder());
  return *s.photos;
}

}  // namespace

fs::path animalPhotoFolder() {
  Shelf& s = shelf();
  if (s.folder) return *s.folder;
  const QByteArray chosen = qgetenv("HUNT_ANIMAL_PHOTOS");
  return chosen.isNull() ? fs::path("/usr/share/tuxpaint/stamps/animals") : fs::path(chosen.toStdString());
}

void setAnimalPhotoFolder(const fs::path& folder) {
  Shelf& s = shelf();
  std::lock_guard guard(s.lock);
  s.folder = folder;
  s.photos.reset();
}

const AnimalPhoto* photoOf(int animal) {
  const auto& all = photos();
  const auto it = all.find(animal);
  return it == all.end() ? nullptr : &it->second;
}

bool animalPhotosFound() {
  return !photos().empty();
}

}  // namespace worldgen
