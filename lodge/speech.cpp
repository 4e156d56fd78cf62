// SPDX-License-Identifier: GPL-2.0-or-later
#include "lodge/speech.h"

#include "lodge/logging.h"
#include "lodge/talkform.h"
#include "platform/media/media_window.h"
#include "platform/random.h"
#include "platform/records/record_data.h"
#include "platform/runtime.h"
#include "platform/screens_host.h"
#include "shell/game_state.h"
#include "shell/hunt_media.h"
#include "shell/screen_instance.h"

#include <QPushButton>

#include <algorithm>
#include <optional>

namespace talk {
namespace {

// The world's background recording plays in snippets of 0.6 to 4 seconds.
constexpr int64_t kLongestSnippetMs = 4000;
constexpr int64_t kShortestSnippetMs = 600;
constexpr double kSnippetSpreadMs = 3401;

// One recorded line, as the conversation box shows it.
struct Line {
  QString text;
  QString picture;
};

bool isPiece(const QString& piece) {
  return !piece.isEmpty() && piece != QStringLiteral("@");
}

QString lineText(const platform::RecordData& record) {
  QString text = record.Field(QStringLiteral("Engtext1")).trimmed();
  for (const char* field : {"Engtext2", "Engtext3"}) {
    const QString piece = record.Field(QString::fromLatin1(field)).trimmed();
    if (isPiece(piece)) text += QStringLiteral(" \r\n") + piece;
  }
  return text;
}

// A new sound always cuts off the one playing.
void closeBusyMedia() {
  if (Game.MediaBusy) huntMediaWindow().command(QStringLiteral("Close"));
}

// Finds the line at `position` of the list and makes its stretch of sound the current one.
std::optional<Line> loadLine(int16_t position) {
  if (position < 0 || position >= Game.ConvCount) return std::nullopt;
  platform::RecordData lines;
  lines.SetDatabaseName(Game.MediaRoot + Game.DbaseDir + Game.AreaLetter + QStringLiteral("snoun.isd"));
  lines.SetCriteria(QStringLiteral("Field(\"Conv Name\") = ") + QString::number(Game.ConvLines[position]));
  lines.FindFirst();
  if (lines.NoMatch()) return std::nullopt;
  Game.ConvPath = Game.MediaRoot + QStringLiteral("sound\\") +
                  lines.Field(QStringLiteral("Wave File")).trimmed() + QStringLiteral(".wav");
  Game.ConvStart = lines.Field(QStringLiteral("Engstart")).trimmed();
  Game.ConvEnd = lines.Field(QStringLiteral("Engend")).trimmed();
  return Line{lineText(lines), Game.MediaRoot + QStringLiteral("art\\") +
                                   lines.Field(QStringLiteral("whopic")).trimmed() + QStringLiteral(".bmp")};
}

// Picks one of the key's lines at random and plays it; returns it for showing.
std::optional<Line> speakOne(const QString& key) {
  closeBusyMedia();
  const int16_t count = FillConvArr(key);
  if (count == 0) return std::nullopt;
  platform::random().Randomize();
  const auto position = static_cast<int16_t>(rt::Int(platform::Rnd() * count));
  auto line = loadLine(position);
  if (line) Soundplay();
  return line;
}

void showLine(const Line& line) {
  auto& box = ScreenInstance<Talkform>::get();
  box.showLine(line.picture, line.text);
  // The line is already sounding; playing it again on loading the box would clip it.
  if (!box.isVisible()) box.dress();
  box.show();
  box.raise();
}

}  // namespace

int16_t FillConvArr(const QString& key) {
  platform::RecordData links;
  links.SetDatabaseName(Game.MediaRoot + Game.DbaseDir + QStringLiteral("Clinks.isd"));
  links.SetCriteria(QStringLiteral("Field(\"Hypname\") = \"") + key.trimmed() + QStringLiteral("\""));
  links.SetOrderBy(QStringLiteral("sequence"));
  int16_t count = 0;
  for (links.FindFirst(); !links.NoMatch(); links.FindNext()) {
    if (count == kConvLineCount) {
      // The list holds 51 lines; the world must not file more under one key.
      qCWarning(lodgeLog) << "speech key" << key << "has more lines than the list holds";
      break;
    }
    Game.ConvLines[count++] = rt::to16(rt::parseNumber(links.Field(QStringLiteral("Conv Name"))));
  }
  Game.ConvCount = count;
  return count;
}

void Saynotext(const QString& key) {
  speakOne(key);
}

void Say(const QString& key) {
  if (const auto line = speakOne(key)) showLine(*line);
}

void InitSaylist(const QString& key) {
  closeBusyMedia();
  FillConvArr(key);
  Game.SayIndex = 0;
  auto& box = ScreenInstance<Talkform>::get();
  Saylist(0);
  box.Nextconv->setEnabled(Game.ConvCount > 1);
  box.Prevconv->setEnabled(false);
  box.Form_Load();
  platform::screensHost().ShowModal(box);
  ScreenInstance<Talkform>::unload();
}

void Saylist(int16_t position) {
  const auto line = loadLine(position);
  if (line) ScreenInstance<Talkform>::get().showLine(line->picture, line->text);
}

void Soundplay() {
  if (Game.ConvPath.isEmpty()) return;
  auto& media = huntMediaWindow();
  media.setFileName(Game.ConvPath);
  Game.MediaBusy = -1;
  media.command(QStringLiteral("PLAY From ") + Game.ConvStart + QStringLiteral(" to ") + Game.ConvEnd);
}

void AreaSound() {
  closeBusyMedia();
  auto& media = huntMediaWindow();
  const QString path = Game.MediaRoot + QStringLiteral("sound\\a") + Game.AreaCode + QStringLiteral(".wav");
  media.setFileName(path);
  // A recording shorter than the longest snippet plays from its start.
  const auto start =
      std::max<int64_t>(0, int64_t(rt::Int(platform::Rnd() * double(media.length() - kLongestSnippetMs))));
  const auto duration = int64_t(rt::Int(platform::Rnd() * kSnippetSpreadMs + kShortestSnippetMs));
  Game.ConvPath = path;
  Game.ConvStart = QString::number(start);
  Game.ConvEnd = QString::number(start + duration);
  Game.MediaBusy = -1;
  media.command(QStringLiteral("PLAY From ") + Game.ConvStart + QStringLiteral(" to ") + Game.ConvEnd);
}

}  // namespace talk
