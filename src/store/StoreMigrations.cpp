// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/StoreMigrations.h"

namespace {

// Column names are the model's field names. The triggers keep the row counts
// right when somebody edits the file with another program; ours switches
// triggers off and counts for itself.
constexpr char kVersion1[] = R"sql(
CREATE TABLE Bestand (
    id INTEGER PRIMARY KEY CHECK (id = 1),
    NextImportID INTEGER,
    NextUniqueID INTEGER,
    LetztesImportDatum TEXT,
    NeueDatenVorhanden INTEGER
);
INSERT INTO Bestand (id, NextImportID, NextUniqueID) VALUES (1, 1, 1);

CREATE TABLE DataSets (
    id INTEGER PRIMARY KEY,
    Empfaenger TEXT,
    Kategorie TEXT,
    Unterkategorie TEXT,
    Verwendungszweck TEXT,
    Buchungstext TEXT,
    Datum TEXT,
    Betrag REAL,
    ImportID INTEGER,
    UniqueID INTEGER
);

CREATE TABLE Importsessions (
    id INTEGER PRIMARY KEY,
    ImportDatum TEXT,
    ImportInfo TEXT,
    ImportID INTEGER,
    ImportTyp INTEGER,
    ImportFileName TEXT
);

CREATE TABLE HomeBankingImport (
    id INTEGER PRIMARY KEY,
    BLZ TEXT,
    KtoNummer TEXT,
    ImportTyp INTEGER,
    Bezeichnung TEXT,
    ExistsInHB INTEGER,
    LetztesImportDatum TEXT,
    LetzteBuchungsId TEXT,
    NeueBuchungen INTEGER
);

CREATE TABLE HomeBankingDataSets (
    id INTEGER PRIMARY KEY,
    KontoID INTEGER NOT NULL REFERENCES HomeBankingImport (id) ON DELETE CASCADE,
    BuchungsID TEXT,
    BuchungsDatum TEXT,
    ValutaDatum TEXT,
    GVCode TEXT,
    Betrag REAL,
    Verwendungszweck TEXT,
    Steuerrelevant INTEGER,
    Empfaenger TEXT,
    Notiz TEXT,
    Kategorie TEXT,
    UniqueID INTEGER
);
CREATE INDEX HomeBankingDataSets_KontoID ON HomeBankingDataSets (KontoID);

CREATE TABLE Zeilenzahlen (
    Tabelle TEXT NOT NULL,
    KontoID INTEGER NOT NULL,
    Anzahl INTEGER NOT NULL,
    PRIMARY KEY (Tabelle, KontoID)
) WITHOUT ROWID;

CREATE TRIGGER DataSets_mehr AFTER INSERT ON DataSets BEGIN
    INSERT INTO Zeilenzahlen VALUES ('DataSets', 0, 1) ON CONFLICT DO UPDATE SET Anzahl = Anzahl + 1;
END;
CREATE TRIGGER DataSets_weniger AFTER DELETE ON DataSets BEGIN
    UPDATE Zeilenzahlen SET Anzahl = Anzahl - 1 WHERE Tabelle = 'DataSets' AND KontoID = 0;
END;
CREATE TRIGGER Importsessions_mehr AFTER INSERT ON Importsessions BEGIN
    INSERT INTO Zeilenzahlen VALUES ('Importsessions', 0, 1) ON CONFLICT DO UPDATE SET Anzahl = Anzahl + 1;
END;
CREATE TRIGGER Importsessions_weniger AFTER DELETE ON Importsessions BEGIN
    UPDATE Zeilenzahlen SET Anzahl = Anzahl - 1 WHERE Tabelle = 'Importsessions' AND KontoID = 0;
END;
CREATE TRIGGER HomeBankingImport_mehr AFTER INSERT ON HomeBankingImport BEGIN
    INSERT INTO Zeilenzahlen VALUES ('HomeBankingImport', 0, 1) ON CONFLICT DO UPDATE SET Anzahl = Anzahl + 1;
END;
CREATE TRIGGER HomeBankingImport_weniger AFTER DELETE ON HomeBankingImport BEGIN
    DELETE FROM HomeBankingDataSets WHERE KontoID = old.id;
    DELETE FROM Zeilenzahlen WHERE Tabelle = 'HomeBankingDataSets' AND KontoID = old.id;
    UPDATE Zeilenzahlen SET Anzahl = Anzahl - 1 WHERE Tabelle = 'HomeBankingImport' AND KontoID = 0;
END;
CREATE TRIGGER HomeBankingDataSets_mehr AFTER INSERT ON HomeBankingDataSets BEGIN
    INSERT INTO Zeilenzahlen VALUES ('HomeBankingDataSets', new.KontoID, 1)
        ON CONFLICT DO UPDATE SET Anzahl = Anzahl + 1;
END;
CREATE TRIGGER HomeBankingDataSets_weniger AFTER DELETE ON HomeBankingDataSets BEGIN
    UPDATE Zeilenzahlen SET Anzahl = Anzahl - 1 WHERE Tabelle = 'HomeBankingDataSets' AND KontoID = old.KontoID;
END;
CREATE TRIGGER HomeBankingDataSets_umgebucht AFTER UPDATE OF KontoID ON HomeBankingDataSets BEGIN
    UPDATE Zeilenzahlen SET Anzahl = Anzahl - 1 WHERE Tabelle = 'HomeBankingDataSets' AND KontoID = old.KontoID;
    INSERT INTO Zeilenzahlen VALUES ('HomeBankingDataSets', new.KontoID, 1)
        ON CONFLICT DO UPDATE SET Anzahl = Anzahl + 1;
END;
)sql";

// Where a record comes from, whether it was edited since, and what became of a
// session. The trigger fires for other programs only, like those above.
constexpr char kVersion2[] = R"sql(
ALTER TABLE DataSets ADD COLUMN Zeile INTEGER;
ALTER TABLE DataSets ADD COLUMN Geaendert INTEGER;
CREATE TRIGGER DataSets_geaendert
AFTER UPDATE OF Empfaenger, Kategorie, Unterkategorie, Verwendungszweck, Buchungstext, Datum, Betrag ON DataSets BEGIN
    UPDATE DataSets SET Geaendert = 1 WHERE id = new.id;
END;
ALTER TABLE Importsessions ADD COLUMN Pruefsumme TEXT;
ALTER TABLE Importsessions ADD COLUMN Datensaetze INTEGER;
ALTER TABLE Importsessions ADD COLUMN Abgelehnt INTEGER;
ALTER TABLE Importsessions ADD COLUMN Bekannt INTEGER;
ALTER TABLE Importsessions ADD COLUMN Summe REAL;
ALTER TABLE Importsessions ADD COLUMN ErsterTag TEXT;
ALTER TABLE Importsessions ADD COLUMN LetzterTag TEXT;
ALTER TABLE Importsessions ADD COLUMN Zurueckgenommen INTEGER;
)sql";

// Which lists of bookings were imported, so that none is imported twice by mistake.
constexpr char kVersion3[] = R"sql(
CREATE TABLE Buchungslisten (
    id INTEGER PRIMARY KEY,
    ImportDatum TEXT,
    ImportFileName TEXT,
    Pruefsumme TEXT,
    Datensaetze INTEGER,
    Bekannt INTEGER
);
CREATE TRIGGER Buchungslisten_mehr AFTER INSERT ON Buchungslisten BEGIN
    INSERT INTO Zeilenzahlen VALUES ('Buchungslisten', 0, 1) ON CONFLICT DO UPDATE SET Anzahl = Anzahl + 1;
END;
CREATE TRIGGER Buchungslisten_weniger AFTER DELETE ON Buchungslisten BEGIN
    UPDATE Zeilenzahlen SET Anzahl = Anzahl - 1 WHERE Tabelle = 'Buchungslisten' AND KontoID = 0;
END;
)sql";

constexpr StoreMigration kMigrations[] = {
    {1, kVersion1},
    {2, kVersion2},
    {3, kVersion3},
};

} // namespace

std::span<const StoreMigration> StoreMigrations::all() { return kMigrations; }
