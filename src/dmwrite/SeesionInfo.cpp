// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "dmwrite/SeesionInfo.h"

#include "dmwrite/IntegerCounter.h"
#include "dmwrite/NodeAccess.h"
#include "dmwrite/UtcClock.h"
#include "framework/AssertTypeSizes.h"

namespace {
constexpr const char* kCounter = "NextImportID";
}

void SeesionInfo::init(Node* root) {
    m_rootNode = root;
    setupImportID();
}

void SeesionInfo::setupImportID() {
    const Node* counter = m_rootNode != nullptr ? m_rootNode->getNode(NDX(kCounter)) : nullptr;
    m_importID = counter != nullptr ? counter->getValue() : DataType();
}

void SeesionInfo::setupImportDate() { m_importDate = UtcClock::today(); }

bool SeesionInfo::isValidDate() const {
    return m_importDate.kind() == DataType::eDate && !m_importDate.getDate().isZero();
}

bool SeesionInfo::isValid() const {
    const bool hasID = m_importID.kind() == DataType::eInteger && m_importID.getInt() >= 1;
    const bool hasTexts = m_importInfo.kind() == DataType::eString && m_importFileName.kind() == DataType::eString;
    return m_rootNode != nullptr && m_importType != kTypeNotSet && hasID && isValidDate() && hasTexts;
}

Node* SeesionInfo::writeSessionInfoToDM() const {
    Node* row = NodeAccess::appendRow(m_rootNode, "Importsessions");
    // In this order, up to the first refusal: a host may find the beginning of a session.
    const bool written = NodeAccess::assignField(row, "ImportDatum", m_importDate) &&
                         NodeAccess::assignField(row, "ImportInfo", m_importInfo) &&
                         NodeAccess::assignField(row, "ImportID", m_importID) &&
                         NodeAccess::assignField(row, "ImportTyp", DataType::makeInteger(m_importType)) &&
                         NodeAccess::assignField(row, "ImportFileName", m_importFileName);
    if (!written)
        return nullptr;
    NodeAccess::assignField(m_rootNode, kCounter, IntegerCounter::next(m_importID));
    return row;
}
