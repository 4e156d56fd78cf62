// SPDX-License-Identifier: GPL-2.0-or-later
// The partner folders' index pages and their heading pictures.
#include "tools/worldgen/partner_pages.h"

#include "tools/worldgen/landscape.h"
#include "tools/worldgen/materials.h"
#include "tools/worldgen/picture_files.h"

#include <QFile>

#include <stdexcept>

namespace worldgen {

namespace {

namespace fs = std::filesystem;

struct Page {
  const char* folder;
  const char* title;
  const char* text;
  QChar world;  // whose scenery heads the page
};

const Page kPages[] = {
    {"devpage", "The Makers",
     "The people who painted these hills, wrote the guide and set the animals walking.", u'P'},
    {"coldwater", "Coldwater Outfitters", "Boots, wool and wax for a December week in the field.", u'B'},
    {"mardens", "The Season's Sponsor", "Proud to award the trophies of this season's hunters.", u'T'},
    {"qlpage", "The Publisher", "More hunting worlds, maps and news for the next season.", u'D'},
    {"redfern", "Redfern Calls", "Calls and scents made by hand, tried in every world of the game.", u'Y'},
};

QByteArray html(const Page& page) {
  return QStringLiteral(
             "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>%1</title>\n"
             "<style>body{background:#f1e6c8;color:#2b1d0e;font-family:serif;margin:2em}"
             "img{border:6px solid #5e3b22;max-width:100%}h1{color:#5a0e0a}</style></head>\n"
             "<body><h1>%1</h1><img src=\"head.bmp\" alt=\"\"><p>%2</p></body></html>\n")
      .arg(QString::fromLatin1(page.title), QString::fromLatin1(page.text))
      .toUtf8();
}

}  // namespace

void writePartnerPages(const fs::path& root) {
  for (const Page& page : kPages) {
    const fs::path folder = root / page.folder;
    fs::create_directories(folder);
    QFile out(QString::fromStdString((folder / "index.htm").string()));
    if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate) || out.write(html(page)) < 0)
      throw std::runtime_error("cannot write " + (folder / "index.htm").string());
    QImage head = paintLandscape({page.world, QString::fromLatin1(page.folder), 600, 200, 0.5, false});
    vignette(head, 0.3);
    saveBmp(head, folder / "head.bmp");
  }
}

}  // namespace worldgen
