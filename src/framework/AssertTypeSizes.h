// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "framework/datamodel_api/DataModelApi.h"

// Included by every source file of the library, and by nothing else: before any
// import runs, the host hears from each of them with which sizes it was built.
namespace {

// NOLINTNEXTLINE(misc-definitions-in-headers): one in every source file is what this is for
[[maybe_unused]] const bool g_typeSizesAsserted = [] {
    AssertTypeSize_Node::assertTypeSize(sizeof(Node));
    AssertTypeSize_DataManager::assertTypeSize(sizeof(DataManager));
    return true;
}();

} // namespace
