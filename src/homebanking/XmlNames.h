// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "framework/ImportModuleApi.h"

/// The names of elements and attributes in both home-banking documents, in
/// Latin-1. Every comparison goes through these variables, so that a host may
/// point them at other texts before an import; equal texts are separate
/// variables for that reason.

extern IMPORT_MODULE_API const char* g_tagHomeBanking;
extern IMPORT_MODULE_API const char* g_AttVersion;

// The account list.
extern IMPORT_MODULE_API const char* g_tagKontoliste;
extern IMPORT_MODULE_API const char* g_tagKonto;
extern IMPORT_MODULE_API const char* g_tagBLZ;
extern IMPORT_MODULE_API const char* g_tagKtonr;
extern IMPORT_MODULE_API const char* g_tagBezeichnung;

// The booking list, which names its account in attributes.
extern IMPORT_MODULE_API const char* g_tagBuchungsliste;
extern IMPORT_MODULE_API const char* g_AttBLZ;
extern IMPORT_MODULE_API const char* g_AttKtoNr;

// A booking.
extern IMPORT_MODULE_API const char* g_tagBuchung;
extern IMPORT_MODULE_API const char* g_tagID;
extern IMPORT_MODULE_API const char* g_tagDatum;
extern IMPORT_MODULE_API const char* g_tagValuta;
extern IMPORT_MODULE_API const char* g_tagGvcode;
extern IMPORT_MODULE_API const char* g_tagBetrag;
extern IMPORT_MODULE_API const char* g_tagVerwendungszweck;
extern IMPORT_MODULE_API const char* g_tagSteuerrelevant;
extern IMPORT_MODULE_API const char* g_tagEmpfaenger;
extern IMPORT_MODULE_API const char* g_tagNotiz;
extern IMPORT_MODULE_API const char* g_tagKategorie;
