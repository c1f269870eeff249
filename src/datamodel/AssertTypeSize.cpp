// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <cstdio>
#include <cstdlib>

#include "framework/datamodel_api/AssertTypeSize_DataManager.h"
#include "framework/datamodel_api/AssertTypeSize_Node.h"
#include "framework/datamodel_api/DataManager.h"
#include "framework/datamodel_api/Node.h"

namespace {

// Runs from static initialisers of other libraries, possibly before those of
// this one: nothing here may need any. A library of another age would write
// past our objects, so there is no going on.
void assertSize(const char* type, unsigned long expected, unsigned long size) {
    if (size == expected)
        return;
    std::fprintf(
        stderr,
        "libDm [dm-type-size]: Importbibliothek und Datenmodell passen nicht zusammen: \"%s\" hat dort %lu und "
        "hier %lu Bytes. Bitte beide aus derselben Version bauen und installieren.\n",
        type, size, expected);
    std::abort();
}

} // namespace

void AssertTypeSize_Node::assertTypeSize(unsigned long size) { assertSize("Node", sizeof(Node), size); }

void AssertTypeSize_DataManager::assertTypeSize(unsigned long size) {
    assertSize("DataManager", sizeof(DataManager), size);
}
