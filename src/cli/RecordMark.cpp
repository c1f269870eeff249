// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/RecordMark.h"

#include <cstddef>
#include <cstdlib>
#include <iterator>

#include "cli/SafeText.h"

namespace {

struct ReasonText {
    Resemblance::Reason reason;
    const char* code;
    const char* text;
};

constexpr ReasonText kReasons[] = {
    {Resemblance::Reason::none, "", ""},
    {Resemblance::Reason::sameNumber, "same-number", "gleiche Nummer der Bank, gleicher Tag und Betrag"},
    {Resemblance::Reason::sameContent, "same-content", "gleicher Tag, Betrag, Empfänger und Verwendungszweck"},
    {Resemblance::Reason::numberReused, "number-reused", "gleiche Nummer der Bank, aber anderer Tag oder Betrag"},
    {Resemblance::Reason::renumbered, "renumbered", "gleicher Inhalt, aber andere Nummer der Bank"},
    {Resemblance::Reason::otherText, "other-text", "gleicher Tag und Betrag, ähnlicher Text"},
    {Resemblance::Reason::otherDay, "other-day", "gleicher Betrag und Empfänger, "},
};

constexpr bool reasonsAreInOrder() {
    for (std::size_t i = 0; i < std::size(kReasons); ++i) {
        if (static_cast<std::size_t>(kReasons[i].reason) != i)
            return false;
    }
    return true;
}
static_assert(reasonsAreInOrder() &&
              std::size(kReasons) == static_cast<std::size_t>(Resemblance::Reason::otherDay) + 1);

const ReasonText& textOf(Resemblance::Reason reason) { return kReasons[static_cast<std::size_t>(reason)]; }

Json orNull(const std::optional<int>& number) { return number ? Json(*number) : Json(nullptr); }

} // namespace

const char* RecordMark::code() const {
    if (isKnown())
        return "known";
    return isDoubtful() ? "doubtful" : "new";
}

const char* RecordMark::reasonCode() const { return textOf(resemblance.reason).code; }

std::string RecordMark::place() const {
    std::string text = uniqueId ? "Nr. " + std::to_string(*uniqueId) : "ein Datensatz ohne Nummer";
    std::string from;
    if (session)
        from = "Sitzung " + std::to_string(*session);
    if (line)
        from += (from.empty() ? "Zeile " : ", Zeile ") + std::to_string(*line);
    if (!number.empty())
        from += std::string(from.empty() ? "" : ", ") + "Buchung „" + SafeText::printable(number) + "“";
    return from.empty() ? text : text + " (" + from + ")";
}

std::string RecordMark::reason() const {
    std::string text = textOf(resemblance.reason).text;
    if (resemblance.reason == Resemblance::Reason::otherDay) {
        const int days = std::abs(resemblance.daysLater);
        text +=
            std::to_string(days) + (days == 1 ? " Tag " : " Tage ") + (resemblance.daysLater > 0 ? "später" : "früher");
    }
    return text;
}

void RecordMark::addTo(Json& object) const {
    object["mark"] = code();
    if (!isKnown() && !isDoubtful())
        return;
    object["reason"] = reasonCode();
    object["text"] = place() + ": " + reason();
    object["stored"] = {{"uniqueId", orNull(uniqueId)}, {"sessionId", orNull(session)}, {"line", orNull(line)}};
    if (!number.empty())
        object["stored"]["number"] = number;
}
