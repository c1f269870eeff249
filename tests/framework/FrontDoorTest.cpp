// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>
#include <type_traits>

#include "framework/ImportExternData.h"
#include "support/SmartDateFixture.h"

namespace {

using Import::E_SupportedImportFormats;

static_assert(std::has_virtual_destructor_v<ImportExternData>);
static_assert(!std::is_copy_constructible_v<ImportExternData> && !std::is_copy_assignable_v<ImportExternData>);

class FrontDoorTest : public SmartDateFixture {
protected:
    void expectNoModule() const {
        EXPECT_EQ(m_door.getFileExtension(), nullptr);
        EXPECT_EQ(m_door.getErrorMsg(), nullptr);
        EXPECT_EQ(m_door.getLastImportedDataSetsCount(), 0);
        EXPECT_EQ(m_door.getLastImportedSessionID(), 0);
        EXPECT_EQ(m_door.getLastSimulatedImport().getRowCount(), 0);
        EXPECT_EQ(m_door.getLastSimulatedImport().getColumnCount(), 0);
        EXPECT_FALSE(m_door.getLastSimulatedImport().hasHeader());
        EXPECT_EQ(m_door.getBestDelimiter(), ',');
    }

    ImportExternData m_door;
};

TEST_F(FrontDoorTest, FreshObjectAnswersEveryQuestion) { expectNoModule(); }

TEST_F(FrontDoorTest, SettingsWithoutAModuleAreIgnored) {
    m_door.setDelimiterChar(';');
    m_door.assignColumns(ColumnAssignment{{{0, Import::eColBetrag}}, 1});
    m_door.setupDefaultColumnAssignmentVKD();
    m_door.setupDefaultColumnAssignmentZHOF();
    expectNoModule();
}

TEST_F(FrontDoorTest, EmptyPreviewIsOneForAll) {
    const ImportExternData other;
    EXPECT_EQ(&m_door.getLastSimulatedImport(), &other.getLastSimulatedImport());
}

TEST_F(FrontDoorTest, EveryFormatHasItsModule) {
    struct Case {
        int format;
        const char* extension;
        char delimiter;
        const char* why;
    };
    const Case cases[] = {
        {0, "ssx", ',', "no delimited list: the answer is the default"},
        {1, "csv", ',', "the module's own default"},
        {2, "qif", ',', "no delimited list: the answer is the default"},
        {3, "csv", ';', "tax data is a delimited list of a fixed layout"},
        {5, "csv", ';', "so is the money-program export"},
    };
    for (const Case& c : cases) {
        EXPECT_TRUE(m_door.create(static_cast<E_SupportedImportFormats>(c.format))) << c.why;
        EXPECT_STREQ(m_door.getFileExtension(), c.extension) << c.why;
        EXPECT_EQ(m_door.getBestDelimiter(), c.delimiter) << c.why;
        EXPECT_STREQ(m_door.getErrorMsg(), "");
        EXPECT_EQ(m_door.getLastImportedDataSetsCount(), 0);
        EXPECT_EQ(m_door.getLastImportedSessionID(), 0);
        EXPECT_EQ(m_door.getLastSimulatedImport().getRowCount(), 0);
    }
}

TEST_F(FrontDoorTest, NumberThatIsNoFormatDropsTheModule) {
    for (const int format : {4, 99, 6, -1, 100, 1 << 30}) {
        ASSERT_TRUE(m_door.create(Import::eFormatCSV));
        EXPECT_FALSE(m_door.create(static_cast<E_SupportedImportFormats>(format))) << format;
        expectNoModule();
    }
}

TEST_F(FrontDoorTest, EveryCreationForgetsTheLearnedDateOrder) {
    for (const int format : {0, 1, 2, 3, 4, 5, 99}) {
        SmartDate::sm_order = kMonthFirst;
        m_door.create(static_cast<E_SupportedImportFormats>(format));
        EXPECT_EQ(SmartDate::sm_order, kUnknown) << format;
    }
    SmartDate::sm_order = kMonthFirst;
    m_door.create("x.csv");
    EXPECT_EQ(SmartDate::sm_order, kUnknown);
}

TEST_F(FrontDoorTest, ExtensionBehindTheLastDotSelectsTheModule) {
    struct Case {
        const char* name;
        const char* extension;
        char delimiter;
        const char* why;
    };
    const Case cases[] = {
        {"Konten.CSV", "csv", ',', "upper case"},
        {"konten.csv", "csv", ',', "lower case"},
        {"KONTEN.Csv", "csv", ',', "mixed case"},
        {"a.ssx", "ssx", ',', "StarMoney"},
        {"a.SSX", "ssx", ',', "StarMoney"},
        {"a.qif", "qif", ',', "QIF"},
        {"a.b.QIF", "qif", ',', "only the last dot counts"},
        {"archive.qif.txt", "csv", ',', "only the last dot counts"},
        {"x.SDI", "csv", ';', "tax data"},
        {"x.sdi", "csv", ';', "tax data"},
        {"x.zhof", "csv", ';', "money-program export"},
        {"x.ZHof", "csv", ';', "money-program export"},
        {"x.zho", "csv", ',', "part of an extension"},
        {"x.zhofx", "csv", ',', "more than an extension"},
        {"x.txt", "csv", ',', "unknown: a delimited list"},
        {"x.", "csv", ',', "empty extension"},
        {".", "csv", ',', "empty extension"},
        {".qif", "qif", ',', "nothing but an extension"},
        {"csv", "csv", ',', "no dot"},
        {"qif", "csv", ',', "no dot: not even then"},
        {"", "csv", ',', "no name"},
        {"/home/x.qif/konten", "csv", ',', "the dot of a folder: \"qif/konten\" is no extension"},
        {"x.qif ", "csv", ',', "blank behind"},
    };
    for (const Case& c : cases) {
        EXPECT_TRUE(m_door.create(std::string(c.name))) << c.name;
        EXPECT_STREQ(m_door.getFileExtension(), c.extension) << c.name << ": " << c.why;
        EXPECT_EQ(m_door.getBestDelimiter(), c.delimiter) << c.name << ": " << c.why;
    }
}

TEST_F(FrontDoorTest, DelimiterReachesADelimitedList) {
    for (const int format : {1, 3, 5}) {
        ASSERT_TRUE(m_door.create(static_cast<E_SupportedImportFormats>(format)));
        m_door.setDelimiterChar('|');
        EXPECT_EQ(m_door.getBestDelimiter(), '|') << format;
    }
}

TEST_F(FrontDoorTest, DelimiterReachesNoOtherModule) {
    for (const int format : {0, 2}) {
        ASSERT_TRUE(m_door.create(static_cast<E_SupportedImportFormats>(format)));
        m_door.setDelimiterChar('|');
        EXPECT_EQ(m_door.getBestDelimiter(), ',') << format;
    }
}

TEST_F(FrontDoorTest, FixedLayoutSetsTheDelimiter) {
    ASSERT_TRUE(m_door.create(Import::eFormatCSV));
    m_door.setupDefaultColumnAssignmentVKD();
    EXPECT_EQ(m_door.getBestDelimiter(), ';');
    m_door.setDelimiterChar(',');
    m_door.setupDefaultColumnAssignmentZHOF();
    EXPECT_EQ(m_door.getBestDelimiter(), ';');
}

TEST_F(FrontDoorTest, AssignmentIsIgnoredByModulesThatAreNoDelimitedList) {
    ASSERT_TRUE(m_door.create(Import::eFormatQIF));
    m_door.assignColumns(ColumnAssignment{{{0, Import::eColBetrag}}, 1});
    EXPECT_STREQ(m_door.getFileExtension(), "qif");
    EXPECT_STREQ(m_door.getErrorMsg(), "");
}

TEST_F(FrontDoorTest, ElsterEntryDoesNothing) {
    ImportInputParams params;
    params.m_fileName = "x.xml";
    EXPECT_FALSE(m_door.importElsterXmlFile(params));
    expectNoModule();
    ASSERT_TRUE(m_door.create(Import::eFormatQIF));
    EXPECT_FALSE(m_door.importElsterXmlFile(params));
    EXPECT_STREQ(m_door.getFileExtension(), "qif");
}

} // namespace
