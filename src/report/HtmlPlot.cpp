// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "report/HtmlPlot.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "report/GermanText.h"
#include "report/HtmlText.h"

namespace {

// More than a window has points, so that a step is no wider than a line.
constexpr std::int64_t kWidth = 600;
constexpr std::int64_t kHeight = 300;

std::int64_t down(const LinePlot& plot, std::int64_t cents) { return kHeight - plot.up(cents, kHeight); }

/// The line in steps: every day holds its value until the next one. Where days
/// share a column of the picture, it shows how far they reach, and the last one.
std::string pathOf(const LinePlot& plot) {
    std::string path = "M0 " + std::to_string(down(plot, plot.values.front().cents));
    for (auto at = plot.values.begin(); at != plot.values.end();) {
        const std::int64_t x = plot.across(*at, kWidth);
        std::int64_t low = at->cents;
        std::int64_t high = at->cents;
        std::int64_t last = at->cents;
        for (; at != plot.values.end() && plot.across(*at, kWidth) == x; ++at) {
            low = std::min(low, at->cents);
            high = std::max(high, at->cents);
            last = at->cents;
        }
        if (x != 0)
            path += "H" + std::to_string(x);
        const std::array<std::int64_t, 3> stops = {low, high, last};
        for (std::size_t i = low == high ? 2 : 0; i < stops.size(); ++i)
            path += "V" + std::to_string(down(plot, stops.at(i)));
    }
    return path;
}

/// In a hundredth of the height, from below.
std::string share(const LinePlot& plot, std::int64_t tick) {
    constexpr std::int64_t kTenths = 1000;
    const std::int64_t tenths = plot.up(tick, kTenths);
    return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
}

} // namespace

namespace HtmlPlot {

void append(std::string& out, const LinePlot& plot, std::size_t number) {
    const std::string name = "plot" + std::to_string(number);
    std::size_t letters = 0;
    for (const std::int64_t tick : plot.ticks)
        letters = std::max(letters, plot.label(tick).size());
    out += "<figure style=\"--letters:" + std::to_string(letters) + "\">\n<figcaption>";
    HtmlText::appendEscaped(out, plot.title);
    out += "</figcaption>\n<div class=plot>\n<svg role=\"img\" viewBox=\"0 0 " + std::to_string(kWidth) + " " +
           std::to_string(kHeight) + R"(" preserveAspectRatio="none" aria-labelledby=")" + name + "t " + name +
           "d\">\n<title id=\"" + name + "t\">";
    HtmlText::appendEscaped(out, plot.title);
    out += "</title>\n<desc id=\"" + name + "d\">";
    HtmlText::appendEscaped(out, plot.description);
    out += "</desc>\n";
    for (const std::int64_t tick : plot.ticks) {
        const std::string y = std::to_string(down(plot, tick));
        out += (tick == 0 ? R"(<path class="zero" d="M0 )" : R"(<path class="grid" d="M0 )") + y + "H" +
               std::to_string(kWidth) + "\"/>\n";
    }
    out += R"(<path class="line" d=")" + pathOf(plot) + "\"/>\n</svg>\n";
    for (const std::int64_t tick : plot.ticks)
        out += "<span class=tick aria-hidden=true style=\"bottom:" + share(plot, tick) + "%\">" + plot.label(tick) +
               "</span>\n";
    out += "</div>\n<div class=days aria-hidden=true><span>" + GermanText::date(plot.values.front().day) +
           "</span><span>" + GermanText::date(plot.values.back().day) + "</span></div>\n<p class=said>";
    HtmlText::appendEscaped(out, plot.description);
    out += "</p>\n</figure>\n";
}

} // namespace HtmlPlot
