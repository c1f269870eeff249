// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/DelimitedInspector.h"

#include <algorithm>
#include <array>

#include "intake/BalanceCheck.h"
#include "intake/BookingRow.h"
#include "intake/DateOrderDecision.h"
#include "intake/DecimalMarkDecision.h"
#include "intake/TextTools.h"

namespace {

constexpr std::array<char, 5> kDelimiters = {';', ',', '\t', '|', ':'};
constexpr std::size_t kDelimiterSample = 400; // lines

/// What speaks against a plan, taken off its confidence.
namespace doubts {
constexpr double kDateWithoutName = 0.05;
constexpr double kAmountWithoutName = 0.1;
constexpr double kUnknownHeader = 0.1;
constexpr double kRivalAmounts = 0.35;
constexpr double kOrderByContext = 0.1;
constexpr double kInvertedSigns = 0.25;
constexpr double kUnreadableRecords = 0.5; // times their share
} // namespace doubts

/// How much sense a delimiter makes: bookings first, then known names.
double understanding(const RecordTable& table, const ColumnLexicon& lexicon, std::optional<bool> header) {
    double best = 0;
    for (const TableRegion& region : TableFinder::find(table, lexicon, header)) {
        const ColumnChoice choice = ColumnChooser::choose(table, region, lexicon);
        if (!choice.roles.complete())
            continue;
        int bookings = 0;
        for (std::size_t i = region.begin; i < region.end; ++i)
            bookings += TableFinder::looksLikeBooking(table, i) ? 1 : 0;
        const double width = std::min(choice.roles.width, 12);
        best = std::max(best, 100.0 * bookings + (region.namesKnown ? 150.0 : 0.0) + width +
                                  (choice.amountByName ? 50.0 : 0.0));
    }
    return best;
}

char findDelimiter(std::span<const std::string_view> lines, const InspectionOptions& options,
                   const ColumnLexicon& lexicon) {
    char best = ';';
    double bestScore = 0;
    for (const char delimiter : kDelimiters) {
        const auto occurs = [&](std::string_view line) { return line.find(delimiter) != std::string_view::npos; };
        const auto sample = lines.subspan(0, std::min(lines.size(), kDelimiterSample));
        if (std::none_of(sample.begin(), sample.end(), occurs))
            continue;
        const RecordTable table = RecordTable::read(sample, delimiter, sample.size());
        const double score = understanding(table, lexicon, options.header);
        if (score > bestScore) {
            best = delimiter;
            bestScore = score;
        }
    }
    return best;
}

std::string delimiterText(char delimiter) { return delimiter == '\t' ? "Tabulator" : std::string(1, delimiter); }

/// What the user said about columns overrules what their names say.
void applyColumns(ColumnRoles& roles, const std::map<std::string, int>& columns) {
    const int width = roles.width;
    const auto column = [&](const char* field) {
        const auto at = columns.find(field);
        return at == columns.end() ? -1 : at->second;
    };
    ColumnRoles fixed;
    fixed.width = width;
    fixed.date = column("Datum");
    fixed.amount = column("Betrag");
    fixed.counterparty = column("Empfaenger");
    if (const int purpose = column("Verwendungszweck"); purpose >= 0)
        fixed.purpose = {purpose};
    fixed.postingText = column("Buchungstext");
    fixed.category = column("Kategorie");
    fixed.subcategory = column("Unterkategorie");
    fixed.sign = fixed.amount == roles.amount ? roles.sign : -1;
    fixed.balance = roles.balance == fixed.amount ? -1 : roles.balance;
    fixed.status = roles.status;
    fixed.yearSource = fixed.date == roles.date ? roles.yearSource : -1;
    roles = fixed;
}

class TablePlanner {
public:
    TablePlanner(const RecordTable& table, ImportPlan& plan, const InspectionOptions& options,
                 const ColumnLexicon& lexicon)
        : m_table(table), m_plan(plan), m_options(options), m_lexicon(lexicon) {}

    /// Adds the table's plan; nothing where it holds no bookings.
    void add(const TableRegion& region) {
        TablePlan plan;
        plan.region = region;
        ColumnChoice choice = ColumnChooser::choose(m_table, region, m_lexicon);
        plan.roles = std::move(choice.roles);
        if (m_options.columns)
            applyColumns(plan.roles, *m_options.columns);
        if (!plan.roles.complete())
            return;
        tellColumns(plan, choice);
        if (!decideMark(plan) || !decideOrder(plan))
            return;
        decideSigns(plan, choice);
        checkRivals(plan, choice);
        doubtUnreadable(plan);
        m_plan.tables.push_back(std::move(plan));
    }

    double confidence() const {
        return std::clamp(m_certified ? std::max(1.0 - m_doubt, 0.95) : 1.0 - m_doubt, 0.0, 1.0);
    }

private:
    int headerLine(const TablePlan& plan) const {
        return plan.region.header ? m_table.record(*plan.region.header).firstLine + 1 : 0;
    }
    void tell(int line, int column, std::string text) { m_plan.reasons.push_back({line, column, std::move(text)}); }
    void undecided(int line, const char* code, std::string text) {
        if (!m_plan.undecided)
            m_plan.undecided = IntakeMessage{line, code, std::move(text), false};
    }

    void tellColumns(const TablePlan& plan, const ColumnChoice& choice) {
        const bool byUser = m_options.columns.has_value();
        if (plan.region.namesKnown)
            tell(headerLine(plan), -1, "Kopfzeile mit bekannten Spaltennamen.");
        else if (plan.region.header)
            tell(headerLine(plan), -1,
                 "Kopfzeile mit unbekannten Spaltennamen; die Werte zeigen, was die Spalten sind.");
        else
            tell(m_table.record(plan.region.begin).firstLine + 1, -1,
                 "Keine Kopfzeile; die Werte zeigen, was die Spalten sind.");
        if (byUser)
            return;
        m_doubt += choice.dateByName ? 0.0 : doubts::kDateWithoutName;
        m_doubt += choice.amountByName ? 0.0 : doubts::kAmountWithoutName;
        m_doubt += plan.region.header && !plan.region.namesKnown ? doubts::kUnknownHeader : 0.0;
    }

    bool decideMark(TablePlan& plan) {
        if (m_options.decimalMark) {
            plan.decimalMark = *m_options.decimalMark;
            return true;
        }
        const DecimalMarkDecision decision = DecimalMarks::decide(m_table, plan);
        if (!decision.mark) {
            if (decision.example.empty())
                return false; // no amounts at all: no table of bookings
            undecided(decision.exampleLine, "decimal-mark-ambiguous",
                      "Zeile " + std::to_string(decision.exampleLine) + ": Der Betrag „" +
                          TextTools::toUtf8(decision.example) +
                          "“ lässt sich auf zwei Arten lesen. Bitte mit --decimal , oder --decimal . festlegen.");
            return false;
        }
        plan.decimalMark = *decision.mark;
        m_plan.reasons.push_back(decision.reason);
        return true;
    }

    bool decideOrder(TablePlan& plan) {
        if (m_options.dateOrder) {
            plan.dateOrder = *m_options.dateOrder;
            return true;
        }
        const DateOrderDecision decision = DateOrders::decide(m_table, plan, m_options.centuryWindow);
        if (!decision.order) {
            if (decision.example.empty())
                return false;
            undecided(
                decision.exampleLine, "date-order-ambiguous",
                "Zeile " + std::to_string(decision.exampleLine) + ": Beim Datum „" +
                    TextTools::toUtf8(decision.example) +
                    "“ ist nicht zu erkennen, ob Tag oder Monat vorn steht. Bitte mit --date-order dmy, mdy oder ymd "
                    "festlegen.");
            return false;
        }
        plan.dateOrder = *decision.order;
        m_plan.reasons.push_back(decision.reason);
        m_doubt += decision.proven ? 0.0 : doubts::kOrderByContext;
        return true;
    }

    void decideSigns(TablePlan& plan, const ColumnChoice& choice) {
        if (plan.roles.twoAmounts()) {
            plan.sign = SignRule::twoColumns;
            const ColumnProfile* debit =
                plan.roles.debit >= 0 ? &choice.profiles[static_cast<std::size_t>(plan.roles.debit)] : nullptr;
            plan.debitIsNegative = debit != nullptr && debit->negative * 2 > debit->filled;
            tell(headerLine(plan), plan.roles.debit, "Soll und Haben stehen in getrennten Spalten.");
        } else if (plan.roles.sign >= 0) {
            plan.sign = SignRule::signColumn;
            tell(headerLine(plan), plan.roles.sign, "Das Vorzeichen steht als Kennzeichen in einer eigenen Spalte.");
        }
        BalanceCheck check = BalanceChecks::check(m_table, plan, m_options.centuryWindow);
        if (check.proof == BalanceProof::none && plan.roles.balance >= 0)
            check = followBalance(plan, choice, check);
        if (check.signsFromBalance && plan.sign != SignRule::fromBalance) {
            plan.sign = SignRule::fromBalance;
            tell(headerLine(plan), plan.roles.balance, "Die Vorzeichen ergeben sich aus dem laufenden Saldo.");
        } else if (check.proof == BalanceProof::none && plan.sign == SignRule::asWritten && looksInverted(plan)) {
            plan.sign = SignRule::inverted;
            m_doubt += doubts::kInvertedSigns;
            tell(headerLine(plan), plan.roles.amount,
                 "Kreditkartenabrechnung, die Ausgaben als positive Beträge führt.");
        }
        plan.balance = check.proof;
        plan.newestFirst = check.newestFirst;
        plan.balanceBreaks = check.breaks;
        if (check.proof == BalanceProof::certified) {
            m_certified = true;
            tell(0, plan.roles.balance,
                 check.runningColumn ? "Der laufende Saldo bestätigt alle " + std::to_string(check.steps) + " Schritte."
                                     : std::string("Anfangssaldo plus Umsätze ergibt den Endsaldo."));
        }
    }

    /// Where gross, net and fees stand side by side, the running balance tells
    /// which of them moves the account.
    BalanceCheck followBalance(TablePlan& plan, const ColumnChoice& choice, const BalanceCheck& before) {
        if (m_options.columns || plan.sign != SignRule::asWritten)
            return before;
        for (const int column : choice.otherAmounts) {
            TablePlan other = plan;
            other.roles.amount = column;
            const BalanceCheck check = BalanceChecks::check(m_table, other, m_options.centuryWindow);
            if (check.proof != BalanceProof::certified || check.signsFromBalance || check.steps < 1)
                continue;
            plan.roles.amount = column;
            tell(headerLine(plan), column, "Diese Betragsspalte bewegt den laufenden Saldo.");
            return check;
        }
        return before;
    }

    /// A card statement that counts what was bought as positive: it names a card
    /// or purchases, and what is negative are payments to the card and refunds.
    bool looksInverted(const TablePlan& plan) const {
        constexpr std::array<std::string_view, 9> kCard = {
            "karteninhaber", "card member", "cardmember",
            "kreditkarte",   "credit card", "kartenumsa",
            "kartennummer",  "card number", "erscheint auf ihrer abrechnung"};
        constexpr std::array<std::string_view, 4> kPurchase = {"purchase", "einkauf", "kauf", "charge"};
        constexpr std::array<std::string_view, 11> kPayment = {
            "zahlung",    "payment", "ueberweisung", "lastschrift", "gutschrift", "refund",
            "erstattung", "dank",    "thank",        "einzahlung",  "credit"};
        bool card = false;
        const std::size_t top = plan.region.header ? *plan.region.header + 1 : plan.region.begin;
        for (std::size_t i = 0; i < top; ++i)
            card = card || mentions(i, kCard);
        int positive = 0;
        int negative = 0;
        int payments = 0;
        int purchases = 0;
        for (std::size_t i = plan.region.begin; i < plan.region.end; ++i) {
            const BookingRow row = BookingRows::read(m_table, i, plan, m_options.centuryWindow);
            if (row.kind != BookingRow::Kind::booking || row.amount->isZero())
                continue;
            if (row.amount->isNegative()) {
                ++negative;
                payments += mentions(i, kPayment) ? 1 : 0;
                if (!mentions(i, kPayment) && mentions(i, kPurchase))
                    return false; // what was bought is negative already
            } else {
                ++positive;
                purchases += mentions(i, kPurchase) ? 1 : 0;
            }
        }
        if (card && negative == 0)
            return positive >= 3;
        if (negative == 0 || payments < negative)
            return false;
        return (card && positive >= 2 * negative) || (purchases == positive && purchases >= 2);
    }

    template <std::size_t count>
    bool mentions(std::size_t record, const std::array<std::string_view, count>& words) const {
        for (const std::string_view cell : m_table.cells(record)) {
            const std::string text = TextTools::fold(cell);
            for (const std::string_view word : words) {
                if (text.find(word) != std::string::npos)
                    return true;
            }
        }
        return false;
    }

    void checkRivals(const TablePlan& plan, const ColumnChoice& choice) {
        if (choice.rivalAmounts.empty() || m_options.columns || plan.balance == BalanceProof::certified)
            return;
        m_doubt += doubts::kRivalAmounts;
        undecided(headerLine(plan), "amount-column-ambiguous",
                  "Mehrere Spalten könnten der Betrag sein (" + std::to_string(plan.roles.amount) + " und " +
                      std::to_string(choice.rivalAmounts.front()) +
                      ", gezählt ab 0). Bitte mit --columns festlegen, zum Beispiel --columns \"" +
                      std::to_string(plan.roles.date) + "=Datum," + std::to_string(plan.roles.amount) + "=Betrag\".");
    }

    void doubtUnreadable(const TablePlan& plan) {
        int good = 0;
        int bad = 0;
        for (std::size_t i = plan.region.begin; i < plan.region.end; ++i) {
            const auto kind = BookingRows::read(m_table, i, plan, m_options.centuryWindow).kind;
            good += kind == BookingRow::Kind::booking || kind == BookingRow::Kind::pending ? 1 : 0;
            bad += kind == BookingRow::Kind::badDate || kind == BookingRow::Kind::badAmount ? 1 : 0;
        }
        if (bad > 0)
            m_doubt += doubts::kUnreadableRecords * bad / (good + bad);
    }

    const RecordTable& m_table;
    ImportPlan& m_plan;
    const InspectionOptions& m_options;
    const ColumnLexicon& m_lexicon;
    double m_doubt = 0.0;
    bool m_certified = false;
};

} // namespace

namespace DelimitedInspector {

DelimitedFile inspect(std::span<const std::string_view> lines, const InspectionOptions& options,
                      const ColumnLexicon& lexicon) {
    DelimitedFile file;
    file.plan.delimiter = options.delimiter ? *options.delimiter : findDelimiter(lines, options, lexicon);
    file.table = RecordTable::read(lines, file.plan.delimiter, lines.size());

    TablePlanner planner(file.table, file.plan, options, lexicon);
    for (const TableRegion& region : TableFinder::find(file.table, lexicon, options.header))
        planner.add(region);
    file.plan.confidence = file.plan.tables.empty() ? 0.0 : planner.confidence();
    if (!file.plan.tables.empty())
        file.plan.reasons.insert(file.plan.reasons.begin(),
                                 Reason{0, -1, "Trennzeichen: " + delimiterText(file.plan.delimiter) + "."});
    if (file.plan.tables.empty() && !file.plan.undecided)
        file.plan.undecided = IntakeMessage{
            0, "no-bookings",
            "In der Datei wurde keine Tabelle mit Datum und Betrag gefunden. Falls sie eine enthält, bitte mit "
            "--columns "
            "angeben, welche Spalte das Datum und welche der Betrag ist, zum Beispiel --columns \"0=Datum,3=Betrag\".",
            false};
    return file;
}

} // namespace DelimitedInspector
