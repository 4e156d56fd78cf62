// SPDX-License-Identifier: GPL-2.0-or-later
// Fuzzes the reader of record criteria, `Field("Name") = value`.
#include "fuzz_support.h"
#include "platform/records/record_criterion.h"
#include "platform/records/record_error.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  try {
    platform::parseCriterion(QString::fromUtf8(fuzzing::bytesOf(data, size)));
  } catch (const platform::CriterionError&) {
  }
  return 0;
}
