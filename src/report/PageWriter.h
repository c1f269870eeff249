// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "report/LinePlot.h"
#include "report/PageFact.h"
#include "report/PageTable.h"

/// Writes the parts of a page in its language, in the order of the calls. All
/// texts it gets are printable UTF-8; that they mean nothing to the language is
/// the writer's business.
class PageWriter {
public:
    enum class Tone { good, doubtful, bad };

    PageWriter() = default;
    virtual ~PageWriter() = default;
    PageWriter(const PageWriter&) = delete;
    PageWriter& operator=(const PageWriter&) = delete;

    /// The first call, and the last one.
    virtual void begin(std::string_view title) = 0;
    virtual void end() = 0;

    /// `level` from 1, with no step left out.
    virtual void heading(int level, std::string_view text) = 0;
    virtual void beginSection() = 0;
    virtual void endSection() = 0;
    virtual void paragraph(std::string_view text) = 0;
    /// The result, and what it is due to.
    virtual void notice(Tone tone, std::string_view text, const std::vector<std::string>& items) = 0;
    virtual void list(const std::vector<std::string>& items) = 0;
    virtual void facts(const std::vector<PageFact>& facts) = 0;
    virtual void table(const PageTable& table) = 0;
    virtual void plot(const LinePlot& plot) = 0;
};
