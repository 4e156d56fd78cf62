// SPDX-License-Identifier: GPL-2.0-or-later
// Fuzzes the Rich Text reader behind the hunting guide.
#include "fuzz_support.h"
#include "platform/rtf/rtf_reader.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  platform::rtf::readRtf(fuzzing::bytesOf(data, size));
  return 0;
}
