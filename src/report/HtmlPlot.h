// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

#include "report/LinePlot.h"

namespace HtmlPlot {

/// A figure with the line as an SVG picture. It is stretched to the width of the
/// window, so the labels, which are not to be stretched, are texts above it.
/// `number` tells the plots of a page apart.
void append(std::string& out, const LinePlot& plot, std::size_t number);

} // namespace HtmlPlot
