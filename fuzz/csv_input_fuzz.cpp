// SPDX-License-Identifier: GPL-2.0-or-later
// Fuzzes list input, the reader of every CSV table: the first byte picks the order in which
// fields are asked for as text, numbers, dates and lines, the rest is the file.
#include "fuzz_support.h"
#include "platform/runtime.h"
#include "platform/text_file.h"

namespace {

void readField(rt::ListInput& input, int kind) {
  switch (kind) {
    case 0: input.inputString(); break;
    case 1: input.inputInt16(); break;
    case 2: input.inputDouble(); break;
    case 3: input.inputDate(); break;
    default: input.lineInput(); break;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  const uint8_t order = data[0];
  rt::ListInput input = rt::ListInput::fromBytes(fuzzing::bytesOf(data + 1, size - 1));
  // Every field may be read whatever it holds; the readers' handlers stop at the first error.
  for (int field = 0; field < 4096 && !input.eof(); ++field) {
    try {
      readField(input, (order >> (field % 4 * 2)) % 5);
    } catch (const rt::InputPastEnd&) {
      break;
    } catch (const rt::TypeMismatch&) {
    } catch (const rt::OverflowError&) {
    }
  }
  return 0;
}
