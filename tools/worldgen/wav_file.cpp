// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/wav_file.h"

#include <QtEndian>

namespace worldgen {

namespace {

void put32(QByteArray& out, quint32 v) {
  char b[4];
  qToLittleEndian(v, b);
  out.append(b, 4);
}
void put16(QByteArray& out, quint16 v) {
  char b[2];
  qToLittleEndian(v, b);
  out.append(b, 2);
}
// Byte by byte, so no pointer runs past the bytes in view of the optimiser.
quint32 getLittleEndian(const QByteArray& in, qsizetype at, int size) {
  quint32 v = 0;
  for (int i = size - 1; i >= 0; --i) v = v << 8 | uchar(in.at(at + i));
  return v;
}
quint32 get32(const QByteArray& in, qsizetype at) {
  return getLittleEndian(in, at, 4);
}
quint16 get16(const QByteArray& in, qsizetype at) {
  return quint16(getLittleEndian(in, at, 2));
}

}  // namespace

QByteArray wavBytes(const std::vector<int16_t>& samples, int sampleRate) {
  const quint32 dataBytes = quint32(samples.size() * 2);
  QByteArray out("RIFF");
  put32(out, 36 + dataBytes);
  out.append("WAVEfmt ");
  put32(out, 16);
  put16(out, 1);  // PCM
  put16(out, 1);  // mono
  put32(out, quint32(sampleRate));
  put32(out, quint32(sampleRate * 2));
  put16(out, 2);
  put16(out, 16);
  out.append("data");
  put32(out, dataBytes);
  for (const int16_t s : samples) put16(out, quint16(s));
  return out;
}

std::optional<int> wavLengthMs(const QByteArray& bytes) {
  if (bytes.size() < 44 || !bytes.startsWith("RIFF") || bytes.mid(8, 8) != "WAVEfmt ") return std::nullopt;
  const quint32 byteRate = get32(bytes, 28);
  if (get16(bytes, 20) != 1 || byteRate == 0 || bytes.mid(36, 4) != "data") return std::nullopt;
  const quint32 dataBytes = get32(bytes, 40);
  if (qsizetype(dataBytes) > bytes.size() - 44) return std::nullopt;
  return int(quint64(dataBytes) * 1000 / byteRate);
}

}  // namespace worldgen
