// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/ImportInputParams.h"

#include <climits>
#include <cstring>

#include "framework/AssertTypeSizes.h"

ImportInputParams::ImportInputParams() = default;

void ImportInputParams::setInputFileBuffer(const char* buffer, unsigned long size) {
    m_fileName = nullptr;
    m_buffer = buffer;
    m_bufferSize = size == ULONG_MAX && buffer != nullptr ? std::strlen(buffer) : size;
}
