// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "framework/ImportModuleApi.h"

class Node;

/// The input of one home-banking import: a file or a buffer, whichever was set
/// last, and the node that receives the data. Owns the file name; buffer and
/// node belong to the caller and must outlive the call they are passed to.
class IMPORT_MODULE_API XmlImportData {
public:
    XmlImportData();

    /// Path in Latin-1; null is no name.
    void setXmlFileName(const char* name);
    /// A document in memory, `size` bytes of it; the bytes are not copied.
    void setXmlContent(const char* buffer, unsigned long size);

    std::string getXmlFileName() const;
    const char* getBuffer() const { return m_buffer; }
    unsigned long getBufferSize() const { return m_bufferSize; }

    /// The root of the host's tree, under which "HomeBankingImport" lies.
    void setImportTargetNode(Node* node) { m_importTargetNode = node; }
    Node* getImportTargetNode() const { return m_importTargetNode; }

private:
    const char* m_buffer = nullptr;
    unsigned long m_bufferSize = 0;
    std::string m_xmlFileName;
    Node* m_importTargetNode = nullptr;
};
