// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/inotify.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <fstream>
#include <string>

#include <gtest/gtest.h>
#include <QtXml/QDomDocument>

#include "framework/Latin1.h"
#include "homebanking/BankingXML.h"
#include "homebanking/HomeBankingFixture.h"
#include "homebanking/QtParser.h"
#include "support/TemporaryFile.h"

namespace {

using namespace HomeBankingXml;

constexpr const char* kTooManyAttributes =
    "Die XML-Datei ist ungültig.\r\nEin Element hat mehr als 1000 Attribute."_latin1;
constexpr const char* kTooManyPrefixes =
    "Die XML-Datei ist ungültig.\r\nDas Dokument vereinbart mehr als 16 Präfixe für Namensräume."_latin1;
constexpr const char* kDocumentType =
    "Die XML-Datei ist ungültig.\r\nDie Dokumenttyp-Deklaration (DOCTYPE) ist zu umfangreich. Bitte das Dokument ohne sie schreiben."_latin1;

std::string inSubset(const std::string& declarations, const std::string& inside) {
    return "<!DOCTYPE HomeBanking [" + declarations + "]><HomeBanking version=\"1.0\">" + inside + "</HomeBanking>";
}

std::string namedAccount(const std::string& name) { return "<kontoliste>" + konto("1", "2", name) + "</kontoliste>"; }

/// What the process takes at its peak, in bytes.
long peakMemory() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss * 1024;
}

class HostileDocumentsTest : public HomeBankingFixture<BankingXML> {
protected:
    /// Both readers refuse the document with that text.
    void expectRefused(const std::string& document, const std::string& text) {
        EXPECT_FALSE(updateAccounts(document));
        EXPECT_EQ(error(), text);
        EXPECT_FALSE(importBookings(document));
        EXPECT_EQ(error(), text);
    }
    bool saysNotXml() const { return error().substr(0, std::string(kNotXml).size()) == kNotXml; }
    std::string lastName() const {
        return m_model.text("HomeBankingImport/" + std::to_string(accounts()) + "/Bezeichnung");
    }
};

TEST_F(HostileDocumentsTest, MillionNestedElements) {
    const std::string deep = repeated("<a>", 1000000);
    EXPECT_FALSE(updateAccounts(deep + repeated("</a>", 1000000)));
    EXPECT_TRUE(saysNotXml());
    EXPECT_FALSE(updateAccounts(deep)) << "not even closed";
    EXPECT_TRUE(saysNotXml());
}

TEST_F(HostileDocumentsTest, HundredThousandAttributes) {
    std::string attributes;
    for (int i = 0; i < 100000; ++i)
        attributes += " a" + std::to_string(i) + "='1'";
    expectRefused("<HomeBanking version=\"1.0\"" + attributes + "/>", kTooManyAttributes);
    expectRefused(kontoliste("<konto" + attributes + "></konto>"), kTooManyAttributes);
}

TEST_F(HostileDocumentsTest, ThousandAttributesAreReadAndOneMoreIsNot) {
    const auto withAttributes = [](int count) {
        std::string attributes;
        for (int i = 0; i < count; ++i)
            attributes += " a" + std::to_string(i) + "=\"1\"";
        return kontoliste("<konto" + attributes + "><blz>1</blz></konto>");
    };
    EXPECT_TRUE(updateAccounts(withAttributes(1000)));
    expectRefused(withAttributes(1001), kTooManyAttributes);
}

TEST_F(HostileDocumentsTest, HundredThousandAttributesOfHundredThousandElementsAreRead) {
    EXPECT_TRUE(updateAccounts(document(repeated("<x a='1'/>", 100000) + namedAccount("nach vielen"))));
    EXPECT_EQ(lastName(), "nach vielen");
}

/// `count` declarations of namespace prefixes, from `first` on.
std::string prefixes(int count, int first = 0) {
    std::string declarations;
    for (int i = first; i < first + count; ++i)
        declarations += " xmlns:p" + std::to_string(i) + "='u'";
    return declarations;
}

TEST_F(HostileDocumentsTest, SixteenPrefixesAreReadAndOneMoreIsNot) {
    const auto declaring = [](const std::string& declarations) {
        return kontoliste("<konto" + declarations + "><blz>1</blz></konto>");
    };
    EXPECT_TRUE(updateAccounts(declaring(prefixes(16))));
    EXPECT_TRUE(updateAccounts(declaring(prefixes(15) + " xmlns:s='u' s:a='' s:b='' s:c=''")));
    EXPECT_TRUE(updateAccounts(declaring(prefixes(14) + " xmlns=''")));
    EXPECT_TRUE(updateAccounts(declaring(prefixes(14) + " xmlns='u' xmlns:q='u'")));
    expectRefused(declaring(prefixes(17)), kTooManyPrefixes);
    expectRefused(declaring(prefixes(16) + " xmlns=''"), kTooManyPrefixes);
}

TEST_F(HostileDocumentsTest, PrefixDeclaredAgainAndAgainIsOne) {
    EXPECT_TRUE(updateAccounts(document(repeated("<x xmlns:p='u'/>", 1000) + namedAccount("nach vielen"))));
    EXPECT_EQ(lastName(), "nach vielen");
}

TEST_F(HostileDocumentsTest, PrefixesInForceForManyElements) {
    expectRefused("<HomeBanking version=\"1.0\"" + prefixes(1000) + ">" + repeated("<x/>", 100000) + "</HomeBanking>",
                  kTooManyPrefixes);
}

TEST_F(HostileDocumentsTest, PrefixesOnManyLevels) {
    std::string deep;
    for (int level = 0; level < 900; ++level)
        deep += "<x" + prefixes(100, 100 * level) + ">";
    expectRefused(document(deep + repeated("</x>", 900)), kTooManyPrefixes);
}

TEST_F(HostileDocumentsTest, PrefixesThatEntitiesHold) {
    expectRefused(inSubset("<!ENTITY e \"<x" + prefixes(17) + "/>\">", "&e;"), kTooManyPrefixes);
}

TEST_F(HostileDocumentsTest, EntitiesOfModestSizeAreRead) {
    EXPECT_TRUE(updateAccounts(inSubset("<!ENTITY firma 'Meyer &amp; Co'>", namedAccount("&firma; KG"))));
    EXPECT_EQ(lastName(), "Meyer & Co KG");
    EXPECT_TRUE(updateAccounts(inSubset("<!ENTITY leer ''>" + std::string(5000, ' '), namedAccount("a&leer;b"))));
    EXPECT_EQ(lastName(), "ab");
    EXPECT_TRUE(updateAccounts(inSubset("<!ENTITY a 'x'><!ENTITY b '&a;&a;'>", namedAccount("&b;&b;"))));
    EXPECT_EQ(lastName(), "xxxx");
    EXPECT_TRUE(updateAccounts(
        inSubset("<!ENTITY konto '" + konto("9", "9", "aus der Entity") + "'>", "<kontoliste>&konto;</kontoliste>")));
    EXPECT_EQ(lastName(), "aus der Entity");
}

TEST_F(HostileDocumentsTest, EntityThatDoublesItselfAgainAndAgain) {
    std::string bomb = "<!ENTITY e0 'haha'>";
    for (int i = 1; i <= 30; ++i) {
        const std::string before = "&e" + std::to_string(i - 1) + ";";
        bomb += "<!ENTITY e" + std::to_string(i) + " '" + before + before + "'>";
    }
    expectRefused(inSubset(bomb, namedAccount("&e30;")), kDocumentType);
}

TEST_F(HostileDocumentsTest, LongEntityUsedOften) {
    const std::string entity = "<!ENTITY e '" + std::string(100000, 'x') + "'>";
    EXPECT_TRUE(updateAccounts(inSubset(entity, namedAccount("&e;&e;"))));
    EXPECT_EQ(lastName().size(), 200000U);
    expectRefused(inSubset(entity, namedAccount(repeated("&e;", 1000))), kDocumentType);
    expectRefused(inSubset(entity, "<x a='" + repeated("&e;", 1000) + "'/>"), kDocumentType);
}

TEST_F(HostileDocumentsTest, LongEntityUsedOftenInOneDeclaredLast) {
    // The reader's own limit leaves out what is declared last.
    const std::string entities =
        "<!ENTITY e '" + std::string(4000, 'x') + "'><!ENTITY f '" + repeated("&e;", 100000) + "'>";
    expectRefused(inSubset(entities, namedAccount("&f;")), kDocumentType);
    expectRefused(inSubset(entities, "<x a='&f;'/>"), kDocumentType);
    expectRefused(inSubset(entities + "<!ATTLIST x a CDATA '&f;'>", "<x/>"), kDocumentType);
}

TEST_F(HostileDocumentsTest, EntityUsedBeforeItIsDeclared) {
    expectRefused(inSubset("<!ENTITY f '" + repeated("&e;", 100000) + "'><!ENTITY e '" + std::string(4000, 'x') + "'>",
                           namedAccount("&f;")),
                  kDocumentType);
    for (const char* circle : {"<!ENTITY e '&e;'>", "<!ENTITY e 'x&f;'><!ENTITY f '&e;'>"})
        expectRefused(inSubset(circle, namedAccount("&e;")), kDocumentType);
}

TEST_F(HostileDocumentsTest, EntityThatIsNeverDeclared) {
    EXPECT_TRUE(updateAccounts(inSubset("<!ENTITY e '&nie;x'>", namedAccount("a&e;&auch-nie;b"))));
    EXPECT_EQ(lastName(), "axb");
    EXPECT_TRUE(updateAccounts(document(namedAccount("a&nie;b"))));
    EXPECT_EQ(lastName(), "ab");
}

TEST_F(HostileDocumentsTest, ThousandEntitiesAreReadAndOneMoreIsNot) {
    std::string entities;
    for (int i = 0; i < 1000; ++i)
        entities += "<!ENTITY e" + std::to_string(i) + " 'x'>";
    EXPECT_TRUE(updateAccounts(inSubset(entities, namedAccount("&e0;&e999;"))));
    EXPECT_EQ(lastName(), "xx");
    expectRefused(inSubset(entities + "<!ENTITY e1000 'x'>", ""), kDocumentType);
}

TEST_F(HostileDocumentsTest, EntityInAnAttributeThatIsNeverDeclared) {
    EXPECT_EQ(updateAccounts(document("<x a='&nie;'/>" + namedAccount("x"))), QtParser::kSkipsEntitiesInAttributes);
}

TEST_F(HostileDocumentsTest, ExternalEntityAmongTheAccounts) {
    const std::string list = "<kontoliste>&e;" + konto("1", "2", "x") + "</kontoliste>";
    EXPECT_EQ(updateAccounts(inSubset("<!ENTITY e SYSTEM 'e.xml'>", list)), !QtParser::kExternalEntitiesAreNodes);
}

TEST_F(HostileDocumentsTest, EntityThatIsLongerThanWhatEntitiesMayAlwaysHold) {
    const auto declaring = [](std::size_t length) {
        return inSubset("<!ENTITY e '" + std::string(length, 'x') + "'>", namedAccount("&e;"));
    };
    EXPECT_TRUE(updateAccounts(declaring(262000)));
    EXPECT_EQ(updateAccounts(declaring(263000)), QtParser::kReadsLongEntities);
}

TEST_F(HostileDocumentsTest, AttributesThatEntitiesHold) {
    std::string attributes;
    for (int i = 0; i < 1001; ++i)
        attributes += " a" + std::to_string(i) + "=\"1\"";
    expectRefused(inSubset("<!ENTITY e '<x" + attributes + "/>'>", "&e;"), kTooManyAttributes);
}

TEST_F(HostileDocumentsTest, DeclaredAttributes) {
    const std::string list = inSubset("<!ATTLIST HomeBanking version CDATA '2.0' a CDATA ''>", namedAccount("x"));
    EXPECT_EQ(updateAccounts(list), QtParser::kSkipsAttributeDeclarations);
}

TEST_F(HostileDocumentsTest, DocumentTypeThatAnEntityHolds) {
    std::string entity = "<!DOCTYPE b [<!ENTITY &#37; p \"" + std::string(200, 'x') + "\">";
    for (int i = 0; i < 1000; ++i)
        entity += "&#37;p;";
    EXPECT_FALSE(updateAccounts(inSubset("<!ENTITY e '" + entity + "]>'>", namedAccount("&e;"))));
    EXPECT_TRUE(saysNotXml());
}

TEST_F(HostileDocumentsTest, ReferencesThatAValueBeginsAndNeverEnds) {
    // Were each read up to the end of the value, they would take 60 GB.
    const std::string value = repeated("&#38;", 250000);
    expectRefused(inSubset("<!ENTITY e '" + value + "'>", namedAccount("x")), kDocumentType);
    expectRefused(inSubset("<!ENTITY e '" + value + ";'>", namedAccount("x")), kDocumentType);
}

TEST_F(HostileDocumentsTest, PrefixDeclaredOnEveryLevel) {
    std::string deep;
    for (int level = 0; level < 900; ++level)
        deep += "<p:x xmlns:p='u' xmlns='u'>";
    const std::string list = document("<p:a xmlns:p='u'>" + deep + repeated("</p:x>", 900) + "</p:a>");
    EXPECT_FALSE(updateAccounts(list));
    EXPECT_EQ(error(), QtParser::kMostDeclarationsInForce < 1801 ? kTooManyPrefixes : "");
}

TEST_F(HostileDocumentsTest, ParameterEntities) {
    expectRefused(inSubset("<!ENTITY % p '<!ENTITY e \"x\">'>%p;", namedAccount("&e;")), kDocumentType);
    expectRefused("<!DOCTYPE HomeBanking [<!ENTITY % p ']><HomeBanking version=\"1.0\">'>%p;</HomeBanking>",
                  kDocumentType);
    EXPECT_EQ(updateAccounts(inSubset("%nie;", namedAccount("x"))), QtParser::kSkipsParameterEntities);
}

TEST_F(HostileDocumentsTest, NestedGroupsOfAContentModel) {
    const auto groups = [](int levels) {
        return inSubset("<!ELEMENT x " + repeated("(", levels) + "y" + repeated(")", levels) + ">", namedAccount("x"));
    };
    EXPECT_TRUE(updateAccounts(groups(1000)));
    expectRefused(groups(1001), kDocumentType);
    expectRefused(groups(200000), kDocumentType);
}

TEST_F(HostileDocumentsTest, DoctypeWithoutSubset) {
    EXPECT_TRUE(updateAccounts("<!DOCTYPE HomeBanking SYSTEM \"homebanking.dtd\">"
                               "<HomeBanking version=\"1.0\">" +
                               namedAccount("mit DOCTYPE") + "</HomeBanking>"));
    EXPECT_EQ(lastName(), "mit DOCTYPE");
}

/// Whether a file was opened or read since this object was made.
class FileWatch {
public:
    explicit FileWatch(const std::string& path) : m_queue(inotify_init1(IN_NONBLOCK)) {
        EXPECT_GE(inotify_add_watch(m_queue, path.c_str(), IN_OPEN | IN_ACCESS), 0);
    }
    ~FileWatch() { close(m_queue); }
    FileWatch(const FileWatch&) = delete;
    FileWatch& operator=(const FileWatch&) = delete;

    bool touched() const {
        char events[4096];
        return read(m_queue, events, sizeof events) > 0;
    }

private:
    int m_queue;
};

/// A server on this machine that answers nobody.
class SilentServer {
public:
    SilentServer() : m_socket(socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        auto* plain = reinterpret_cast<sockaddr*>(&address);
        EXPECT_EQ(bind(m_socket, plain, size), 0);
        EXPECT_EQ(listen(m_socket, 5), 0);
        EXPECT_EQ(getsockname(m_socket, plain, &size), 0);
        m_port = ntohs(address.sin_port);
    }
    ~SilentServer() { close(m_socket); }
    SilentServer(const SilentServer&) = delete;
    SilentServer& operator=(const SilentServer&) = delete;

    std::string url() const { return "http://127.0.0.1:" + std::to_string(m_port) + "/x.xml"; }
    bool called() const {
        const int visitor = accept(m_socket, nullptr, nullptr);
        if (visitor >= 0)
            close(visitor);
        return visitor >= 0;
    }

private:
    int m_socket;
    int m_port = 0;
};

TEST_F(HostileDocumentsTest, NothingOutsideTheDocumentIsRead) {
    const TemporaryFile secret("geheim", "geheim.txt");
    const SilentServer server;
    const FileWatch watch(secret.path());
    {
        std::ifstream probe(secret.path());
        ASSERT_TRUE(probe.is_open());
    }
    ASSERT_TRUE(watch.touched()) << "the watch works";

    for (const std::string& system :
         {std::string("file://") + secret.path(), std::string(secret.path()), server.url()}) {
        SCOPED_TRACE(system);
        const std::string external = "SYSTEM \"" + system + "\"";
        EXPECT_TRUE(updateAccounts(inSubset("<!ENTITY e " + external + ">", namedAccount("a&e;b"))));
        EXPECT_EQ(lastName(), "ab");
        EXPECT_EQ(updateAccounts(inSubset("<!ENTITY % p " + external + "> %p;", namedAccount("x"))),
                  QtParser::kSkipsParameterEntities);
        EXPECT_TRUE(updateAccounts(
            inSubset("<!NOTATION n " + external + "><!ENTITY u " + external + " NDATA n>", namedAccount("x"))));
        EXPECT_TRUE(updateAccounts("<!DOCTYPE HomeBanking " + external + "><HomeBanking version=\"1.0\">" +
                                   namedAccount("x") + "</HomeBanking>"));
        EXPECT_TRUE(updateAccounts("<?xml-stylesheet href=\"" + system +
                                   "\"?><HomeBanking version=\"1.0\" "
                                   "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
                                   "xsi:noNamespaceSchemaLocation=\"" +
                                   system + "\">" + namedAccount("x") + "</HomeBanking>"));
        EXPECT_FALSE(updateAccounts(inSubset("<!ENTITY e " + external + ">", "<x a='&e;'/>")));
        EXPECT_TRUE(saysNotXml());
    }
    EXPECT_FALSE(watch.touched());
    EXPECT_FALSE(server.called());
}

TEST_F(HostileDocumentsTest, TruncatedAtEveryByte) {
    const std::string list =
        "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"UTF-8\"?><!DOCTYPE HomeBanking [<!ENTITY e 'x'>]>"
        "<HomeBanking version=\"1.0\"><!-- c --><buchungsliste blz=\"10020030\" ktonr='123456789'>"
        "<buchung><id>1</id><datum>01.02.2026</datum><verwendungszweck>M\xC3\xBCller &amp; &e;<![CDATA[<b>]]>"
        "</verwendungszweck><?p i?></buchung></buchungsliste></HomeBanking>";
    for (std::size_t size = 0; size < list.size(); ++size) {
        // A copy of its own size: reading beyond it is seen under the sanitizers.
        const std::string part = list.substr(0, size);
        ASSERT_FALSE(importBookings(part)) << size;
        ASSERT_TRUE(saysNotXml()) << size;
    }
    EXPECT_EQ(bookings(), 0);
    EXPECT_TRUE(importBookings(list));
    EXPECT_EQ(bookings(), 1);
}

TEST_F(HostileDocumentsTest, EveryByteReplaced) {
    const std::string list = buchungsliste(buchung("1", "<datum>01.02.2026</datum><betrag>1,00</betrag>"));
    for (std::size_t at = 0; at < list.size(); ++at) {
        for (const char byte : {'\0', '<', '&', '"', ' ', '\xFF'}) {
            std::string changed = list;
            changed[at] = byte;
            const int before = bookings();
            importBookings(changed); // whatever comes of it, it ends, and adds one booking at most
            ASSERT_LE(bookings(), before + 1) << at;
        }
    }
}

TEST_F(HostileDocumentsTest, ZeroBytes) {
    std::string list = kontoliste(konto("1", "2", "vor#nach"));
    list[list.find('#')] = '\0';
    EXPECT_EQ(updateAccounts(list), QtParser::kReadsZeroCharacters);
    if (QtParser::kReadsZeroCharacters) {
        EXPECT_EQ(lastName(), "vor") << "texts of the host end there";
    }

    EXPECT_FALSE(updateAccounts(kontoliste(konto("1", "2", "x")) + std::string(3, '\0')));
    EXPECT_TRUE(saysNotXml());
    EXPECT_FALSE(updateAccounts(std::string(1000, '\0')));
    EXPECT_TRUE(saysNotXml());
    std::string tag = kontoliste(konto("1", "2", "x"));
    tag[tag.find("konto>")] = '\0';
    EXPECT_FALSE(updateAccounts(tag));
    EXPECT_TRUE(saysNotXml());
}

TEST_F(HostileDocumentsTest, BytesOfAnyKind) {
    unsigned state = 1;
    for (int round = 0; round < 2000; ++round) {
        std::string bytes(static_cast<std::size_t>(round % 100), ' ');
        for (char& byte : bytes)
            byte = static_cast<char>((state = state * 1664525U + 1013904223U) >> 24U);
        EXPECT_FALSE(updateAccounts(bytes));
        EXPECT_TRUE(saysNotXml());
    }
}

TEST_F(HostileDocumentsTest, LongTextInOneElement) {
    constexpr std::size_t kLength = std::size_t{64} << 20U;
    const std::string list = buchungsliste(buchung("1", "<notiz>" + std::string(kLength, 'x') + "</notiz>"));
    const long before = peakMemory();
    EXPECT_TRUE(importBookings(list));
    EXPECT_EQ(account("DataSets/1/Notiz").size(), kLength);
    EXPECT_LT(peakMemory() - before, static_cast<long>(12 * kLength));
}

TEST_F(HostileDocumentsTest, LongNamesAndValues) {
    const std::string lengthy(1 << 20, 'x');
    const auto withName = [&lengthy](const std::string& name) {
        return document("<" + name + " a=\"" + lengthy + "\"/><!--" + lengthy + "--><?p " + lengthy + "?>" +
                        namedAccount("x"));
    };
    EXPECT_TRUE(updateAccounts(withName(std::string(4000, 'x'))));
    EXPECT_EQ(updateAccounts(withName(lengthy)), QtParser::kReadsLongNames);
    EXPECT_FALSE(updateAccounts(document("<" + lengthy)));
    EXPECT_FALSE(updateAccounts("<HomeBanking version=\"" + lengthy + "\"/>"));
    EXPECT_EQ(error(), "Die XML-Datei hat eine Keine Versionsnummer.");
    EXPECT_FALSE(updateAccounts("<HomeBanking version=\"" + std::string(100000, '9') + ".0\"/>"));
    EXPECT_EQ(error(), "Die XML-Datei hat eine unbekannte Versionsnummer.");
}

} // namespace
