// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
// As QtParserExemption.cpp, for the reader that Qt 6 builds its trees with.
#include <dlfcn.h>

#include "reliability/FailingMemory.h"

class QDomDocument;
class QString;
class QXmlStreamReader;

namespace {

template <typename Function>
Function theirs(const char* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

constexpr char kSetContent[] = "_ZN12QDomDocument10setContentEP16QXmlStreamReaderbP7QStringPiS4_";
constexpr char kReadNext[] = "_ZN16QXmlStreamReader8readNextEv";

} // namespace

__attribute__((visibility("default"))) bool
setContent(QDomDocument* document, QXmlStreamReader* reader, bool names, QString* message, int* line,
           int* column) __asm__("_ZN12QDomDocument10setContentEP16QXmlStreamReaderbP7QStringPiS4_");
__attribute__((visibility("default"))) int
readNext(QXmlStreamReader* reader) __asm__("_ZN16QXmlStreamReader8readNextEv");

bool setContent(QDomDocument* document, QXmlStreamReader* reader, bool names, QString* message, int* line,
                int* column) {
    static const auto real = theirs<decltype(&setContent)>(kSetContent);
    const FailingMemory::Pause pause;
    return real(document, reader, names, message, line, column);
}

int readNext(QXmlStreamReader* reader) {
    static const auto real = theirs<decltype(&readNext)>(kReadNext);
    const FailingMemory::Pause pause;
    return real(reader);
}
