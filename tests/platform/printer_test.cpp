// SPDX-License-Identifier: GPL-2.0-or-later
// Printing where there is no printer: the page becomes a one-page PDF in the chosen folder.
#include "platform/printer.h"
#include "platform/files.h"

#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

// Page objects in a PDF, not counting the page tree ("/Type /Pages").
int pageCount(const QString& pdf) {
  QFile file(pdf);
  if (!file.open(QIODevice::ReadOnly)) return -1;
  static const QRegularExpression kPage(QStringLiteral(R"(/Type\s*/Page(?!s))"));
  return static_cast<int>(QString::fromLatin1(file.readAll()).count(kPage));
}

class PdfPrinting : public ::testing::Test {
 protected:
  PdfPrinting() {
    files_->mapDrive(u'C', dir_.path().toStdString());
    printer_.setPdfFolder(QStringLiteral("C:\\Hunt\\Saves\\"));
  }
  QTemporaryDir dir_;
  platform::ScopedService<platform::Files> files_;
  platform::QtPrinter printer_{platform::QtPrinter::Target::PdfOnly};
};

TEST_F(PdfPrinting, AScreenImageBecomesOnePageInTheSaveFolder) {
  QImage page(640, 480, QImage::Format_RGB32);
  page.fill(Qt::darkGreen);
  const platform::PrintResult result = printer_.PrintImage(page, QStringLiteral("Trophy"));
  ASSERT_TRUE(result.printed);
  EXPECT_TRUE(result.pdfPath.startsWith(dir_.path() + "/Hunt/Saves/Trophy")) << result.pdfPath.toStdString();
  EXPECT_EQ(pageCount(result.pdfPath), 1);
}

TEST_F(PdfPrinting, TextIsOnePageAndASecondPrintDoesNotOverwriteTheFirst) {
  const auto first = printer_.PrintText(QStringLiteral("Question 1\n\rTrue"), QStringLiteral("Test"));
  const auto second = printer_.PrintText(QStringLiteral("Question 2"), QStringLiteral("Test"));
  ASSERT_TRUE(first.printed && second.printed);
  EXPECT_NE(first.pdfPath, second.pdfPath);
  EXPECT_EQ(pageCount(first.pdfPath), 1);
  EXPECT_EQ(pageCount(second.pdfPath), 1);
}

TEST_F(PdfPrinting, AFolderThatCannotBeMadeIsAFailure) {
  QFile blocker(dir_.filePath("Blocked"));
  ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
  blocker.close();
  printer_.setPdfFolder(QStringLiteral("C:\\Blocked\\Saves"));
  const auto result = printer_.PrintText(QStringLiteral("x"), QStringLiteral("Test"));
  EXPECT_FALSE(result.printed);
  EXPECT_TRUE(result.pdfPath.isEmpty());
}

}  // namespace
