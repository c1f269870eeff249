// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "dmwrite/SmartDate.h"
#include "homebanking/XmlImportData.h"
#include "support/FinanceModel.h"
#include "support/ModelText.h"

/// A model with two accounts, 10020030 / 123456789 and one without numbers, and
/// documents for it.
class HomeBankingModel {
public:
    HomeBankingModel() {
        addAccount("10020030", "123456789");
        addAccount("", "");
        SmartDate::sm_order = 0;
        SmartDate::setupCenturyStart(m_model.root());
    }

    XmlImportData input(std::string_view document) const {
        XmlImportData data;
        data.setImportTargetNode(m_model.root());
        data.setXmlContent(document.data(), document.size());
        return data;
    }

    const FinanceModel& model() const { return m_model; }
    int accounts() const { return m_model.rows("HomeBankingImport"); }
    int bookings() const { return m_model.rows("HomeBankingImport/1/DataSets"); }
    std::string text() const { return ModelText::of(*m_model.root()); }

private:
    void addAccount(const char* bankCode, const char* number) const {
        auto* table = dynamic_cast<NodeTable*>(m_model.node("HomeBankingImport"));
        const int row = table->getNodeCount() + 1;
        table->create(static_cast<unsigned short>(row));
        const std::string path = "HomeBankingImport/" + std::to_string(row) + "/";
        m_model.set(path + "BLZ", textValue(bankCode));
        m_model.set(path + "KtoNummer", textValue(number));
        m_model.set(path + "ExistsInHB", DataType::makeBoolean(true));
    }

    FinanceModel m_model;
};
