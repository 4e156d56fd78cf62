// SPDX-License-Identifier: GPL-2.0-or-later
// Painting the lodge's materials stroke by stroke, each from its own seeded generator.
#include "tools/worldgen/materials.h"

#include <QLinearGradient>
#include <QPainterPath>
#include <QRadialGradient>

#include <algorithm>
#include <cmath>

namespace worldgen {

namespace {

QColor shade(QColor c, double factor) {
  return QColor::fromRgbF(std::clamp(c.redF() * factor, 0.0, 1.0), std::clamp(c.greenF() * factor, 0.0, 1.0),
                          std::clamp(c.blueF() * factor, 0.0, 1.0));
}

QColor withAlpha(QColor c, int alpha) {
  c.setAlpha(alpha);
  return c;
}

// Grain lines along one plank, wavering round its knots.
void plankGrain(QPainter& p, const QRectF& plank, QColor tone, StableRandom& rnd) {
  const int lines = std::max(3, int(plank.height() / 3));
  for (int i = 0; i < lines; ++i) {
    QPainterPath path;
    const double y0 = plank.top() + plank.height() * (i + rnd.unit()) / lines;
    const double phase = rnd.between(0, 6.28);
    const double wave = rnd.between(0.5, 2.5);
    path.moveTo(plank.left(), y0);
    for (double x = plank.left(); x <= plank.right(); x += 12)
      path.lineTo(x, y0 + wave * std::sin(phase + x / rnd.between(40, 90)));
    p.setPen(QPen(withAlpha(shade(tone, rnd.between(0.6, 0.85)), int(rnd.between(40, 110))),
                  rnd.between(0.6, 1.6)));
    p.drawPath(path);
  }
  for (int k = rnd.below(3); k > 0; --k) {
    const QPointF at(rnd.between(plank.left(), plank.right()), plank.center().y() + rnd.between(-2, 2));
    const double rx = rnd.between(3, 6);
    for (int ring = 3; ring >= 1; --ring) {
      p.setPen(QPen(withAlpha(shade(tone, 0.6 + 0.08 * ring), 110), 1));
      p.setBrush(ring == 1 ? withAlpha(shade(tone, 0.62), 150) : QBrush(Qt::NoBrush));
      p.drawEllipse(at, rx * ring / 2.0, std::min(plank.height() * 0.35, rx * ring / 3.5));
    }
  }
}

}  // namespace

void paintWood(QPainter& p, const QRectF& r, QColor tone, StableRandom& rnd, bool upright) {
  p.save();
  p.setClipRect(r);
  p.fillRect(r, tone);  // under the planks' blended edges
  p.setRenderHint(QPainter::Antialiasing);
  // Draw across; upright planks are the same planks turned a quarter.
  QRectF across = r;
  if (upright) {
    p.translate(r.center());
    p.rotate(90);
    across = QRectF(-r.height() / 2, -r.width() / 2, r.height(), r.width());
  }
  const double plankHeight = std::clamp(across.height() / 7, 14.0, 48.0);
  for (double y = across.top(); y < across.bottom(); y += plankHeight) {
    const QRectF plank(across.left(), y, across.width(), plankHeight);
    QLinearGradient fill(plank.topLeft(), plank.bottomLeft());
    const QColor own = shade(tone, rnd.between(0.82, 1.12));
    fill.setColorAt(0, shade(own, 1.08));
    fill.setColorAt(0.5, own);
    fill.setColorAt(1, shade(own, 0.86));
    p.fillRect(plank, fill);
    plankGrain(p, plank, own, rnd);
    p.setPen(QPen(shade(tone, 0.35), 1.5));
    p.drawLine(QPointF(plank.left(), plank.bottom()), QPointF(plank.right(), plank.bottom()));
    // Butt joints and nails, a plank's length apart.
    const double joint = across.left() + rnd.between(0.2, 0.8) * across.width();
    p.drawLine(QPointF(joint, plank.top()), QPointF(joint, plank.bottom()));
    p.setPen(Qt::NoPen);
    p.setBrush(shade(tone, 0.4));
    for (const double dy : {0.3, 0.7})
      p.drawEllipse(QPointF(joint + 6, plank.top() + plankHeight * dy), 1.4, 1.4);
  }
  p.restore();
}

void paintPaper(QPainter& p, const QRectF& r, StableRandom& rnd, QColor base) {
  p.save();
  p.setClipRect(r);
  p.setRenderHint(QPainter::Antialiasing);
  p.fillRect(r, base);
  const int fibres = int(r.width() * r.height() / 180);
  for (int i = 0; i < fibres; ++i) {
    const QPointF a(rnd.between(r.left(), r.right()), rnd.between(r.top(), r.bottom()));
    const double angle = rnd.between(0, 6.28);
    const double length = rnd.between(2, 7);
    p.setPen(QPen(rnd.below(2) ? QColor(255, 255, 245, 70) : QColor(120, 90, 40, 35), 0.8));
    p.drawLine(a, a + QPointF(std::cos(angle) * length, std::sin(angle) * length));
  }
  for (int i = rnd.below(4); i > 0; --i) {
    const QPointF at(rnd.between(r.left(), r.right()), rnd.between(r.top(), r.bottom()));
    const double radius = rnd.between(6, 22);
    QRadialGradient spot(at, radius);
    spot.setColorAt(0, QColor(160, 120, 60, 28));
    spot.setColorAt(0.8, QColor(160, 120, 60, 18));
    spot.setColorAt(1, QColor(160, 120, 60, 0));
    p.fillRect(QRectF(at - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius)), spot);
  }
  // Browned edges.
  const double edge = std::min(r.width(), r.height()) * 0.12;
  const QColor brown(150, 100, 40, 70);
  const QColor clear(150, 100, 40, 0);
  for (int side = 0; side < 4; ++side) {
    QRectF band = r;
    QLinearGradient g;
    if (side == 0) band.setHeight(edge), g = QLinearGradient(band.topLeft(), band.bottomLeft());
    if (side == 1) band.setTop(r.bottom() - edge), g = QLinearGradient(band.bottomLeft(), band.topLeft());
    if (side == 2) band.setWidth(edge), g = QLinearGradient(band.topLeft(), band.topRight());
    if (side == 3) band.setLeft(r.right() - edge), g = QLinearGradient(band.topRight(), band.topLeft());
    g.setColorAt(0, brown);
    g.setColorAt(1, clear);
    p.fillRect(band, g);
  }
  p.restore();
}

void paintLeather(QPainter& p, const QRectF& r, QColor tone, StableRandom& rnd, double corner) {
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  QPainterPath outline;
  outline.addRoundedRect(r, corner, corner);
  p.setClipPath(outline);
  QLinearGradient fill(r.topLeft(), r.bottomRight());
  fill.setColorAt(0, shade(tone, 1.15));
  fill.setColorAt(1, shade(tone, 0.8));
  p.fillRect(r, fill);
  p.setPen(Qt::NoPen);
  const int blots = int(r.width() * r.height() / 900);
  for (int i = 0; i < blots; ++i) {
    p.setBrush(withAlpha(shade(tone, rnd.between(0.7, 1.3)), int(rnd.between(10, 35))));
    p.drawEllipse(QPointF(rnd.between(r.left(), r.right()), rnd.between(r.top(), r.bottom())),
                  rnd.between(3, 14), rnd.between(3, 10));
  }
  // Worn edges, then the seam.
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(withAlpha(shade(tone, 0.5), 160), 4));
  p.drawRoundedRect(r.adjusted(1, 1, -1, -1), corner, corner);
  QPen stitch(withAlpha(QColor(0xe8d6a8), 200), 1.6, Qt::DashLine);
  stitch.setDashPattern({3, 2.5});
  p.setPen(stitch);
  p.drawRoundedRect(r.adjusted(7, 7, -7, -7), std::max(1.0, corner - 5), std::max(1.0, corner - 5));
  p.restore();
}

void paintCloth(QPainter& p, const QRectF& r, QColor tone, StableRandom& rnd) {
  p.save();
  p.setClipRect(r);
  p.fillRect(r, tone);
  for (double y = r.top(); y < r.bottom(); y += 2) {
    p.setPen(QPen(withAlpha(shade(tone, rnd.between(0.8, 1.2)), 60), 1));
    p.drawLine(QPointF(r.left(), y), QPointF(r.right(), y));
  }
  for (double x = r.left(); x < r.right(); x += 3) {
    p.setPen(QPen(withAlpha(shade(tone, rnd.between(0.8, 1.15)), 40), 1));
    p.drawLine(QPointF(x, r.top()), QPointF(x, r.bottom()));
  }
  p.restore();
}

void drawFrame(QPainter& p, const QRectF& r, double width, QColor tone) {
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(Qt::NoPen);
  const QRectF inner = r.adjusted(width, width, -width, -width);
  const QPointF outer[4] = {r.topLeft(), r.topRight(), r.bottomRight(), r.bottomLeft()};
  const QPointF in[4] = {inner.topLeft(), inner.topRight(), inner.bottomRight(), inner.bottomLeft()};
  const double light[4] = {1.25, 0.95, 0.7, 1.05};  // lamp above and to the left
  for (int side = 0; side < 4; ++side) {
    const int next = (side + 1) % 4;
    p.setBrush(shade(tone, light[side]));
    p.drawPolygon(QPolygonF({outer[side], outer[next], in[next], in[side]}));
  }
  p.setPen(QPen(shade(tone, 0.45), 1.2));
  p.setBrush(Qt::NoBrush);
  p.drawRect(r);
  p.drawRect(inner);
  p.setPen(QPen(shade(tone, 1.4), 1));
  p.drawRect(r.adjusted(width / 2, width / 2, -width / 2, -width / 2));
  p.restore();
}

void drawBrassPlate(QPainter& p, const QRectF& r, const QString& text) {
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  dropShadow(p, r, 3);
  QLinearGradient metal(r.topLeft(), r.bottomLeft());
  metal.setColorAt(0, QColor(0xf6df9a));
  metal.setColorAt(0.45, QColor(0xc9a04a));
  metal.setColorAt(0.55, QColor(0xb88c36));
  metal.setColorAt(1, QColor(0xe2c070));
  p.setBrush(metal);
  p.setPen(QPen(QColor(0x6a4c14), 1.5));
  p.drawRoundedRect(r, 4, 4);
  p.setPen(QPen(QColor(255, 240, 200, 150), 1));
  p.drawRoundedRect(r.adjusted(3, 3, -3, -3), 3, 3);
  const double screw = std::max(2.0, r.height() * 0.08);
  for (const QPointF at :
       {r.topLeft() + QPointF(screw * 2.5, screw * 2.5), r.topRight() + QPointF(-screw * 2.5, screw * 2.5),
        r.bottomLeft() + QPointF(screw * 2.5, -screw * 2.5),
        r.bottomRight() + QPointF(-screw * 2.5, -screw * 2.5)}) {
    p.setBrush(QColor(0x8a6a2a));
    p.setPen(QPen(QColor(0x5a400e), 0.8));
    p.drawEllipse(at, screw, screw);
    p.drawLine(at - QPointF(screw * 0.7, screw * 0.3), at + QPointF(screw * 0.7, screw * 0.3));
  }
  QFont font(QStringLiteral("DejaVu Serif"));
  font.setPixelSize(int(r.height() * 0.42));
  font.setBold(true);
  font.setLetterSpacing(QFont::PercentageSpacing, 108);
  p.setFont(font);
  p.setPen(QColor(255, 244, 210, 170));
  p.drawText(r.translated(0.8, 1), Qt::AlignCenter, text);
  p.setPen(QColor(0x4a3208));
  p.drawText(r, Qt::AlignCenter, text);
  p.restore();
}

void drawInkTitle(QPainter& p, const QRectF& r, const QString& text, double pixelSize, bool serif) {
  p.save();
  QFont font(serif ? QStringLiteral("DejaVu Serif") : QStringLiteral("DejaVu Sans"));
  font.setPixelSize(int(pixelSize));
  font.setBold(true);
  p.setFont(font);
  p.setPen(withAlpha(kInk, 230));
  p.drawText(r, Qt::AlignCenter | Qt::TextWordWrap, text);
  p.restore();
}

void drawGarland(QPainter& p, QPointF left, QPointF right, double sag, StableRandom& rnd) {
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  const auto along = [&](double t) {
    return QPointF(left.x() + (right.x() - left.x()) * t,
                   left.y() + (right.y() - left.y()) * t + sag * 4 * t * (1 - t));
  };
  const int tufts = std::max(8, int(QLineF(left, right).length() / 7));
  for (int i = 0; i <= tufts; ++i) {
    const QPointF at = along(double(i) / tufts);
    for (int n = 0; n < 7; ++n) {
      const double angle = rnd.between(0, 6.28);
      const double length = rnd.between(6, 13);
      p.setPen(QPen(QColor::fromHsv(int(rnd.between(95, 130)), 170, int(rnd.between(50, 110))),
                    rnd.between(1.2, 2.2), Qt::SolidLine, Qt::RoundCap));
      p.drawLine(at, at + QPointF(std::cos(angle) * length, std::sin(angle) * length * 0.8));
    }
  }
  p.setPen(QPen(QColor(0x5a0e0a), 0.8));
  for (int i = 1; i < tufts; i += 3) {
    const QPointF at = along(double(i) / tufts) + QPointF(rnd.between(-4, 4), rnd.between(-2, 5));
    for (int b = 0; b < 3; ++b) {
      p.setBrush(QColor(0xc4161c).lighter(int(rnd.between(90, 125))));
      p.drawEllipse(at + QPointF(b * 3.2 - 3, (b % 2) * 2.5), 2.6, 2.6);
    }
  }
  p.restore();
}

void dropShadow(QPainter& p, const QRectF& r, double depth) {
  p.save();
  p.setPen(Qt::NoPen);
  for (int i = int(depth * 2); i >= 1; --i) {
    p.setBrush(QColor(0, 0, 0, int(60 / depth)));
    p.drawRoundedRect(r.translated(i * 0.5, i * 0.7), 4, 4);
  }
  p.restore();
}

void vignette(QImage& image, double strength) {
  QPainter p(&image);
  const QPointF centre(image.width() / 2.0, image.height() / 2.0);
  QRadialGradient fall(centre, std::hypot(centre.x(), centre.y()));
  fall.setColorAt(0, QColor(0, 0, 0, 0));
  fall.setColorAt(0.6, QColor(0, 0, 0, 0));
  fall.setColorAt(1, QColor(0, 0, 0, int(255 * strength)));
  p.fillRect(image.rect(), fall);
}

void addGrain(QImage& image, int amount, uint64_t seed) {
  StableRandom rnd(seed);
  image = image.convertToFormat(QImage::Format_RGB32);
  for (int y = 0; y < image.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x) {
      const int d = int(rnd.next() % uint64_t(2 * amount + 1)) - amount;
      const QRgb c = line[x];
      line[x] = qRgb(std::clamp(qRed(c) + d, 0, 255), std::clamp(qGreen(c) + d, 0, 255),
                     std::clamp(qBlue(c) + d, 0, 255));
    }
  }
}

}  // namespace worldgen
