// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "intake/ColumnLexicon.h"
#include "support/Utf8.h"

namespace {

Role bestOf(std::string_view utf8) { return ColumnLexicon::builtIn().scores(latin1FromUtf8(utf8)).best(); }

int scoreOf(std::string_view name, Role role) { return ColumnLexicon::builtIn().scores(name).of(role); }

TEST(ColumnLexicon, EveryLineOfTheTableIsUnderstood) {
    EXPECT_TRUE(ColumnLexicon::builtIn().rejectedLines().empty())
        << "column-names.txt, line " << ColumnLexicon::builtIn().rejectedLines().front();
}

TEST(ColumnLexicon, LineThatIsNotUnderstoodIsNamed) {
    const ColumnLexicon lexicon("date 100 exact tag\n"
                                "# a remark\n"
                                "\n"
                                "dates 100 exact tag\n"
                                "date viel exact tag\n"
                                "date 100 exactly tag\n"
                                "date 100 exact\n"
                                "date 0 exact tag\n"
                                "date 100 exact a | | b\n"
                                "amount 50 stem betr");
    EXPECT_EQ(lexicon.rejectedLines(), (std::vector<int>{4, 5, 6, 7, 8, 9}));
    EXPECT_EQ(lexicon.scores("Tag").of(Role::date), 100);
    EXPECT_EQ(lexicon.scores("Gesamtbetrag").of(Role::amount), 50);
}

TEST(ColumnLexicon, NamesFitInThreeWays) {
    const ColumnLexicon lexicon("date 100 exact tag\ndate 50 words tag der buchung\ndate 10 stem buchdat\n");
    struct Row {
        std::string_view name;
        int score;
        const char* why;
    };
    constexpr Row kRows[] = {
        {"Tag", 100, "the whole name"},
        {"TAG:", 100, "case and signs do not count"},
        {"Tag 2", 0, "not the whole name"},
        {"Der Tag der Buchung", 50, "words anywhere"},
        {"Tag der Buchung2", 50, "a number may follow at once"},
        {"Tag der Buchungen", 0, "a longer word is another word"},
        {"Feiertag der Buchung", 0, "so is one that begins earlier"},
        {"Tag Buchung", 0, "a word is missing"},
        {"KtoBuchDatumX", 10, "letters anywhere"},
    };
    for (const Row& row : kRows)
        EXPECT_EQ(lexicon.scores(row.name).of(Role::date), row.score) << row.name << ": " << row.why;
}

TEST(ColumnLexicon, UnitsAndCapitalsInsideANameDoNotMatter) {
    for (const char* name : {"Betrag", "Betrag (EUR)", "Betrag in EUR", "BETRAG CHF", "Betrag EUR", "betrag in \x80"})
        EXPECT_EQ(scoreOf(name, Role::amount), 100) << name;
    EXPECT_EQ(scoreOf("EUR", Role::amount), 0);
    for (const char* name : {"Money in", "Money in (\xA3)", "Money In GBP", "Paid in $"})
        EXPECT_EQ(scoreOf(name, Role::credit), 100) << name << ": no unit without its currency";
    EXPECT_EQ(scoreOf("MerchantName", Role::counterparty), scoreOf("Merchant Name", Role::counterparty));
    EXPECT_EQ(scoreOf("dateOp", Role::date), 100);
}

struct NameCase {
    std::string_view name; ///< UTF-8
    Role role;
};

TEST(ColumnLexicon, BanksNameTheirColumnsSo) {
    constexpr NameCase kCases[] = {
        // German
        {"Buchungstag", Role::date},
        {"Buchungsdatum", Role::date},
        {"Buchung", Role::date},
        {"Gebucht am", Role::date},
        {"Datum/Zeit", Role::date},
        {"Wertstellung (Valuta)", Role::date},
        {"Valutadatum", Role::date},
        {"Belegdatum", Role::date},
        {"Eingangstag", Role::date},
        {"Umsatztag", Role::date},
        {"Betrag", Role::amount},
        {"Betrag in EUR", Role::amount},
        {"Umsatz in EUR", Role::amount},
        {"Soll/Haben", Role::amount}, // one bank's name for a signed amount
        {"Einnahmen/Ausgaben", Role::amount},
        {"Originalbetrag", Role::ignore},
        {"Betrag (Fremdwährung)", Role::ignore},
        {"Kurs", Role::ignore},
        {"Soll", Role::debit},
        {"Belastung CHF", Role::debit},
        {"Lastschrift in CHF", Role::debit},
        {"Haben", Role::credit},
        {"Gutschrift in CHF", Role::credit},
        {"Soll/Haben-Kennzeichen", Role::sign},
        {"Saldo", Role::balance},
        {"Saldo nach Buchung", Role::balance},
        {"Kontostand", Role::balance},
        {"Währung", Role::currency},
        {"Waehrung", Role::currency},
        {"Beguenstigter/Zahlungspflichtiger", Role::counterparty},
        {"Auftraggeber/Empfänger", Role::counterparty},
        {"Empfänger/Auftraggeber Name", Role::counterparty},
        {"Sender / Empfänger", Role::counterparty},
        {"Name Zahlungsbeteiligter", Role::counterparty},
        {"Empfaenger 1", Role::recipient},
        {"Zahlungsempfänger*in", Role::recipient},
        {"Zahlungspflichtige*r", Role::payer},
        {"Auftraggeber", Role::payer},
        {"IBAN / Konto-Nr.", Role::ignore},
        {"BIC / BLZ", Role::ignore},
        {"Name des Karteninhabers", Role::ignore},
        {"Kartennummer", Role::ignore},
        {"Glaeubiger-ID", Role::ignore},
        {"Mandatsreferenz", Role::ignore},
        {"Referenznummer", Role::ignore},
        {"Verwendungszweck", Role::purpose},
        {"Vorgang/Verwendungszweck", Role::purpose},
        {"Text/Verwendungszweck", Role::purpose},
        {"VWZ1", Role::purpose},
        {"Vwz.0", Role::purpose},
        {"Beschreibung", Role::purpose},
        {"Buchungstext", Role::postingText},
        {"Umsatzart", Role::postingText},
        {"Buchungsart", Role::postingText},
        {"Vorgang", Role::postingText},
        {"Kategorie", Role::category},
        {"Unterkategorie", Role::subcategory},
        {"Status", Role::status},
        {"Gebühr", Role::ignore},
        // English
        {"Posting Date", Role::date},
        {"Transaction Date", Role::date},
        {"Completed Date", Role::date},
        {"Value date", Role::date},
        {"Amount", Role::amount},
        {"Amount (GBP)", Role::amount},
        {"Billing Amount", Role::amount},
        {"Money Out", Role::debit},
        {"Paid in", Role::credit},
        {"Withdrawals", Role::debit},
        {"Running Bal.", Role::balance},
        {"Balance (GBP)", Role::balance},
        {"Ccy.", Role::currency},
        {"Payee", Role::counterparty},
        {"Counter Party", Role::counterparty},
        {"Merchant", Role::counterparty},
        {"Description", Role::purpose},
        {"Payment reference", Role::purpose},
        {"Category", Role::category},
        // French and Italian
        {"Date de comptabilisation", Role::date},
        {"Date opération", Role::date},
        {"Date de valeur", Role::date},
        {"Montant", Role::amount},
        {"Débit", Role::debit},
        {"Crédit euros", Role::credit},
        {"Libellé", Role::purpose},
        {"Solde", Role::balance},
        {"Devise", Role::currency},
        {"Data contabile", Role::date},
        {"Importo", Role::amount},
        {"Addebiti (euro)", Role::debit},
        {"Accrediti", Role::credit},
        {"Causale", Role::purpose},
        {"Divisa", Role::currency},
        // further neighbours
        {"Naam / Omschrijving", Role::counterparty},
        {"Bedrag (EUR)", Role::amount},
        {"Mededelingen", Role::purpose},
        {"Fecha Valor", Role::date},
        {"Importe", Role::amount},
        {"Bokföringsdag", Role::date},
        {"Belopp", Role::amount},
        {"Beløb", Role::amount},
        // neither
        {"Stichwörter", Role::ignore},
        {"Kontaktlose Bezahlung", Role::ignore},
    };
    for (const NameCase& c : kCases)
        EXPECT_EQ(bestOf(c.name), c.role) << c.name;
}

TEST(ColumnLexicon, DayOfBookingComesBeforeOtherDays) {
    const std::vector<const char*> byRank = {"Buchungstag", "Completed Date", "Transaction Date",
                                             "Datum",       "Started Date",   "Umsatztag",
                                             "Eingangstag", "Valuta",         "Belegdatum"};
    for (std::size_t i = 1; i < byRank.size(); ++i)
        EXPECT_GT(scoreOf(byRank[i - 1], Role::date), scoreOf(byRank[i], Role::date)) << byRank[i - 1] << byRank[i];
}

TEST(ColumnLexicon, EmptyNameFitsNothing) {
    for (const char* name : {"", " ", "#", "*/-"}) {
        EXPECT_EQ(ColumnLexicon::builtIn().scores(name).best(), Role::ignore) << name;
        EXPECT_EQ(scoreOf(name, Role::ignore), 0) << name;
    }
}

} // namespace
