// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/sound_recordings.h"

#include "platform/media/audio_track.h"
#include "platform/media/av_input.h"

#include <QProcess>
#include <QTemporaryDir>

#include <array>

namespace worldgen {

namespace {

namespace fs = std::filesystem;

struct Source {
  const char* name;
  const char* path;  // under the system root; inside the zip when `zipped`
  bool zipped;
};

// The shots and reloads live in one zip of sound files.
constexpr const char* kShotZip = "usr/share/games/ufoai/base/0snd.pk3";

const Source kSources[] = {
    {"shot-rifle", "sound/weapons/bullet-rifle.ogg", true},
    {"shot-sniper", "sound/weapons/bullet-sniper.ogg", true},
    {"shot-shotgun", "sound/weapons/bullet-shotgun.ogg", true},
    {"shot-pistol", "sound/weapons/bullet-pistol.ogg", true},
    {"reload-rifle", "sound/weapons/reload-rifle.ogg", true},
    {"reload-sniper", "sound/weapons/reload-sniper.ogg", true},
    {"reload-shotgun", "sound/weapons/reload-shotgun.ogg", true},
    {"reload-pistol", "sound/weapons/reload-pistol.ogg", true},
    {"wind", "usr/share/games/lugaru/Sounds/Wind.ogg", false},
    {"hawk", "usr/share/games/lugaru/Sounds/Hawk.ogg", false},
    {"brush", "usr/share/games/lugaru/Sounds/BushRustle.ogg", false},
    {"step-grass", "usr/share/games/lugaru/Sounds/FootStepGrass1.ogg", false},
    {"step-snow", "usr/share/games/lugaru/Sounds/FootStepSnow1.ogg", false},
    {"bear", "usr/share/tuxpaint/stamps/animals/mammals/bears/bear.ogg", false},
    {"bison", "usr/share/tuxpaint/stamps/animals/mammals/bovines/bison.ogg", false},
    {"deer", "usr/share/tuxpaint/stamps/animals/mammals/deer/deer.ogg", false},
    {"doe", "usr/share/tuxpaint/stamps/animals/mammals/deer/doe.ogg", false},
    {"caribou", "usr/share/tuxpaint/stamps/animals/mammals/deer/caribou.ogg", false},
    {"ram", "usr/share/tuxpaint/stamps/animals/mammals/bovines/ram.ogg", false},
    {"goat", "usr/share/tuxpaint/stamps/animals/mammals/bovines/mountaingoat.ogg", false},
    {"turkey", "usr/share/tuxpaint/stamps/animals/birds/turkey.ogg", false},
};

// Stereo at the player's rate down to mono at the world's: each pair of frames averaged.
Samples decodeMono(const fs::path& file) {
  platform::AudioTrack track(file);
  if (!track.hasSound()) return {};
  // The recordings last seconds; the mixing wants them whole, read a chunk at a time.
  constexpr int64_t kLongestMs = 60 * 60 * 1000;
  track.setRange(0, kLongestMs);
  QByteArray bytes;
  std::array<char, 1 << 16> chunk{};
  for (qint64 n; (n = track.read(chunk.data(), qint64(chunk.size()))) > 0;) bytes.append(chunk.data(), n);
  const auto* pcm = reinterpret_cast<const int16_t*>(bytes.constData());
  const size_t frames = size_t(bytes.size()) / platform::AudioTrack::kBytesPerFrame;
  static_assert(platform::AudioTrack::kRate == 2 * kSoundRate);
  Samples out(frames / 2);
  for (size_t i = 0; i < out.size(); ++i) {
    double sum = 0;
    for (size_t k = 0; k < 4; ++k) sum += pcm[4 * i + k];
    out[i] = sum / 4 / 32768.0;
  }
  return out;
}

// The zip is read by the system's unzip into a scratch folder that is gone afterwards.
bool unzipInto(const fs::path& zip, const QString& folder) {
  if (!fs::is_regular_file(zip)) return false;
  QStringList args = {QStringLiteral("-qqoj"), QString::fromStdString(zip.string())};
  for (const Source& s : kSources)
    if (s.zipped) args << QString::fromLatin1(s.path);
  args << QStringLiteral("-d") << folder;
  QProcess unzip;
  unzip.start(QStringLiteral("unzip"), args);
  return unzip.waitForFinished(60000) && unzip.exitStatus() == QProcess::NormalExit && unzip.exitCode() == 0;
}

}  // namespace

Recordings::Recordings(const fs::path& systemRoot) {
  QTemporaryDir scratch;
  const bool unzipped = scratch.isValid() && unzipInto(systemRoot / kShotZip, scratch.path());
  for (const Source& s : kSources) {
    const fs::path file =
        s.zipped ? fs::path(scratch.path().toStdString()) / fs::path(s.path).filename() : systemRoot / s.path;
    Samples clip = (!s.zipped || unzipped) ? decodeMono(file) : Samples{};
    if (clip.empty())
      missing_ << QString::fromLatin1(s.zipped ? kShotZip : s.path);
    else
      clips_[s.name] = std::move(clip);
  }
  missing_.removeDuplicates();
}

const Recordings& Recordings::installed() {
  static const Recordings r("/");
  return r;
}

const Samples* Recordings::find(const std::string& name) const {
  const auto it = clips_.find(name);
  return it == clips_.end() ? nullptr : &it->second;
}

}  // namespace worldgen
