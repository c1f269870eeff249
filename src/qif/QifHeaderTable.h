// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>

#include "framework/Latin1.h"
#include "qif/ImportModuleQIF.h"

/// The header lines that open a section, compared exactly. Every other section
/// is unknown; docs/formats/qif.md says what becomes of it.
namespace QifHeaderTable {

struct Row {
    const char* header;
    const char* label; ///< what the section's records carry as "Kategorie"
    ImportModuleQIF::E_AccountType type;
};

inline constexpr std::array<Row, 15> kRows = {{
    {"!Type:Bank", "Bankkonten", ImportModuleQIF::Bank},
    {"!Type:Cash", "Bargeldkonten", ImportModuleQIF::Cash},
    {"!Type:CCard", "Kreditkartenkonten", ImportModuleQIF::CreditCard},
    {"!Type:Invst", "Wertpapierkonten", ImportModuleQIF::Investment},
    {"!Type:Oth A", "Vermögenskonten"_latin1, ImportModuleQIF::OtherAsset},
    {"!Type:Oth L", "Verbindlichkeitskonten", ImportModuleQIF::OtherLiability},
    {"!Type:Invoice", "Rechnungskonten", ImportModuleQIF::Invoice},
    {"!Type:Tax", "Steuerkonten", ImportModuleQIF::Tax},
    {"!Type:Bill", "Belegkonten", ImportModuleQIF::Bill},
    {"!Type:Cat", "Andere Einnahmen/Ausgaben", ImportModuleQIF::Category},
    {"!Type:Class", "Klasse", ImportModuleQIF::Ignored},
    {"!Type:Memorized", "Memo", ImportModuleQIF::Ignored},
    {"!Account", "Account", ImportModuleQIF::Ignored},
    {"!Option:AutoSwitch", "Option:AutoSwitch", ImportModuleQIF::Ignored},
    {"!Clear:AutoSwitch", "Clear:AutoSwitch", ImportModuleQIF::Ignored},
}};

} // namespace QifHeaderTable
