// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "homebanking/XmlImportData.h"

#include "framework/AssertTypeSizes.h"

XmlImportData::XmlImportData() = default;

void XmlImportData::setXmlFileName(const char* name) {
    m_xmlFileName = name != nullptr ? name : "";
    m_buffer = nullptr;
    m_bufferSize = 0;
}

void XmlImportData::setXmlContent(const char* buffer, unsigned long size) {
    m_xmlFileName.clear();
    m_buffer = buffer;
    m_bufferSize = size;
}

std::string XmlImportData::getXmlFileName() const { return m_xmlFileName; }
