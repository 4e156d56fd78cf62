// SPDX-License-Identifier: GPL-2.0-or-later
// The errors a record file raises: a file it cannot use, and a criterion it cannot read.
#pragma once

#include <stdexcept>

namespace platform {

class RecordError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// A criterion text that is not `Field("Name") = value`; nothing was searched.
class CriterionError : public RecordError {
 public:
  using RecordError::RecordError;
};

}  // namespace platform
