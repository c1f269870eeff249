// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

namespace Import {

/// The columns of a booking that the home-banking exchange fills.
enum E_HBColumnIndex : int {
    eHBBuchungsID = 0,
    eHBBuchungsDatum = 1,
    eHBValutaDatum = 2,
    eHBGVCode = 3,
    eHBBetrag = 4,
    eHBVerwendungszweck = 5,
    eHBSteuerrelevant = 6,
    eHBEmpfaenger = 7,
    eHBNotiz = 8,
    eHBKategorie = 9
};

} // namespace Import
