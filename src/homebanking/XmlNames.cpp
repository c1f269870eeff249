// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "homebanking/XmlNames.h"

#include "framework/AssertTypeSizes.h"

const char* g_tagHomeBanking = "HomeBanking";
const char* g_AttVersion = "version";

const char* g_tagKontoliste = "kontoliste";
const char* g_tagKonto = "konto";
const char* g_tagBLZ = "blz";
const char* g_tagKtonr = "ktonr";
const char* g_tagBezeichnung = "bezeichnung";

const char* g_tagBuchungsliste = "buchungsliste";
const char* g_AttBLZ = "blz";
const char* g_AttKtoNr = "ktonr";

const char* g_tagBuchung = "buchung";
const char* g_tagID = "id";
const char* g_tagDatum = "datum";
const char* g_tagValuta = "valuta";
const char* g_tagGvcode = "gvcode";
const char* g_tagBetrag = "betrag";
const char* g_tagVerwendungszweck = "verwendungszweck";
const char* g_tagSteuerrelevant = "steuerrelevant";
const char* g_tagEmpfaenger = "empfaenger";
const char* g_tagNotiz = "notiz";
const char* g_tagKategorie = "kategorie";
