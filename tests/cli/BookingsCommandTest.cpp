// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <filesystem>

#include "cli/HomeBankingFixture.h"

namespace {

using HomeBankingTexts::account;
using HomeBankingTexts::accountList;
using HomeBankingTexts::booking;
using HomeBankingTexts::bookingList;
using HomeBankingTexts::utf16;
using ::testing::ElementsAre;

class BookingsCommandTest : public HomeBankingCommandTest {
protected:
    BookingsCommandTest() { makeAccount(); }

    /// The text of a file's only message.
    static std::string text(const Json& file) {
        EXPECT_EQ(file.at("messages").size(), 1U) << file;
        return file.at("messages").at(0).at("text");
    }
};

TEST_F(BookingsCommandTest, BookingsReachTheStore) {
    write("b.xml", bookingList(booking("B-1", "01.02.2004", "-650,00",
                                       "<valuta>02.02.2004</valuta><gvcode>116</gvcode>"
                                       "<verwendungszweck>Miete März</verwendungszweck>"
                                       "<steuerrelevant>1</steuerrelevant><empfaenger>Grün</empfaenger>"
                                       "<notiz>n</notiz><kategorie>Wohnen</kategorie>") +
                               booking("B-2", "", "2.500,10")));
    EXPECT_EQ(call("bookings", {"b.xml"}, 0), Json::parse(R"({"files":[
        {"file":"b.xml","result":true,"importedCount":2,"refusedCount":0,"undatedCount":1,"errorText":"",
         "committed":true,
         "lines":{"read":7,"records":2,"header":0,"preamble":3,"footer":2,"blank":0,"ignored":0},
         "records":{"found":2,"imported":2,"refused":0},"messages":[]}]})"));
    EXPECT_EQ(show("bookings"), Json::parse(R"([
        {"BLZ":"100","KtoNummer":"0815","BuchungsDatum":"2004-02-01","ValutaDatum":"2004-02-02","Betrag":-650.0,
         "Empfaenger":"Grün","Verwendungszweck":"Miete März","BuchungsID":"B-1","GVCode":"116",
         "Steuerrelevant":true,"Notiz":"n","Kategorie":"Wohnen","UniqueID":1},
        {"BLZ":"100","KtoNummer":"0815","BuchungsDatum":null,"ValutaDatum":null,"Betrag":2500.1,
         "Empfaenger":"","Verwendungszweck":"","BuchungsID":"B-2","GVCode":"",
         "Steuerrelevant":null,"Notiz":"","Kategorie":"","UniqueID":2}])"));
    const Json account = show("accounts").at(0);
    EXPECT_EQ(account.at("LetzteBuchungsId"), "B-2");
    EXPECT_EQ(account.at("NeueBuchungen"), 2);
    EXPECT_EQ(account.at("LetztesImportDatum").get<std::string>().size(), std::string("2004-12-31").size());
    EXPECT_EQ(show("sessions").size(), 0U) << "this way of importing keeps no sessions";
}

TEST_F(BookingsCommandTest, SampleDocumentsAreRead) {
    const std::string folder = IMPORT_MODULE_DATA;
    EXPECT_EQ(accounts({folder + "/kontoliste.xml"}, 0).at("accounts"), 3);
    const Json file = bookings({folder + "/buchungsliste.xml"}, 0);
    EXPECT_EQ(file.at("importedCount"), 3);
    EXPECT_EQ(messages(file), "");
    EXPECT_THAT(column("bookings", "Betrag"), ElementsAre("1850.0", "-620.0", "-86.4"));
    EXPECT_THAT(column("bookings", "Empfaenger"),
                ElementsAre("Musterwerk GmbH", "Hausverwaltung Grün", "Kaufhaus am Markt"));
}

TEST_F(BookingsCommandTest, ShowSaysWhoseBookingsTheyAre) {
    write("b.xml", bookingList(booking("B-1", "01.02.2004", "-1.650,00")));
    bookings({"b.xml"}, 0);
    const Result result = run({"show", "bookings", "--store", kStore});
    EXPECT_EQ(result.status, 0);
    for (const char* word : {"BLZ", "KtoNummer", "100", "0815", "01.02.2004", "-1.650,00", "1 Buchung\n"})
        EXPECT_THAT(result.output, Says(word));
    EXPECT_THAT(run({"show", "accounts", "--store", kStore}).output, Says("1 Konto\n"));
}

TEST_F(BookingsCommandTest, RefusedValueNamesBookingIdAndElement) {
    struct Case {
        const char* bad;
        const char* element;
        const char* why;
    };
    const Case cases[] = {
        {"<datum>31.02.2004</datum>", "„datum“", "no such day"},
        {"<valuta>gestern</valuta>", "„valuta“", "no date at all"},
        {"<betrag>99999999999999,00</betrag>", "„betrag“", "more than an amount can be"},
    };
    const Json before = dump();
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        write("b.xml", bookingList(booking("B-1", "01.02.2004", "1,00") + "<buchung>\n<id>B-2</id>\n" + c.bad +
                                   "\n</buchung>\n" + booking("B-3", "01.02.2004", "1,00")));
        const Json file = bookings({"b.xml"}, 1);
        EXPECT_EQ(messages(file), "booking-refused:7");
        EXPECT_THAT(text(file), Says("Buchung 2 (id „B-2“)"));
        EXPECT_THAT(text(file), Says(c.element));
        EXPECT_EQ(file.at("result"), false);
        EXPECT_EQ(file.at("errorText"), "") << "the library has none";
        EXPECT_EQ(file.at("committed"), false);
        EXPECT_EQ(records(file), "3 1 2");
        EXPECT_EQ(file.at("lines").at("records"), 6);
        EXPECT_EQ(dump(), before);
    }
}

TEST_F(BookingsCommandTest, RefusedValueIsShownInItsLine) {
    write("b.xml", bookingList("  " + booking("B-1", "31.02.2004", "1,00")));
    const Result result = run({"bookings", "b.xml", "--store", kStore});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "b.xml: nicht übernommen; der Bestand ist unverändert.\n");
    EXPECT_THAT(result.messages, Says("b.xml:4: Fehler: Buchung 1 (id „B-1“)"));
    EXPECT_THAT(result.messages, Says("    <buchung><id>B-1</id><datum>31.02.2004</datum>"));
    EXPECT_THAT(result.messages, Says("                                ^^^^^^^^^^\n"));
}

TEST_F(BookingsCommandTest, KeepPartialKeepsTheBookingsBeforeAFailure) {
    write("b.xml", bookingList(booking("B-1", "01.02.2004", "1,00") + booking("B-2", "01.02.2004", "2,00") +
                               booking("B-3", "31.02.2004", "3,00") + booking("B-4", "01.02.2004", "4,00")));
    const Json file = bookings({"b.xml", "--keep-partial"}, 1);
    EXPECT_EQ(file.at("committed"), true);
    EXPECT_EQ(file.at("importedCount"), 2);
    EXPECT_EQ(records(file), "4 2 2");
    EXPECT_THAT(column("bookings", "BuchungsID"), ElementsAre("B-1", "B-2")) << "the third is not left half filled";
    EXPECT_EQ(show("accounts").at(0).at("NeueBuchungen"), nullptr) << "the account's books wait for a whole list";
    const Result result = run({"bookings", "b.xml", "--keep-partial", "--again", "--store", kStore});
    EXPECT_EQ(result.output, "b.xml: 2 Buchungen importiert, 2 abgelehnt.\n");
}

TEST_F(BookingsCommandTest, KeepPartialWithoutABookingChangesNothing) {
    const Json before = dump();
    write("b.xml", bookingList(booking("B-1", "31.02.2004", "1,00")));
    EXPECT_EQ(bookings({"b.xml", "--keep-partial"}, 1).at("committed"), false);
    EXPECT_EQ(dump(), before);
}

TEST_F(BookingsCommandTest, CommentEndsTheListAndIsTold) {
    struct Case {
        const char* stranger;
        const char* name;
    };
    const Case cases[] = {
        {"<!-- x -->", "ein Kommentar"},
        {"<umsatz/>", "das Element „umsatz“"},
        {"Text", "ein Text"},
        {"<![CDATA[x]]>", "ein Text"},
        {"<?php x ?>", "eine Verarbeitungsanweisung"},
        {"<Buchung><id>9</id></Buchung>", "das Element „Buchung“"},
    };
    const Json before = dump();
    for (const Case& c : cases) {
        SCOPED_TRACE(c.stranger);
        write("b.xml", bookingList(booking("B-1", "01.02.2004", "1,00") + "\n  " + c.stranger + "\n" +
                                   booking("B-2", "01.02.2004", "1,00")));
        const Json file = bookings({"b.xml"}, 1);
        EXPECT_EQ(messages(file), "list-ended:6");
        EXPECT_THAT(text(file), Says("Hinter Buchung 1 (id „B-1“) steht " + std::string(c.name)));
        EXPECT_EQ(records(file), "2 1 1");
        EXPECT_EQ(dump(), before);
    }
    write("b.xml", bookingList("<!-- x -->" + booking("B-1", "01.02.2004", "1,00")));
    const Json first = bookings({"b.xml"}, 1);
    EXPECT_THAT(text(first), Says("Am Anfang der Liste steht ein Kommentar"));
    EXPECT_EQ(records(first), "1 0 1");
}

TEST_F(BookingsCommandTest, CommentInsideABookingIsNoEnd) {
    write("b.xml",
          "<!-- <buchungsliste> -->" + bookingList(booking("B-1", "01.02.2004", "1,00", "<!-- <buchung> > -->") +
                                                   booking("B-2", "01.02.2004", "1,00", "<fremd a='/buchung>'/>")));
    // The declaration does not stand first any more: leave it out.
    const std::string document = read("b.xml");
    write("b.xml", document.substr(0, document.find("<?xml")) + document.substr(document.find("?>") + 3));
    EXPECT_EQ(records(bookings({"b.xml"}, 0)), "2 2 0");
}

TEST_F(BookingsCommandTest, RepeatedListIsStoredTwice) {
    write("b.xml", bookingList(booking("B-1", "01.02.2004", "1,00")));
    bookings({"b.xml"}, 0);
    bookings({"b.xml"}, 0);
    EXPECT_THAT(column("bookings", "BuchungsID"), ElementsAre("B-1", "B-1"));
    EXPECT_THAT(column("bookings", "UniqueID"), ElementsAre("1", "2"));
}

TEST_F(BookingsCommandTest, UnknownAccountIsNamed) {
    const Json before = dump();
    write("b.xml", bookingList(booking("B-1", "01.02.2004", "1,00"), "ktonr='815' blz = '100'"));
    const Json file = bookings({"b.xml"}, 1);
    EXPECT_EQ(file.at("errorText"), "Unbekanntes Konto.");
    EXPECT_EQ(messages(file), "account-unknown:-");
    EXPECT_THAT(text(file), Says("„815“ (BLZ „100“)"));
    EXPECT_THAT(text(file), Says("dmimport accounts"));
    EXPECT_EQ(records(file), "1 0 1");
    EXPECT_EQ(dump(), before);
}

TEST_F(BookingsCommandTest, ListWithoutAnAccountNumberIsRefused) {
    write("k.xml", accountList("<konto><blz>100</blz></konto>"));
    accounts({"k.xml"}, 0);
    write("b.xml", bookingList(booking("B-1", "01.02.2004", "1,00"), "blz=\"100\""));
    const Json file = bookings({"b.xml"}, 1);
    EXPECT_EQ(file.at("errorText"), "");
    EXPECT_EQ(messages(file), "account-number-missing:-");
}

TEST_F(BookingsCommandTest, EmptyListIsDoneWhateverAccountItNames) {
    write("b.xml", bookingList("", "blz=\"9\" ktonr=\"9\""));
    const Json file = bookings({"b.xml"}, 0);
    EXPECT_EQ(file.at("result"), true);
    EXPECT_EQ(file.at("committed"), true);
    EXPECT_EQ(records(file), "0 0 0");
    EXPECT_EQ(file.at("lines"),
              Json::parse(R"({"read":5,"records":0,"header":0,"preamble":0,"footer":0,"blank":0,"ignored":5})"));
}

TEST_F(BookingsCommandTest, AccountListIsNoBookingList) {
    const Json file = bookings({"konto.xml"}, 1);
    EXPECT_EQ(messages(file), "list-missing:-");
    EXPECT_THAT(text(file), Says("„buchungsliste“"));
}

TEST_F(BookingsCommandTest, EachFileIsOnItsOwn) {
    write("a.xml", bookingList(booking("A", "01.02.2004", "1,00")));
    write("b.xml", bookingList(booking("B", "01.02.2004", "1,00") + booking("B2", "x", "1,00")));
    write("c.xml", bookingList(booking("C", "01.02.2004", "1,00")));
    const Json files = call("bookings", {"a.xml", "b.xml", "fehlt.xml", "c.xml"}, 1).at("files");
    ASSERT_EQ(files.size(), 4U);
    EXPECT_EQ(files.at(0).at("committed"), true);
    EXPECT_EQ(files.at(1).at("committed"), false);
    EXPECT_EQ(messages(files.at(2)), "file-missing:-");
    EXPECT_EQ(files.at(2).at("errorText"), "Die Importdatei konnte nicht geöffnet werden.");
    EXPECT_EQ(files.at(3).at("errorText"), "") << "nothing is left of the failure before";
    EXPECT_THAT(column("bookings", "BuchungsID"), ElementsAre("A", "C"));
    EXPECT_THAT(column("bookings", "UniqueID"), ElementsAre("1", "2")) << "a list taken back used up no number";
}

TEST_F(BookingsCommandTest, DateOrderIsLearnedAfreshForEachFile) {
    write("de.xml", bookingList(booking("D", "31.12.2004", "1,00")));
    write("us.xml", bookingList(booking("U", "12/31/2004", "1,00")));
    EXPECT_EQ(call("bookings", {"us.xml", "de.xml", "us.xml", "--again"}, 0).at("files").size(), 3U);
    EXPECT_THAT(column("bookings", "BuchungsDatum"), ElementsAre("2004-12-31", "2004-12-31", "2004-12-31"));

    write("beides.xml", bookingList(booking("D", "31.12.2004", "1,00") + booking("U", "12/31/2004", "1,00")));
    EXPECT_EQ(messages(bookings({"beides.xml"}, 1)), "booking-refused:5") << "inside a list it holds";
}

TEST_F(BookingsCommandTest, TwoDigitYearsLieInTheWindowOfTheStore) {
    write("b.xml", bookingList(booking("1", "01.02.04", "1,00") + booking("2", "01.02.70", "1,00")));
    bookings({"b.xml"}, 0);
    write("a.csv", "01.02.04;1\n01.02.70;1\n");
    import({"a.csv", "--columns", "0=Datum,1=Betrag", "--delimiter", ";", "--verbatim"}, 0);
    EXPECT_EQ(column("bookings", "BuchungsDatum"), column("data-sets", "Datum")) << "as in an import of a file";
}

TEST_F(BookingsCommandTest, AnyFileNameIsRead) {
    write("bestand.xml", bookingList(booking("B-1", "01.02.2004", "1,00")));
    for (const char* name : {"umsätze.xml", "konto€.xml", "日本.xml", "kaputt\xFF.xml", "umsatz", "b.csv", "[a,b]"}) {
        write(name, read("bestand.xml"));
        for (const char* locale : {"C", "de_DE.UTF-8"}) {
            ChildProgram program = this->program({"bookings", name, "--again", "--store", kStore, "--quiet"});
            program.environment["LC_ALL"] = locale;
            EXPECT_EQ(program.run().status, 0) << name << " " << locale;
        }
    }
    EXPECT_EQ(show("bookings").size(), 14U);
    EXPECT_EQ(leftovers(), std::vector<std::string>());
}

TEST_F(BookingsCommandTest, StandardInputIsRead) {
    ChildProgram program = this->program({"bookings", "-", "--store", kStore, "--json"});
    program.input = bookingList(booking("B-1", "01.02.2004", "1,00"));
    const Result result = program.run();
    EXPECT_EQ(result.status, 0) << result.messages;
    EXPECT_EQ(Json::parse(result.output).at("files").at(0).at("file"), "-");
    EXPECT_EQ(show("bookings").size(), 1U);
    EXPECT_EQ(run({"bookings", "-", "-", "--store", kStore}).status, 2);
}

TEST_F(BookingsCommandTest, WideEncodingsAreReadAndCounted) {
    std::string document = bookingList(booking("B-1", "01.02.2004", "1,00") + booking("B-2", "31.02.2004", "1,00"));
    document.replace(document.find("UTF-8"), 5, "UTF-16");
    for (const bool bigEndian : {false, true}) {
        write("b.xml", utf16(document, bigEndian));
        const Json file = bookings({"b.xml"}, 1);
        EXPECT_EQ(messages(file), "booking-refused:5");
        EXPECT_THAT(text(file), Says("Buchung 2 (id „B-2“)"));
        EXPECT_EQ(records(file), "2 1 1");
        EXPECT_EQ(file.at("lines").at("read"), 7);
        EXPECT_EQ(file.at("lines").at("records"), 2);
    }
}

TEST_F(BookingsCommandTest, Latin1DocumentIsShownReadably) {
    std::string document = bookingList(booking("M\xFCller", "31.02.2004", "1,00"));
    document.replace(document.find("UTF-8"), 5, "ISO-8859-1");
    write("b.xml", document);
    EXPECT_THAT(text(bookings({"b.xml"}, 1)), Says("id „Müller“"));
    EXPECT_THAT(run({"bookings", "b.xml", "--store", kStore}).messages, Says("<id>Müller</id>"));
}

TEST_F(BookingsCommandTest, GarbageIsRefusedAndChangesNothing) {
    const std::string deep = [] {
        std::string text = bookingList("");
        std::string nested;
        for (int i = 0; i < 100000; ++i)
            nested += "<a>";
        return text.replace(text.find("</buchungsliste>"), 0, nested);
    }();
    const std::string valid = bookingList(booking("B-1", "01.02.2004", "1,00"));
    const std::pair<const char*, std::string> cases[] = {
        {"empty", ""},
        {"no XML", "Datum;Betrag\n01.02.2004;1\n"},
        {"bytes", std::string("\x00\xFF<\x01\x80<<>>", 10)},
        {"cut off", valid.substr(0, valid.size() - 30)},
        {"behind its end", valid + "<x/>"},
        {"deep", deep},
        {"version", "<HomeBanking version=\"2.0\"><buchungsliste/></HomeBanking>"},
        {"no version", "<HomeBanking><buchungsliste/></HomeBanking>"},
        {"root", "<Banking version=\"1.0\"><buchungsliste/></Banking>"},
        {"external entity", "<!DOCTYPE x [<!ENTITY e SYSTEM \"/etc/hostname\"><!ELEMENT x (]>" + valid},
    };
    const Json before = dump();
    for (const auto& [why, bytes] : cases) {
        SCOPED_TRACE(why);
        write("b.xml", bytes);
        const Json file = bookings({"b.xml"}, 1);
        EXPECT_EQ(messages(file), "document-refused:-");
        EXPECT_THAT(file.at("errorText").get<std::string>(), Says("Die XML-Datei "));
        EXPECT_EQ(file.at("committed"), false);
        const Json& lines = file.at("lines");
        EXPECT_EQ(lines.at("ignored").get<int>() + lines.at("blank").get<int>(), lines.at("read").get<int>());
        EXPECT_EQ(dump(), before);
    }
}

TEST_F(BookingsCommandTest, UnreadableFilesHaveTheirOwnMessages) {
    std::filesystem::create_directory(path("ordner.xml"));
    EXPECT_EQ(messages(bookings({"ordner.xml"}, 1)), "file-is-directory:-");
    EXPECT_EQ(messages(bookings({"fehlt€.xml"}, 1)), "file-missing:-");
    EXPECT_EQ(messages(bookings({"/dev/zero"}, 1)), "file-is-device:-");
    write("gross.xml", "<");
    std::filesystem::resize_file(path("gross.xml"), std::uintmax_t{3} << 30);
    const Json file = bookings({"gross.xml"}, 1);
    EXPECT_EQ(messages(file), "document-refused:-");
    EXPECT_THAT(file.at("errorText").get<std::string>(), Says("Die Daten sind größer als 2 GB"));

    write("geheim.xml", bookingList(""));
    std::filesystem::permissions(path("geheim.xml"), std::filesystem::perms::none);
    ChildProgram program = this->program({"bookings", "geheim.xml", "--store", kStore});
    program.before = obeyPermissions;
    const Result result = program.run();
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.messages, Says("[file-unreadable]"));
}

TEST_F(BookingsCommandTest, TextsOfADocumentDoNotSteerTheTerminal) {
    write("b.xml", bookingList(booking("\xC2\x9B"
                                       "31mrot",
                                       "31.02.2004", "1,00")));
    const Result result = run({"bookings", "b.xml", "--store", kStore});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.messages, ::testing::Not(Says("\xC2\x9B")));
}

TEST_F(BookingsCommandTest, FullAccountNamesTheBookingThatFindsNoRoom) {
    std::string many;
    for (int i = 1; i <= 65535; ++i)
        many += "<buchung/>\n";
    write("voll.xml", bookingList(many));
    EXPECT_EQ(bookings({"voll.xml"}, 0).at("importedCount"), 65535);
    write("b.xml", bookingList(booking("B-1", "01.02.2004", "1,00")));
    const Json file = bookings({"b.xml"}, 1);
    EXPECT_EQ(messages(file), "account-full:4");
    EXPECT_THAT(text(file), Says("Buchung 1 (id „B-1“)"));
    EXPECT_EQ(records(file), "1 0 1");
}

TEST_F(BookingsCommandTest, VerbatimChangesNothing) {
    write("b.xml", bookingList(booking("B-1", "01.02.2004", "1,00")));
    EXPECT_EQ(bookings({"b.xml", "--verbatim"}, 0), bookings({"b.xml"}, 0));
}

} // namespace
