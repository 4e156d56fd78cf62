// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/pictures.h"

#include "shell/names.h"
#include "tools/worldgen/item_pictures.h"
#include "tools/worldgen/landscape.h"
#include "tools/worldgen/lodge_screens.h"
#include "tools/worldgen/night_pictures.h"
#include "tools/worldgen/partner_pages.h"
#include "tools/worldgen/portraits.h"
#include "tools/worldgen/shooting_pictures.h"
#include "tools/worldgen/speech_lines.h"
#include "tools/worldgen/stable_random.h"
#include "tools/worldgen/title_screens.h"
#include "tools/worldgen/trophy_photos.h"
#include "tools/worldgen/weapon_pictures.h"
#include "tools/worldgen/world_layout.h"

#include <QPainter>

#include <set>
#include <stdexcept>

namespace worldgen {

namespace {

namespace fs = std::filesystem;

void save(const QImage& image, const fs::path& file) {
  fs::create_directories(file.parent_path());
  if (!image.convertToFormat(QImage::Format_RGB888).save(QString::fromStdString(file.string()), "BMP"))
    throw std::runtime_error("cannot write " + file.string());
}

// A card with the item drawn on it and, when there is room, its name below.
QImage itemPicture(const QString& name, int kind, QSize size) {
  QImage image(size, QImage::Format_RGB32);
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  QLinearGradient back(0, 0, 0, size.height());
  back.setColorAt(0, QColor(0xf0e8d8));
  back.setColorAt(1, QColor(0xd8ccb4));
  p.fillRect(image.rect(), back);
  const bool named = size.width() >= 64;
  const QRectF art =
      named ? QRectF(size.width() * 0.2, size.height() * 0.08, size.width() * 0.6, size.height() * 0.6)
            : QRectF(QPointF(1, 1), QSizeF(size) - QSizeF(2, 2));
  drawItem(p, art, kind, name);
  if (!named) return image;
  QFont font = p.font();
  font.setPixelSize(size.height() / 10);
  p.setFont(font);
  p.setPen(QColor(0x2a2018));
  p.drawText(QRectF(4, size.height() * 0.7, size.width() - 8, size.height() * 0.28),
             Qt::AlignCenter | Qt::TextWordWrap, name);
  return image;
}

// A tag card: a coloured stock with its eyelet, the species and the tag's number.
QImage tagCard(QColor stock, const QString& title, const QString& line) {
  QImage image(200, 100, QImage::Format_RGB32);
  image.fill(stock);
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(QPen(stock.darker(190), 3));
  p.drawRect(image.rect().adjusted(2, 2, -3, -3));
  p.setBrush(QColor(0xc9a04a));
  p.drawEllipse(QRectF(10, 40, 16, 16));
  p.setBrush(stock);
  p.drawEllipse(QRectF(14, 44, 8, 8));
  QFont font = p.font();
  font.setPixelSize(16);
  font.setBold(true);
  p.setFont(font);
  p.setPen(QColor(0x3a2a10));
  p.drawText(QRect(30, 10, 165, 40), Qt::AlignCenter, title);
  font.setPixelSize(12);
  p.setFont(font);
  p.drawText(QRect(30, 55, 165, 30), Qt::AlignCenter, line);
  return image;
}

QImage tagPicture(int species) {
  return tagCard(QColor(0xf2e6a8), speciesNameOf(species),
                 QStringLiteral("HUNTING TAG No. %1").arg(species, 4, 10, QChar(u'0')));
}

// A filled tag: punched through and stamped.
QImage filledTag() {
  QImage image = tagCard(QColor(0xe8d8b0), QStringLiteral("HUNTING TAG"), QStringLiteral("used this season"));
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  p.translate(112, 52);
  p.rotate(-14);
  QFont font = p.font();
  font.setPixelSize(30);
  font.setBold(true);
  p.setFont(font);
  const QRectF stamp(-80, -22, 160, 44);
  p.setPen(QPen(QColor(180, 20, 20, 190), 3));
  p.setBrush(Qt::NoBrush);
  p.drawRoundedRect(stamp, 6, 6);
  p.drawText(stamp, Qt::AlignCenter, QStringLiteral("FILLED"));
  return image;
}

// A species this world does not hunt: a grey card, crossed out.
QImage unavailableTag() {
  QImage image = tagCard(QColor(0xbdbab2), QStringLiteral("NOT HUNTED"), QStringLiteral("in this world"));
  QPainter p(&image);
  p.setPen(QPen(QColor(90, 80, 70, 160), 3));
  p.drawLine(QPointF(8, 92), QPointF(192, 8));
  return image;
}

}  // namespace

void writeGearPictures(const Content& c, const fs::path& root) {
  for (int row = 0; row < c.catalog.rows.size(); ++row) {
    const std::string id = cell(c.catalog, row, "ID").toStdString();
    const QString name = cell(c.catalog, row, "Item");
    const int kind = cell(c.catalog, row, "Sub-CatNumber").toInt();
    save(itemPicture(name, kind, QSize(200, 150)), root / "invpics" / ("image" + id + ".bmp"));
    save(itemPicture(name, kind, QSize(32, 32)), root / "invpics" / ("icon" + id + ".bmp"));
  }
  for (int n = 1; n <= kWeaponCount; ++n) {
    save(weaponPicture(n, QSize(300, 100)), root / "pict" / ("weapon" + std::to_string(n) + ".bmp"));
    save(weaponPicture(n, QSize(32, 32)), root / "pict" / ("wicon" + std::to_string(n) + ".bmp"));
    // The special-permit rack's own guns, for the rack to show when those worlds are in play.
    save(weaponPicture(n, QSize(300, 100), true), root / "pict" / ("xweapon" + std::to_string(n) + ".bmp"));
    save(weaponPicture(n, QSize(32, 32), true), root / "pict" / ("xwicon" + std::to_string(n) + ".bmp"));
  }
}

void writePictures(const Content& c, const fs::path& root) {
  writeGearPictures(c, root);
  for (int s = 1; s <= kSpeciesCount; ++s) {
    save(tagPicture(s), root / "licnpics" / ("tag" + std::to_string(s) + ".bmp"));
    save(recordBookPicture(c, s), root / "art" / ("Trophy" + std::to_string(s) + ".bmp"));
  }
  save(filledTag(), root / "licnpics" / "ftag.bmp");
  save(unavailableTag(), root / "licnpics" / "natag.bmp");
  std::set<QString> done;
  for (const World& w : allWorlds())
    for (const SpokenLine& line : spokenLines(c)) {
      const QString name = pictureOf(w, line.speaker);
      if (done.insert(name).second) save(portrait(name), root / "art" / (name + ".bmp").toStdString());
    }
  writeLodgeScreens(root);
  writeTitleScreens(root);
  writeNightAndEndPictures(root);
  writeOpticsOverlays(root);
  writeShootingPictures(root);
  writeTrophyPhotos(c, root);
  writePartnerPages(root);
}

}  // namespace worldgen
