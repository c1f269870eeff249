// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "framework/datamodel_api/DmApi.h"

/// The host's helpers for what differs between platforms.
class DM_API CrossPlatformApi {
public:
    /// 0 when the texts are equal but for the case of ASCII letters.
    static int strCmpNoCase(const char* a, const char* b);
    /// A path as the host holds it (Latin-1), as the file system wants it.
    static std::string fileSystemEncoding(const std::string& path);
};
