// SPDX-License-Identifier: GPL-2.0-or-later
// Record files as comma-separated text, so that world authors edit them in any editor: the
// first line holds the field names, each further line one record.
#pragma once

#include "platform/records/record_file.h"

#include <QString>

namespace platform {

// Fields are separated by commas; a field in double quotes may hold commas, line breaks and
// doubled quotes. Blanks are kept as written. A short line leaves its last fields empty; a
// line with more fields than the header, or an unclosed quote, throws RecordError.
RecordTable parseRecordCsv(const QString& text);

// Quotes exactly the fields that need it, so parseRecordCsv gives back the same table.
QString recordCsv(const RecordTable& table);

}  // namespace platform
