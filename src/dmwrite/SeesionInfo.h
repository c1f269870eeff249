// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "framework/datamodel_api/DataType.h"
#include "framework/ImportModuleApi.h"

class Node;

/// One import session as it will stand in the host's table "Importsessions".
/// The name is misspelt in hosts, too, and stays. Copies are independent; the
/// root node belongs to the host.
class IMPORT_MODULE_API SeesionInfo {
public:
    static constexpr int kTypeNotSet = 99;

    /// Takes the root and reads the import ID that this session will get.
    void init(Node* root);
    /// Reads the root's "NextImportID" and leaves the counter as it is; it moves
    /// on only when the session is written.
    void setupImportID();
    /// Stamps the session with today's date in UTC.
    void setupImportDate();
    /// Whether the import date is a date and not the zero date.
    bool isValidDate() const;
    /// Whether every part of the session that is written is there.
    bool isValid() const;
    /// Writes the session's row and moves "NextImportID" on. Null at the first
    /// field that is missing or refused; what was written before stays.
    Node* writeSessionInfoToDM() const;

    DataType m_importInfo;
    DataType m_importFileName;
    int m_importType = kTypeNotSet; ///< kind of import; file imports store their format
    DataType m_importID;
    DataType m_importDate;
    Node* m_rootNode = nullptr;
};
