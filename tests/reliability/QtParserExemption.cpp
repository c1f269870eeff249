// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
// Qt's XML parser does not survive the loss of memory: it follows null pointers. While it reads a document, nothing
// fails here; what the library does before and behind it does. Where the library calls it, it gets to these functions.
#include "reliability/FailingMemory.h"
#include "reliability/NextFunction.h"

class QByteArray;
class QDomDocument;
class QString;
class QXmlInputSource;
class QXmlSimpleReader;

namespace {

constexpr char kSetContent[] = "_ZN12QDomDocument10setContentERK10QByteArraybP7QStringPiS5_";
constexpr char kParse[] = "_ZN16QXmlSimpleReader5parseERK15QXmlInputSource";

} // namespace

__attribute__((visibility("default"))) bool
setContent(QDomDocument* document, const QByteArray& bytes, bool names, QString* message, int* line,
           int* column) __asm__("_ZN12QDomDocument10setContentERK10QByteArraybP7QStringPiS5_");
__attribute__((visibility("default"))) bool
parse(QXmlSimpleReader* reader,
      const QXmlInputSource& source) __asm__("_ZN16QXmlSimpleReader5parseERK15QXmlInputSource");

bool setContent(QDomDocument* document, const QByteArray& bytes, bool names, QString* message, int* line, int* column) {
    static const auto real = nextFunction<decltype(&setContent)>(kSetContent);
    const FailingMemory::Pause pause;
    return real(document, bytes, names, message, line, column);
}

bool parse(QXmlSimpleReader* reader, const QXmlInputSource& source) {
    static const auto real = nextFunction<decltype(&parse)>(kParse);
    const FailingMemory::Pause pause;
    return real(reader, source);
}

// Where an allocation fails in the library while Qt reads a document, Qt's input source does not give back its block.
// A sanitizer sees no further than the function that allocates.
// NOLINTBEGIN(bugprone-reserved-identifier): the sanitizer looks for this name
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() { return "leak:QArrayData::allocate\n"; }
// NOLINTEND(bugprone-reserved-identifier)
