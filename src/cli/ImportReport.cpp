// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/ImportReport.h"

#include <system_error>

#include "cli/GivenOptions.h"
#include "cli/SafeText.h"
#include "cli/SystemText.h"
#include "report/HtmlPage.h"
#include "report/MarkdownPage.h"
#include "report/PageText.h"

namespace {

template <class Page>
std::string textOf(const ImportPage& page) {
    Page out;
    PageText::write(page, out);
    return out.text();
}

} // namespace

ImportReport::ImportReport(const Options& options, const std::filesystem::path& store) : m_options(options) {
    if (!options.report)
        return;
    std::vector<std::filesystem::path> others(options.operands.begin(), options.operands.end());
    others.push_back(store);
    m_file.emplace(*options.report, others);
    m_page.store = SafeText::printable(store.string());
    m_page.program = "dmimport " DMIMPORT_VERSION;
    m_page.options = SafeText::printable(GivenOptions::text(options));
}

std::optional<Message> ImportReport::write() {
    if (!isWanted())
        return std::nullopt;
    for (std::size_t i = m_page.files.size(); i < m_options.operands.size(); ++i)
        m_page.unread.push_back(SafeText::printable(m_options.operands[i]));
    try {
        m_file->write(m_file->language() == ReportFile::Language::html ? textOf<HtmlPage>(m_page)
                                                                       : textOf<MarkdownPage>(m_page));
    } catch (const std::system_error& error) {
        return Message::of(Problem::reportFailed, {m_file->name(), systemText(error.code().value())});
    }
    return std::nullopt;
}
