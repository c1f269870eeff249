// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "framework/ImportModuleApi.h"

class Node;

/// The input of one file import. Owns nothing: texts, buffer and node belong to
/// the caller and must outlive the call they are passed to.
struct IMPORT_MODULE_API ImportInputParams {
    ImportInputParams();

    /// Takes an input in memory in place of a file. `size` with all bits set
    /// stands for a zero-terminated buffer. The front door imports files only;
    /// modules that a host makes itself read the buffer.
    void setInputFileBuffer(const char* buffer, unsigned long size);
    const char* getBuffer() const { return m_buffer; }
    unsigned long getBufferSize() const { return m_bufferSize; }

    const char* m_fileName = nullptr;   ///< path, Latin-1; its extension selects the module
    Node* m_targetNode = nullptr;       ///< root of the data model that receives the records
    const char* m_importInfo = nullptr; ///< free description kept with the session; null for none
    char m_firstLineIsHeader = 0;       ///< non-zero: the first line is a header (generic CSV)
    char m_simulate = 0;                ///< non-zero: write nothing, fill the preview table
    const char* m_buffer = nullptr;
    unsigned long m_bufferSize = 0; ///< bytes
};
