// SPDX-License-Identifier: GPL-2.0-or-later
// Opening documents: a path that leads nowhere answers 31, as a failed shell open does.
#include "platform/shell_open.h"
#include "platform/files.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

TEST(DesktopShellOpener, AMissingDocumentIsTheNoAssociationResult) {
  QTemporaryDir dir;
  platform::ScopedService<platform::Files> files;
  files->mapDrive(u'D', dir.path().toStdString());
  EXPECT_EQ(platform::DesktopShellOpener().ShellExecute("D:\\coldwater\\index.htm"),
            platform::kOpenNoAssociation);
  EXPECT_EQ(platform::DesktopShellOpener().ShellExecute("Q:\\devpage\\index.htm"),
            platform::kOpenNoAssociation);
}
