// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/LeftOut.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <string_view>
#include <utility>

#include "cli/SafeText.h"

namespace {

/// Codes that say what a line is that is no record, and not what was odd about it.
constexpr std::string_view kReasons[] = {"pending", "not-booked", "balance-line", "not-a-booking"};

/// What a line is that needs no message.
struct Bucket {
    LineUse use;
    const char* reason;
};
constexpr Bucket kBuckets[] = {
    {LineUse::header, "Kopfzeile"},
    {LineUse::preamble, "Vorspann"},
    {LineUse::footer, "Nachspann"},
};

/// What each line of a file is that the library gets as it is.
std::vector<LineUse> usesVerbatim(const FileReading& reading) {
    const FileCensus& census = reading.census();
    std::vector<LineUse> uses(census.lines(), LineUse::blank);
    const bool header = reading.traits().recordPerLine && reading.hasHeader();
    for (std::size_t count = 1; count <= census.readLines(); ++count)
        uses[census.readLine(count) - 1] = count == 1 && header ? LineUse::header : LineUse::record;
    return uses;
}

class Builder {
public:
    Builder(const FileReading& reading, const FileReport& report, const SourceLines& lines, FileChapter& chapter)
        : m_reading(reading), m_report(report), m_lines(lines), m_chapter(chapter) {
        for (const Message& message : report.messages) {
            if (message.line)
                m_byLine.emplace(*message.line, Said{&message, false});
        }
    }

    void run() {
        enterKnown();
        if (m_report.committed)
            enterLines(m_reading.intake() != nullptr ? m_reading.intake()->prepared.lines : usesVerbatim(m_reading));
        else
            enterErrors();
        enterFindings();
    }

private:
    struct Said {
        const Message* message;
        bool used; ///< as the reason of a line
    };

    void enterKnown() {
        for (auto& [line, said] : m_byLine) {
            if (!LeftOut::isKnownRecord(*said.message))
                continue;
            said.used = true;
            addRecord(line, {0, 0, SafeText::printable(said.message->text), {}, {}}, m_chapter.known);
        }
    }

    void enterLines(const std::vector<LineUse>& uses) {
        // A library that gives up leaves the rest of the file unread.
        const bool gaveUp = m_reading.traits().recordPerLine && m_report.result == 0;
        auto rest = static_cast<std::size_t>(m_report.importedCount);
        LineUse above = LineUse::blank;
        for (std::size_t i = 0; i < uses.size(); ++i) {
            const std::size_t line = i + 1;
            if (uses[i] == LineUse::blank)
                m_blank.push_back(line);
            else if (uses[i] != LineUse::record)
                enterBesideRecords(line, uses[i], above);
            else if (LinesLeftOut row = takeReasons(line, false); !row.reason.empty())
                addRecord(line, std::move(row), m_chapter.leftOut);
            else if (gaveUp && rest == 0 && !isKnown(line))
                addUnread(line);
            else if (rest > 0 && !isKnown(line))
                --rest;
            if (uses[i] != LineUse::ignored)
                above = uses[i];
        }
        enterBlank();
    }

    void enterBesideRecords(std::size_t line, LineUse use, LineUse above) {
        const auto* bucket =
            std::find_if(std::begin(kBuckets), std::end(kBuckets), [use](const Bucket& b) { return b.use == use; });
        LinesLeftOut row = takeReasons(line, true);
        if (bucket != std::end(kBuckets))
            row.reason.insert(0, std::string(bucket->reason) + (row.reason.empty() ? "" : ": "));
        else if (row.reason.empty())
            row.reason = !m_reading.traits().recordPerLine ? "Teil eines Abschnitts, der keine Buchungen hat"
                         : above == LineUse::record        ? "Fortsetzung des Datensatzes darüber"
                                                           : "kein Datensatz";
        row.first = row.last = line;
        row.text = m_lines.text(line);
        m_chapter.leftOut.push_back(std::move(row));
    }

    /// Those of the line's messages that say why it is no record, together.
    LinesLeftOut takeReasons(std::size_t line, bool isBeside) {
        LinesLeftOut row;
        const auto [begin, end] = m_byLine.equal_range(line);
        for (auto at = begin; at != end; ++at) {
            const Message& message = *at->second.message;
            const bool names = std::find(std::begin(kReasons), std::end(kReasons), message.code) != std::end(kReasons);
            if (!message.isError() && !(isBeside && names))
                continue;
            at->second.used = true;
            row.reason += (row.reason.empty() ? "" : " ") + SafeText::printable(message.text);
            row.code += (row.code.empty() ? "" : ", ") + message.code;
            advise(message);
        }
        return row;
    }

    bool isKnown(std::size_t line) const {
        const auto [begin, end] = m_byLine.equal_range(line);
        return std::any_of(begin, end, [](const auto& entry) { return LeftOut::isKnownRecord(*entry.second.message); });
    }

    /// A record is shown whole, also one of several lines.
    void addRecord(std::size_t line, LinesLeftOut row, std::vector<LinesLeftOut>& rows) const {
        row.first = row.last = line;
        row.text = m_reading.traits().recordPerLine ? m_lines.text(line) : m_lines.record(line);
        rows.push_back(std::move(row));
    }

    void addUnread(std::size_t line) {
        constexpr const char* kReason = "nicht gelesen, weil der Import vorher endete";
        std::vector<LinesLeftOut>& rows = m_chapter.leftOut;
        if (!rows.empty() && rows.back().reason == kReason)
            rows.back().last = line;
        else
            rows.push_back({line, line, kReason, {}, {}});
    }

    /// A row for each run of them; for many runs one row with their numbers.
    void enterBlank() {
        constexpr std::size_t kMostRuns = 20;
        std::vector<LinesLeftOut> runs;
        for (const std::size_t line : m_blank) {
            if (!runs.empty() && runs.back().last + 1 == line)
                runs.back().last = line;
            else
                runs.push_back({line, line, "leer", {}, {}});
        }
        std::vector<LinesLeftOut>& rows = m_chapter.leftOut;
        if (runs.size() <= kMostRuns) {
            rows.insert(rows.end(), runs.begin(), runs.end());
            std::stable_sort(rows.begin(), rows.end(),
                             [](const LinesLeftOut& a, const LinesLeftOut& b) { return a.first < b.first; });
            return;
        }
        LinesLeftOut all{0, 0, "leer", {}, "die Zeilen "};
        for (const LinesLeftOut& run : runs)
            all.text += (&run == &runs.front() ? "" : ", ") + run.linesText();
        rows.push_back(std::move(all));
    }

    void enterErrors() {
        for (auto at = m_byLine.begin(); at != m_byLine.end(); at = m_byLine.upper_bound(at->first)) {
            if (LinesLeftOut row = takeReasons(at->first, false); !row.reason.empty())
                addRecord(at->first, std::move(row), m_chapter.leftOut);
        }
    }

    void enterFindings() {
        for (const Message& message : m_report.messages) {
            if (!message.line || !isUsed(message))
                m_chapter.findings.push_back(LeftOut::findingOf(message));
        }
    }

    bool isUsed(const Message& message) const {
        const auto [begin, end] = m_byLine.equal_range(*message.line);
        return std::any_of(begin, end,
                           [&](const auto& entry) { return entry.second.message == &message && entry.second.used; });
    }

    void advise(const Message& message) {
        const std::string hint = SafeText::printable(message.hint);
        std::vector<std::string>& advice = m_chapter.advice;
        if (!hint.empty() && std::find(advice.begin(), advice.end(), hint) == advice.end())
            advice.push_back(hint);
    }

    const FileReading& m_reading;
    const FileReport& m_report;
    const SourceLines& m_lines;
    FileChapter& m_chapter;
    std::multimap<std::size_t, Said> m_byLine;
    std::vector<std::size_t> m_blank;
};

} // namespace

namespace LeftOut {

bool isKnownRecord(const Message& message) { return message.code == ProblemTexts::of(Problem::knownRecord).code; }

Finding findingOf(const Message& message) {
    Finding finding;
    finding.kind = message.isError()                       ? Finding::Kind::error
                   : message.severity == Severity::warning ? Finding::Kind::warning
                                                           : Finding::Kind::note;
    finding.line = message.line;
    finding.code = message.code;
    finding.text = SafeText::printable(message.text);
    finding.hint = SafeText::printable(message.hint);
    return finding;
}

void enter(const FileReading& reading, const FileReport& report, const SourceLines& lines, FileChapter& chapter) {
    Builder(reading, report, lines, chapter).run();
}

} // namespace LeftOut
