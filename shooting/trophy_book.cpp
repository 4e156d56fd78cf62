// SPDX-License-Identifier: GPL-2.0-or-later
#include "shooting/trophy_book.h"

#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/records/record_data.h"
#include "shooting/logging.h"
#include "shooting/trophy_record.h"

#include <QDateTime>

#include <system_error>

namespace {

// True when the book is absent or a record file holding every field of a trophy.
bool isUsable(const QString& book) {
  platform::RecordData data;
  data.SetDatabaseName(book);
  try {
    data.Refresh();
    const QStringList fields = data.FieldNames();
    if (fields.isEmpty()) return true;
    for (const auto& [name, value] : newTrophyRecord())
      if (!fields.contains(name, Qt::CaseInsensitive)) return false;
    return true;
  } catch (const std::exception& e) {
    qCWarning(shootingLog) << "the record book" << book << "cannot be read:" << e.what();
    return false;
  }
}

}  // namespace

QString damagedBookMessage(const QString& book, const QString& keptAs) {
  return QStringLiteral(
             "The record book %1 could not be read. It was kept as %2 and a new record book was "
             "started.")
      .arg(book, keptAs);
}

std::optional<QString> keepTrophyBookUsable() {
  const QString book = trophyBookPath();
  if (isUsable(book)) return std::nullopt;
  const QString keptAs = book + QStringLiteral(".damaged-") +
                         QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
  if (!platform::files().rename(book, keptAs)) {
    qCWarning(shootingLog) << "the damaged record book" << book << "could not be renamed to" << keptAs;
    return std::nullopt;
  }
  const QString bookFile = QString::fromStdString(platform::files().resolve(book).string());
  const QString keptFile = QString::fromStdString(platform::files().resolve(keptAs).string());
  qCWarning(shootingLog) << "the damaged record book" << bookFile << "was kept as" << keptFile;
  platform::MsgBox(damagedBookMessage(bookFile, keptFile), platform::Buttons::Ok, platform::Icon::Exclamation,
                   QStringLiteral("Record Book"));
  return keptAs;
}

void appendTrophyTo(platform::RecordData& data) {
  data.SetDatabaseName(trophyBookPath());
  data.Refresh();
  data.AddNew();
  for (const auto& [field, value] : newTrophyRecord()) data.SetField(field, value);
  data.Update();
}
