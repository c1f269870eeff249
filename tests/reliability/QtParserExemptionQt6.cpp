// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
// As QtParserExemption.cpp, for the reader that Qt 6 builds its trees with: it ends the process in functions that must
// not throw, as soon as it is made.
#include "reliability/FailingMemory.h"
#include "reliability/NextFunction.h"

class QByteArray;
class QDomDocument;
class QString;
class QXmlStreamReader;

namespace {

constexpr char kSetContent[] = "_ZN12QDomDocument10setContentEP16QXmlStreamReaderbP7QStringPiS4_";
constexpr char kReadNext[] = "_ZN16QXmlStreamReader8readNextEv";
constexpr char kReaderOfBytes[] = "_ZN16QXmlStreamReaderC1ERK10QByteArray";
constexpr char kReaderOfText[] = "_ZN16QXmlStreamReaderC2ERK7QString"; // a derived class calls this one

} // namespace

__attribute__((visibility("default"))) bool
setContent(QDomDocument* document, QXmlStreamReader* reader, bool names, QString* message, int* line,
           int* column) __asm__("_ZN12QDomDocument10setContentEP16QXmlStreamReaderbP7QStringPiS4_");
__attribute__((visibility("default"))) int
readNext(QXmlStreamReader* reader) __asm__("_ZN16QXmlStreamReader8readNextEv");
__attribute__((visibility("default"))) void
readerOfBytes(QXmlStreamReader* reader, const QByteArray& bytes) __asm__("_ZN16QXmlStreamReaderC1ERK10QByteArray");
__attribute__((visibility("default"))) void
readerOfText(QXmlStreamReader* reader, const QString& text) __asm__("_ZN16QXmlStreamReaderC2ERK7QString");

bool setContent(QDomDocument* document, QXmlStreamReader* reader, bool names, QString* message, int* line,
                int* column) {
    static const auto real = nextFunction<decltype(&setContent)>(kSetContent);
    const FailingMemory::Pause pause;
    return real(document, reader, names, message, line, column);
}

int readNext(QXmlStreamReader* reader) {
    static const auto real = nextFunction<decltype(&readNext)>(kReadNext);
    const FailingMemory::Pause pause;
    return real(reader);
}

void readerOfBytes(QXmlStreamReader* reader, const QByteArray& bytes) {
    static const auto real = nextFunction<decltype(&readerOfBytes)>(kReaderOfBytes);
    const FailingMemory::Pause pause;
    real(reader, bytes);
}

void readerOfText(QXmlStreamReader* reader, const QString& text) {
    static const auto real = nextFunction<decltype(&readerOfText)>(kReaderOfText);
    const FailingMemory::Pause pause;
    real(reader, text);
}
