// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>
#include <string>

#include <gmock/gmock.h>

#include "framework/ModuleFixture.h"
#include "support/TemporaryFile.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kCannotOpen = "Die Importdatei konnte nicht ge\xF6"
                                "ffnet werden.";
const std::string kUnreadable = "Fehler beim Analysieren der Daten aus der XML-Datei.\n";

/// Every test runs over a file and over the same bytes in memory.
class LineLoopTest : public ModuleFixture, public testing::WithParamInterface<bool> {
protected:
    int run(ScriptedModule& module, const std::string& bytes, bool simulate = false) {
        if (!GetParam())
            return module.importFile(paramsFor(bytes, simulate));
        const TemporaryFile file(bytes, "eingabe.txt");
        ImportInputParams params = paramsFor("", simulate);
        params.setInputFileBuffer(nullptr, 0);
        params.m_fileName = file.path();
        return module.importFile(params);
    }
    int run(const std::string& bytes, bool simulate = false) { return run(m_module, bytes, simulate); }
};

INSTANTIATE_TEST_SUITE_P(Inputs, LineLoopTest, testing::Bool(),
                         [](const auto& input) { return input.param ? "File" : "Buffer"; });

TEST_P(LineLoopTest, LinesReachTheModuleWithTheirNumbers) {
    EXPECT_EQ(run("eins\nzwei\ndrei\n"), 1);
    EXPECT_THAT(m_module.lines(), ElementsAre("eins", "zwei", "drei"));
    EXPECT_THAT(m_module.lineNumbers(), ElementsAre(1, 2, 3));
    EXPECT_EQ(m_module.targetOfLastLine(), m_model.root());
    EXPECT_STREQ(m_module.getErrorMsg(), "");
}

TEST_P(LineLoopTest, LastLineWithoutLineFeedIsProcessed) {
    EXPECT_EQ(run("eins\nzwei"), 1);
    EXPECT_THAT(m_module.lines(), ElementsAre("eins", "zwei"));
    EXPECT_EQ(m_module.m_lineNo, 3);
}

TEST_P(LineLoopTest, LineFeedAtTheEndYieldsOneMoreLineThatIsSkipped) {
    EXPECT_EQ(run("eins\nzwei\n"), 1);
    EXPECT_THAT(m_module.lines(), ElementsAre("eins", "zwei"));
    EXPECT_EQ(m_module.m_lineNo, 4);
}

TEST_P(LineLoopTest, EmptyLinesAreSkippedAndCounted) {
    EXPECT_EQ(run("\n\neins\n \t \n\t\n  \nzwei\n\n"), 1);
    EXPECT_THAT(m_module.lines(), ElementsAre("eins", "zwei"));
    EXPECT_THAT(m_module.lineNumbers(), ElementsAre(3, 7));
}

TEST_P(LineLoopTest, InputOfBlankLinesImportsNothingAndSucceeds) {
    for (const char* bytes : {"", "\n", " ", "\t\n \n", "\n\n\n\n"}) {
        ScriptedModule module;
        EXPECT_EQ(run(module, bytes), 1) << bytes;
        EXPECT_THAT(module.lines(), IsEmpty()) << bytes;
        EXPECT_EQ(module.getLastImportedDataSetsCount(), 0);
        ScriptedModule simulating;
        EXPECT_EQ(run(simulating, bytes, true), 2) << bytes;
    }
    EXPECT_EQ(m_model.rows("Importsessions"), 0) << "no session for an import of nothing";
    EXPECT_EQ(m_model.kind("NeueDatenVorhanden"), DataType::eEmpty);
    EXPECT_EQ(m_model.integer("NextImportID"), 1);
}

TEST_P(LineLoopTest, CarriageReturnStaysInTheLine) {
    EXPECT_EQ(run("eins\r\nzwei\r"), 1);
    EXPECT_THAT(m_module.lines(), ElementsAre("eins\r", "zwei\r"));
}

TEST_P(LineLoopTest, LineOfACarriageReturnAloneIsNotEmpty) {
    EXPECT_EQ(run("eins\r\n\r\nzwei\r\n"), 1);
    EXPECT_THAT(m_module.lines(), ElementsAre("eins\r", "\r", "zwei\r"));
}

TEST_P(LineLoopTest, CarriageReturnAloneEndsNoLine) {
    EXPECT_EQ(run("eins\rzwei\n"), 1);
    EXPECT_THAT(m_module.lines(), ElementsAre("eins\rzwei"));
}

TEST_P(LineLoopTest, LineOf4094BytesIsRead) {
    const std::string longest(4094, 'x');
    EXPECT_EQ(run(longest + "\n" + longest), 1);
    EXPECT_THAT(m_module.lines(), ElementsAre(longest, longest));
    EXPECT_THAT(m_module.lineNumbers(), ElementsAre(1, 2));
    EXPECT_STREQ(m_module.getErrorMsg(), "");
}

TEST_P(LineLoopTest, LineOf4095BytesEndsTheImportWithItsNumber) {
    for (const char* ending : {"", "\n", "\nnoch eine\n"}) {
        ScriptedModule module;
        EXPECT_EQ(run(module, "eins\n\n" + std::string(4095, 'x') + ending), 0);
        EXPECT_THAT(module.lines(), ElementsAre("eins"));
        EXPECT_EQ(module.getErrorMsg(), "(Zeile   3):" + kUnreadable);
    }
}

TEST_P(LineLoopTest, CarriageReturnCountsInTheLengthOfALine) {
    EXPECT_EQ(run(std::string(4093, 'x') + "\r\n"), 1);
    ScriptedModule module;
    EXPECT_EQ(run(module, std::string(4094, 'x') + "\r\n"), 0);
    EXPECT_EQ(module.getErrorMsg(), "(Zeile   1):" + kUnreadable);
}

TEST_P(LineLoopTest, BlankLineThatIsTooLongEndsTheImport) {
    EXPECT_EQ(run(std::string(5000, ' ')), 0);
    EXPECT_EQ(m_module.getErrorMsg(), "(Zeile   1):" + kUnreadable);
}

TEST_P(LineLoopTest, TooLongLineOfASimulatedImportFailsAlike) {
    EXPECT_EQ(run(std::string(4095, 'x'), true), 0);
    EXPECT_EQ(m_module.getErrorMsg(), "(Zeile   1):" + kUnreadable);
    expectNothingWritten();
}

TEST_P(LineLoopTest, LineEndsForTheModuleAtAZeroByte) {
    const std::string bytes("ab\0cd\nzwei\n", 11);
    EXPECT_EQ(run(bytes), 1);
    EXPECT_THAT(m_module.lines(), ElementsAre("ab", "zwei"));
    EXPECT_THAT(m_module.lineNumbers(), ElementsAre(1, 2));
}

TEST_P(LineLoopTest, LineThatStartsWithAZeroByteIsEmpty) {
    const std::string bytes("\0abc\n \0abc\nzwei\n", 16);
    EXPECT_EQ(run(bytes), 1);
    EXPECT_THAT(m_module.lines(), ElementsAre("zwei"));
    EXPECT_THAT(m_module.lineNumbers(), ElementsAre(3));
}

TEST_P(LineLoopTest, ZeroBytesCountInTheLengthOfALine) {
    EXPECT_EQ(run(std::string(4094, '\0') + "\nzwei"), 1);
    EXPECT_THAT(m_module.lines(), ElementsAre("zwei"));
    ScriptedModule module;
    EXPECT_EQ(run(module, std::string(4095, '\0') + "\n"), 0);
    EXPECT_EQ(module.getErrorMsg(), "(Zeile   1):" + kUnreadable);
}

TEST_P(LineLoopTest, BytesAbove127ReachTheModuleUnchanged) {
    std::string all;
    for (int byte = 1; byte < 256; ++byte) {
        if (byte != '\n')
            all += static_cast<char>(byte);
    }
    EXPECT_EQ(run(all + "\n"), 1);
    EXPECT_THAT(m_module.lines(), ElementsAre(all));
}

TEST_P(LineLoopTest, LineTheModuleRejectsEndsTheImportAtOnce) {
    m_module.onLine([this](const char* line) {
        m_module.appendErrorMsg(nullptr, "Unsinn");
        return std::string(line) != "zwei";
    });
    EXPECT_EQ(run("eins\nzwei\ndrei\n"), 0);
    EXPECT_THAT(m_module.lines(), ElementsAre("eins", "zwei"));
    EXPECT_EQ(m_module.m_lineNo, 2);
    EXPECT_STREQ(m_module.getErrorMsg(), "UnsinnUnsinn") << "what the module said, and no more";
}

TEST_P(LineLoopTest, ModuleMayChangeTheLineInPlace) {
    m_module.onLine([](char* line) {
        for (char* at = line; *at != '\0'; ++at)
            *at = '\0';
        return true;
    });
    EXPECT_EQ(run("eins\nzwei\n"), 1);
    EXPECT_THAT(m_module.lines(), ElementsAre("eins", "zwei"));
}

TEST_P(LineLoopTest, SkipMarkIsTakenBackBeforeEveryLineThatIsNotEmpty) {
    std::vector<bool> seen;
    m_module.onLine([&](const char* /*line*/) {
        seen.push_back(m_module.m_skipRow);
        m_module.m_skipRow = true;
        return true;
    });
    EXPECT_EQ(run("eins\nzwei\n\n"), 1);
    EXPECT_THAT(seen, ElementsAre(false, false));
    EXPECT_TRUE(m_module.m_skipRow) << "an empty line does not touch it";
}

TEST_P(LineLoopTest, ModuleThatChangesTheResultDecidesWhatSuccessReturns) {
    m_module.onLine([this](const char* /*line*/) {
        m_module.m_result = 3;
        return true;
    });
    EXPECT_EQ(run("eins\n"), 3);
}

TEST_P(LineLoopTest, ResultTellsRealFromSimulated) {
    EXPECT_EQ(run("eins\n"), 1);
    ScriptedModule simulating;
    EXPECT_EQ(run(simulating, "eins\n", true), 2);
}

TEST_P(LineLoopTest, SimulatedImportWritesNothing) {
    EXPECT_EQ(run("eins\n", true), 2);
    expectNothingWritten();
}

TEST_P(LineLoopTest, RealImportStampsTheLastImportDate) {
    EXPECT_EQ(run("eins\n"), 1);
    EXPECT_EQ(m_model.value("LetztesImportDatum").getDate(), m_module.m_session.m_importDate.getDate());
    EXPECT_FALSE(m_model.value("LetztesImportDatum").getDate().isZero());
}

TEST_P(LineLoopTest, AnySimulateFlagButZeroSimulates) {
    ImportInputParams params = paramsFor("eins\n");
    params.m_simulate = static_cast<char>(-128);
    EXPECT_EQ(m_module.importFile(params), 2);
}

class InputTest : public ModuleFixture {};

TEST_F(InputTest, EmptyLinesAreThoseOfBlanksAndTabs) {
    for (const char* line : {"", " ", "\t", "    ", " \t \t"})
        EXPECT_TRUE(ScriptedModule::isEmptyLine(line)) << '"' << line << '"';
    for (const char* line : {"a", " a", "\t.", "\r", " \r", "\v", "\f", "\xA0", "  \t  x"})
        EXPECT_FALSE(ScriptedModule::isEmptyLine(line)) << '"' << line << '"';
}

TEST_F(InputTest, FileThatCannotBeOpenedReplacesTheErrorText) {
    const TemporaryFolder folder;
    const TemporaryFile file("eins\n");
    const std::string paths[] = {(folder.path() / "fehlt.txt").string(), std::string(file.path()) + "/darin.txt", "",
                                 (folder.path() / std::string(300, 'x')).string()};
    for (const std::string& path : paths) {
        ScriptedModule module;
        module.appendErrorMsg(nullptr, "von vorher");
        ImportInputParams params;
        params.m_targetNode = m_model.root();
        params.m_fileName = path.c_str();
        EXPECT_EQ(module.importFile(params), 0) << path;
        EXPECT_EQ(module.getErrorMsg(), kCannotOpen) << path;
        EXPECT_THAT(module.lines(), IsEmpty());
    }
}

TEST_F(InputTest, FileThatCannotBeOpenedStillStampsTheLastImportDate) {
    ImportInputParams params;
    params.m_targetNode = m_model.root();
    params.m_fileName = "";
    EXPECT_EQ(m_module.importFile(params), 0);
    EXPECT_EQ(m_model.kind("LetztesImportDatum"), DataType::eDate);
    EXPECT_EQ(m_model.rows("Importsessions"), 0);
}

TEST_F(InputTest, SimulatedImportOfAFileThatCannotBeOpenedFailsAndWritesNothing) {
    ImportInputParams params;
    params.m_targetNode = m_model.root();
    params.m_fileName = "";
    params.m_simulate = 1;
    EXPECT_EQ(m_module.importFile(params), 0);
    EXPECT_EQ(m_module.getErrorMsg(), kCannotOpen);
    expectNothingWritten();
}

TEST_F(InputTest, FolderOpensAndFailsAtItsFirstLine) {
    const TemporaryFolder folder;
    const std::string path = folder.path().string();
    ImportInputParams params;
    params.m_targetNode = m_model.root();
    params.m_fileName = path.c_str();
    EXPECT_EQ(m_module.importFile(params), 0);
    EXPECT_EQ(m_module.getErrorMsg(), "(Zeile   1):" + kUnreadable);
    EXPECT_THAT(m_module.lines(), IsEmpty());
}

TEST_F(InputTest, FileNameIsLatin1) {
    const TemporaryFolder folder;
    std::ofstream(folder.path() / std::filesystem::u8path("Ums\xC3\xA4tze \xC3\xBC\x62\x65r.txt")) << "eins\n";
    const std::string latin1 = folder.path().string() + "/Ums\xE4tze \xFC"
                                                        "ber.txt";
    ImportInputParams params;
    params.m_targetNode = m_model.root();
    params.m_fileName = latin1.c_str();
    EXPECT_EQ(m_module.importFile(params), 1);
    EXPECT_THAT(m_module.lines(), ElementsAre("eins"));
    EXPECT_EQ(m_module.m_session.m_importFileName.asString(true, 2), latin1) << "the session keeps the host's text";
}

TEST_F(InputTest, NeitherFileNorBufferCannotBeOpened) {
    ImportInputParams params;
    params.m_targetNode = m_model.root();
    EXPECT_EQ(m_module.importFile(params), 0);
    EXPECT_EQ(m_module.getErrorMsg(), kCannotOpen);

    ScriptedModule other;
    params.setInputFileBuffer(nullptr, 4711);
    EXPECT_EQ(other.importFile(params), 0);
    EXPECT_EQ(other.getErrorMsg(), kCannotOpen);
}

TEST_F(InputTest, FileNameComesBeforeTheBuffer) {
    const TemporaryFile file("aus der Datei\n");
    ImportInputParams params = paramsFor("aus dem Speicher\n");
    params.m_fileName = file.path();
    EXPECT_EQ(m_module.importFile(params), 1);
    EXPECT_THAT(m_module.lines(), ElementsAre("aus der Datei"));
}

TEST_F(InputTest, BufferIsReadToItsSizeWithoutATerminatingZero) {
    const char bytes[] = {'e', 'i', 'n', 's', '\n', 'z', 'w', 'e', 'i'};
    ImportInputParams params;
    params.m_targetNode = m_model.root();
    params.setInputFileBuffer(bytes, sizeof bytes);
    EXPECT_EQ(m_module.importFile(params), 1);
    EXPECT_THAT(m_module.lines(), ElementsAre("eins", "zwei"));

    ScriptedModule shorter;
    params.setInputFileBuffer(bytes, 6);
    EXPECT_EQ(shorter.importFile(params), 1);
    EXPECT_THAT(shorter.lines(), ElementsAre("eins", "z"));
}

TEST_F(InputTest, BufferIsNotChanged) {
    const std::string bytes = "eins\nzwei\n";
    ImportInputParams params;
    params.m_targetNode = m_model.root();
    params.setInputFileBuffer(bytes.data(), bytes.size());
    m_module.onLine([](char* line) { return (line[0] = 'X') != '\0'; });
    EXPECT_EQ(m_module.importFile(params), 1);
    EXPECT_EQ(bytes, "eins\nzwei\n");
}

TEST_F(InputTest, NoTargetNodeIsNoCrash) {
    ImportInputParams params = paramsFor("eins\n");
    params.m_targetNode = nullptr;
    m_module.onLine([this](const char* /*line*/) {
        const auto row = m_module.startRow(1, false);
        EXPECT_FALSE(m_module.setColumnVal(row, "Betrag", "1", false));
        return m_module.compelteRowProcessing(false);
    });
    EXPECT_EQ(m_module.importFile(params), 0);
    EXPECT_THAT(m_module.lines(), ElementsAre("eins"));
    EXPECT_STREQ(m_module.getErrorMsg(), "");
}

} // namespace
