// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

namespace Import {

/// The columns of a data model's record that file imports fill.
enum E_ColumnIndex : int {
    eColEmpfaenger = 0,
    eColKategorie = 1,
    eColUnterkategorie = 2,
    eColVerwendungszweck = 3,
    eColBuchungstext = 4,
    eColDatum = 5,
    eColBetrag = 6,
    eColNone = 7 ///< no column: an unknown name, or a file column that is not imported
};

} // namespace Import
