// SPDX-License-Identifier: GPL-2.0-or-later
// A panorama's pixels read from a file: decoded straight into the padded rows they lie the
// same as when copied from a decoded picture, whatever the file's format, and a file that
// cannot be read says so.
#include "platform/panorama/panorama_image.h"

#include <QBuffer>
#include <QImageReader>

#include <gtest/gtest.h>

namespace platform {
namespace {

QImage stripes(int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) image.setPixel(x, y, qRgb(x * 3 & 255, (x ^ y) & 255, y * 5 & 255));
  return image;
}

QByteArray encoded(const QImage& image, const char* format) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, format, 95);
  return bytes;
}

PanoramaImage readBack(QByteArray bytes, const char* format) {
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer, format);
  return PanoramaImage(reader);
}

// Every pixel and the padding: row -1 and row `height` repeat the edge rows, and the column
// past the right edge repeats column 0.
void expectSameLayout(const PanoramaImage& read, const PanoramaImage& copied) {
  ASSERT_EQ(read.width(), copied.width());
  ASSERT_EQ(read.height(), copied.height());
  ASSERT_EQ(read.stride(), copied.stride());
  int differing = 0;
  for (std::ptrdiff_t i = 0; i < (read.height() + 2) * read.stride(); ++i) {
    if (i % read.stride() > read.width()) continue;  // beyond the wrap-around column
    differing += read.paddedRows()[i] != copied.paddedRows()[i];
  }
  EXPECT_EQ(differing, 0);
}

TEST(PanoramaImage, DecodesIntoItsRowsAsIfCopiedWithThePaddingFilled) {
  // Odd widths, so the rows' stride is not the picture's; colour and grey JPEG, and PNG.
  const QImage picture = stripes(301, 47);
  for (const auto& [format, source] :
       {std::pair{"JPEG", picture}, std::pair{"PNG", picture},
        std::pair{"JPEG", picture.convertToFormat(QImage::Format_Grayscale8)}}) {
    const QByteArray bytes = encoded(source, format);
    const PanoramaImage read = readBack(bytes, format);
    const PanoramaImage copied(QImage::fromData(bytes, format));
    SCOPED_TRACE(std::string(format) + " " + std::to_string(source.format()));
    expectSameLayout(read, copied);
    EXPECT_EQ(read.pixel(300, 46), copied.pixel(300, 46));
    EXPECT_EQ(read.paddedRows()[read.width()], read.pixel(0, 0));
    EXPECT_EQ(read.paddedRows()[(read.height() + 1) * read.stride()], read.pixel(0, read.height() - 1));
  }
}

TEST(PanoramaImage, AnUnreadableFileGivesANullImage) {
  const PanoramaImage broken = readBack(encoded(stripes(40, 20), "JPEG").left(30), "JPEG");
  EXPECT_TRUE(broken.isNull());
  EXPECT_EQ(broken.width(), 0);
  EXPECT_FALSE(PanoramaImage(stripes(4, 4)).isNull());
}

}  // namespace
}  // namespace platform
