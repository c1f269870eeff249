// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "report/LinePlot.h"

namespace TextPlot {

/// The plot in letters of one width, a few lines that each end in a line feed.
std::string of(const LinePlot& plot);

} // namespace TextPlot
