// SPDX-License-Identifier: GPL-2.0-or-later
// Head-and-shoulders portraits painted from a few shapes, dressed by the speaker's job.
#include "tools/worldgen/portraits.h"

#include "tools/worldgen/materials.h"

#include <QPainterPath>

namespace worldgen {

namespace {

enum class Job { Host, Guide, Outfitter, Range, Warden };

Job jobOf(const QString& speaker) {
  if (speaker.startsWith(QStringLiteral("guide"))) return Job::Guide;
  if (speaker.startsWith(QStringLiteral("outfit"))) return Job::Outfitter;
  if (speaker.startsWith(QStringLiteral("range"))) return Job::Range;
  if (speaker.startsWith(QStringLiteral("warden"))) return Job::Warden;
  return Job::Host;
}

struct Looks {
  QColor skin;
  QColor hair;
  bool beard;
  QColor coat;
};

Looks looksFor(Job job, StableRandom& rnd) {
  const QRgb skins[] = {0xe8c0a0, 0xd8a884, 0xc08a64, 0x9a6a48, 0xf0d0b4};
  const QRgb hairs[] = {0x2a1e14, 0x5a3a22, 0x8a8a88, 0xb08850, 0x3a2a20};
  const QRgb coats[] = {0x8a2a1a, 0x3a5a2a, 0x5a4a2a, 0x6a3a2a, 0x2e4a2a};
  Looks looks{QColor(skins[rnd.below(5)]), QColor(hairs[rnd.below(5)]), rnd.below(2) == 0,
              QColor(coats[int(job)])};
  if (job == Job::Warden) looks.coat = QColor(0x4a5a3a);
  if (job == Job::Guide) looks.beard = true;
  return looks;
}

void shoulders(QPainter& p, const Looks& looks, Job job) {
  QPainterPath body;
  body.moveTo(6, 150);
  body.cubicTo(8, 112, 30, 104, 60, 104);
  body.cubicTo(90, 104, 112, 112, 114, 150);
  QLinearGradient cloth(0, 100, 120, 150);
  cloth.setColorAt(0, looks.coat.lighter(125));
  cloth.setColorAt(1, looks.coat.darker(140));
  p.fillPath(body, cloth);
  if (job == Job::Guide) {  // plaid
    p.setPen(QPen(QColor(0, 0, 0, 70), 3));
    for (int x = 10; x < 120; x += 14) p.drawLine(QPointF(x, 104), QPointF(x, 150));
    for (int y = 112; y < 150; y += 12) p.drawLine(QPointF(0, y), QPointF(120, y));
  }
  if (job == Job::Outfitter) {  // apron bib
    p.fillRect(QRectF(40, 112, 40, 38), QColor(0xcdb48a));
  }
  if (job == Job::Warden) {  // badge and collar
    p.setBrush(QColor(0xe0c060));
    p.setPen(QPen(QColor(0x6a4c14), 1));
    p.drawPolygon(QPolygonF(
        {QPointF(86, 118), QPointF(92, 114), QPointF(98, 118), QPointF(96, 128), QPointF(88, 128)}));
  }
  // A shirt collar round the neck.
  p.setPen(Qt::NoPen);
  p.setBrush(job == Job::Warden ? QColor(0xb8a878) : QColor(0xe8e0d0));
  p.drawPolygon(
      QPolygonF({QPointF(46, 104), QPointF(60, 122), QPointF(74, 104), QPointF(66, 100), QPointF(54, 100)}));
}

void face(QPainter& p, const Looks& looks) {
  p.setPen(Qt::NoPen);
  p.setBrush(looks.skin.darker(108));
  p.drawRect(QRectF(50, 84, 20, 20));    // neck
  p.drawEllipse(QRectF(32, 56, 8, 14));  // ears
  p.drawEllipse(QRectF(80, 56, 8, 14));
  QRadialGradient light(QPointF(52, 50), 40);
  light.setColorAt(0, looks.skin.lighter(108));
  light.setColorAt(1, looks.skin.darker(115));
  p.setBrush(light);
  p.drawEllipse(QRectF(36, 32, 48, 60));
  p.setBrush(QColor(0x2a2018));
  p.drawEllipse(QRectF(47, 57, 5, 4));
  p.drawEllipse(QRectF(68, 57, 5, 4));
  p.setPen(QPen(looks.hair.darker(120), 2));
  p.drawLine(QPointF(45, 52), QPointF(54, 51));
  p.drawLine(QPointF(66, 51), QPointF(75, 52));
  p.setPen(QPen(looks.skin.darker(135), 1.5));
  p.drawLine(QPointF(60, 60), QPointF(58, 71));
  p.drawLine(QPointF(58, 71), QPointF(62, 72));
  p.setPen(QPen(QColor(0x8a4a3a), 2, Qt::SolidLine, Qt::RoundCap));
  p.drawArc(QRectF(52, 72, 16, 8), -20 * 16, -140 * 16);
  if (!looks.beard) return;
  p.setPen(Qt::NoPen);
  p.setBrush(looks.hair);
  QPainterPath beard;
  beard.moveTo(37, 66);
  beard.cubicTo(38, 96, 82, 96, 83, 66);
  beard.cubicTo(76, 82, 44, 82, 37, 66);
  p.drawPath(beard);
  p.drawRoundedRect(QRectF(50, 70, 20, 5), 2, 2);  // moustache
}

void headwear(QPainter& p, const Looks& looks, Job job) {
  p.setPen(Qt::NoPen);
  switch (job) {
    case Job::Host:  // hair only
      p.setBrush(looks.hair);
      p.drawChord(QRectF(35, 28, 50, 40), 0, 180 * 16);
      break;
    case Job::Guide:  // blaze orange cap
      p.setBrush(QColor(0xf06a10));
      p.drawChord(QRectF(34, 24, 52, 40), 0, 180 * 16);
      p.drawRoundedRect(QRectF(56, 40, 36, 7), 3, 3);
      break;
    case Job::Outfitter:  // knitted wool cap
      p.setBrush(QColor(0xa82a22));
      p.drawChord(QRectF(34, 22, 52, 48), 0, 180 * 16);
      p.setBrush(QColor(0xe8e0d0));
      p.drawRect(QRectF(34, 42, 52, 7));
      p.drawEllipse(QPointF(60, 22), 6, 6);
      break;
    case Job::Range:  // cap and ear muffs
      p.setBrush(QColor(0x3a4a6a));
      p.drawChord(QRectF(35, 26, 50, 38), 0, 180 * 16);
      p.setBrush(QColor(0xe0b020));
      p.drawEllipse(QRectF(27, 52, 14, 20));
      p.drawEllipse(QRectF(79, 52, 14, 20));
      break;
    case Job::Warden:  // campaign hat
      p.setBrush(QColor(0x8a6a3a));
      p.drawEllipse(QRectF(18, 36, 84, 14));
      p.drawPolygon(
          QPolygonF({QPointF(40, 42), QPointF(46, 16), QPointF(60, 22), QPointF(74, 16), QPointF(80, 42)}));
      p.setBrush(QColor(0x4a3a20));
      p.drawRect(QRectF(40, 36, 40, 5));
      break;
  }
}

}  // namespace

QImage portrait(const QString& key) {
  StableRandom rnd(key);
  const Job job = jobOf(key.mid(1));
  QImage image(120, 150, QImage::Format_RGB32);
  image.fill(Qt::black);
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  paintWood(p, image.rect(), kPine.darker(115), rnd, true);
  QRadialGradient lamp(QPointF(60, 60), 80);
  lamp.setColorAt(0, QColor(255, 220, 150, 90));
  lamp.setColorAt(1, QColor(0, 0, 0, 60));
  p.fillRect(image.rect(), lamp);
  const Looks looks = looksFor(job, rnd);
  shoulders(p, looks, job);
  face(p, looks);
  headwear(p, looks, job);
  return image;
}

}  // namespace worldgen
