// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "framework/datamodel_api/DmApi.h"

/// The host's check that the library was built against its `DataManager`.
class DM_API AssertTypeSize_DataManager {
public:
    /// `size`: bytes of `DataManager` as the caller was built. Provided by the host; called before `main`.
    static void assertTypeSize(unsigned long size);
};
