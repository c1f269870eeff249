// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/FileReport.h"

#include "cli/SafeText.h"

namespace {

std::string counted(std::size_t count, const char* one, const char* many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

} // namespace

namespace FileReportText {

Json json(const LineCounts& lines) {
    return {{"read", lines.read},         {"records", lines.records}, {"header", lines.header},
            {"preamble", lines.preamble}, {"footer", lines.footer},   {"blank", lines.blank},
            {"ignored", lines.ignored}};
}

Json json(const RecordCounts& records) {
    Json object = {{"found", records.found}, {"imported", records.imported}, {"refused", records.refused}};
    if (records.known)
        object["known"] = *records.known;
    return object;
}

Json json(const std::vector<Message>& messages) {
    Json list = Json::array();
    for (const Message& message : messages) {
        list.push_back({{"line", message.line ? Json(*message.line) : Json(nullptr)},
                        {"code", message.code},
                        {"text", message.fullText()}});
    }
    return list;
}

Json json(const FileReport& report) {
    Json object = {{"file", report.file},
                   {"format", report.format},
                   {"result", report.result},
                   {"importedCount", report.importedCount},
                   {"refusedCount", report.refusedCount},
                   {"undatedCount", report.undatedCount},
                   {"sessionId", report.sessionId},
                   {"errorText", report.errorText},
                   {"committed", report.committed},
                   {"lines", json(report.lines)}};
    if (report.knownCount)
        object["knownCount"] = *report.knownCount;
    if (report.records)
        object["records"] = json(*report.records);
    object["messages"] = json(report.messages);
    return object;
}

std::string nothingNew(std::size_t known, std::size_t refused) {
    std::string text = "nichts Neues: " + counted(known, "Datensatz ist", "Datensätze sind") + " schon im Bestand";
    if (refused != 0)
        text += ", " + std::to_string(refused) + " abgelehnt";
    return text + "; der Bestand ist unverändert.";
}

std::string summary(const FileReport& report) {
    std::string text = SafeText::printable(report.file) + ": ";
    if (!report.committed && report.knownCount.value_or(0) != 0 && report.importedCount == 0)
        return text + FileReportText::nothingNew(*report.knownCount, report.refusedCount);
    if (!report.committed)
        return text + "nicht übernommen; der Bestand ist unverändert.";
    text += counted(static_cast<std::size_t>(report.importedCount), "Datensatz", "Datensätze") + " importiert";
    if (report.refusedCount != 0)
        text += ", " + counted(report.refusedCount, "abgelehnt", "abgelehnt");
    if (report.knownCount.value_or(0) != 0)
        text += ", " + std::to_string(*report.knownCount) + " schon im Bestand";
    if (report.undatedCount != 0)
        text += ", davon " + std::to_string(report.undatedCount) + " ohne Datum";
    if (report.balanceFits)
        text += ", vom Saldo bestätigt";
    if (report.sessionId != 0)
        text += " (Sitzung " + std::to_string(report.sessionId) + ")";
    return text + ".";
}

} // namespace FileReportText
