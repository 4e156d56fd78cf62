// SPDX-License-Identifier: GPL-2.0-or-later
// Runs independent painting jobs on two threads, the machine's two cores. Each job writes its
// own file, so the world's bytes do not depend on which thread ran it.
#pragma once

#include <functional>
#include <vector>

namespace worldgen {

// Returns when every job has run; the last failure, if any, is thrown again here.
void runOnTwoThreads(const std::vector<std::function<void()>>& jobs);

}  // namespace worldgen
