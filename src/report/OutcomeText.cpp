// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "report/OutcomeText.h"

#include <algorithm>

#include "report/GermanText.h"

namespace {

/// Whether the import ended before the file did.
bool isPartial(const FileChapter& file) {
    return std::any_of(file.findings.begin(), file.findings.end(), OutcomeText::isCause);
}

bool hasGaps(const FileChapter& file) { return file.records.refused + file.records.unread != 0 || isPartial(file); }

std::string recordsOf(std::size_t count) { return GermanText::counted(count, "Datensatz", "Datensätze"); }

/// Whether nothing was taken because there was nothing new.
bool isAllKnown(const FileChapter& file) { return !file.taken && file.records.known != 0 && !hasGaps(file); }

} // namespace

namespace OutcomeText {

bool isCause(const Finding& finding) { return finding.kind == Finding::Kind::error && !finding.line; }

std::string word(const FileChapter& file) {
    if (isAllKnown(file))
        return "nichts Neues";
    if (!file.taken)
        return "nichts übernommen";
    return hasGaps(file) ? "zum Teil übernommen" : "übernommen";
}

PageWriter::Tone tone(const FileChapter& file) {
    if (isAllKnown(file))
        return PageWriter::Tone::good;
    if (!file.taken)
        return PageWriter::Tone::bad;
    return hasGaps(file) ? PageWriter::Tone::doubtful : PageWriter::Tone::good;
}

std::string sentence(const FileChapter& file) {
    const RecordTally& records = file.records;
    if (isAllKnown(file))
        return "Nichts wurde übernommen, weil nichts neu ist: " + recordsOf(records.known) +
               (records.known == 1 ? " der Datei steht" : " der Datei stehen") + " schon im Bestand.";
    if (!file.taken && records.known != 0)
        return "Aus dieser Datei wurde nichts übernommen: " + recordsOf(records.known) +
               (records.known == 1 ? " steht" : " stehen") + " schon im Bestand, " +
               GermanText::grouped(records.refused) + (records.refused == 1 ? " wurde" : " wurden") + " abgelehnt.";
    if (!file.taken)
        return "Aus dieser Datei wurde nichts übernommen. Der Bestand ist so, wie er vorher war.";
    std::string text = recordsOf(records.imported) + (records.imported == 1 ? " wurde" : " wurden") + " übernommen";
    if (records.refused != 0)
        text += ", " + GermanText::grouped(records.refused) + " abgelehnt";
    if (records.known != 0)
        text += ", " + GermanText::grouped(records.known) + " nicht noch einmal übernommen";
    text += ".";
    if (isPartial(file) || records.unread != 0)
        text += " Der Import endete, bevor die ganze Datei übernommen war.";
    if (records.undated != 0)
        text += " " + GermanText::grouped(records.undated) + " davon " + (records.undated == 1 ? "hat" : "haben") +
                " kein Datum.";
    if (file.balanceFits)
        text += " Die Salden in der Datei bestätigen, wie sie gelesen wurde.";
    return text;
}

std::vector<std::string> causes(const FileChapter& file) {
    std::vector<std::string> texts;
    for (const Finding& finding : file.findings) {
        if (isCause(finding))
            texts.push_back(finding.text + (finding.hint.empty() ? "" : " " + finding.hint) + " [" + finding.code +
                            "]");
    }
    if (texts.empty() && !file.taken && !file.leftOut.empty()) {
        const LinesLeftOut& first = file.leftOut.front();
        const std::size_t others = file.leftOut.size() - 1;
        texts.push_back("Zeile " + std::to_string(first.first) + ": " + first.reason +
                        (first.code.empty() ? "" : " [" + first.code + "]") +
                        (others == 0 ? ""
                                     : " Und " + GermanText::counted(others, "weitere Zeile", "weitere Zeilen") +
                                           ", siehe unten."));
    }
    return texts;
}

} // namespace OutcomeText
