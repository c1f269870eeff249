# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
#
# Completion of dmimport for fish. A test compares its options with those of the program.

complete -c dmimport -f

complete -c dmimport -n __fish_use_subcommand -a formats -d 'die unterstützten Formate'
complete -c dmimport -n __fish_use_subcommand -a inspect -d 'was für eine Datei ist das?'
complete -c dmimport -n __fish_use_subcommand -a preview -d 'simulierter Import, als Tabelle'
complete -c dmimport -n __fish_use_subcommand -a import -d 'Import in einen Bestand'
complete -c dmimport -n __fish_use_subcommand -a accounts -d 'Kontenliste (XML) abgleichen'
complete -c dmimport -n __fish_use_subcommand -a bookings -d 'Buchungsliste (XML) importieren'
complete -c dmimport -n __fish_use_subcommand -a show -d 'Bestand ansehen'
complete -c dmimport -n __fish_use_subcommand -a undo -d 'eine Importsitzung zurücknehmen'
complete -c dmimport -n __fish_use_subcommand -a export -d 'Bestand ausgeben'
complete -c dmimport -n __fish_use_subcommand -a profiles -d 'gespeicherte Zuordnungen'
complete -c dmimport -n __fish_use_subcommand -l version -d 'die Version zeigen'
complete -c dmimport -s h -l help -d 'diese Hilfe zeigen'
complete -c dmimport -l json -d 'maschinenlesbare Ausgabe'
complete -c dmimport -l quiet -d 'kein Fortschritt, keine Zusammenfassung'
complete -c dmimport -l color -x -a 'auto always never' -d 'Farben'

complete -c dmimport -n '__fish_seen_subcommand_from inspect preview import accounts bookings' -F
complete -c dmimport -n '__fish_seen_subcommand_from show' -a 'data-sets sessions accounts bookings counters'

function __dmimport_profiles
    set -l folder (test -n "$XDG_CONFIG_HOME"; and echo $XDG_CONFIG_HOME; or echo $HOME/.config)/dmimport/profiles
    for file in $folder/*.profil
        string replace -r '.*/(.*)\.profil$' '$1' $file
    end
end

complete -c dmimport -n '__fish_seen_subcommand_from inspect preview import' -l columns -x -d 'welche Spalte welches Feld füllt'
complete -c dmimport -n '__fish_seen_subcommand_from inspect preview import' -l delimiter -xa 'tab' -d 'Trennzeichen der Spalten, oder tab'
complete -c dmimport -n '__fish_seen_subcommand_from inspect preview import' -l header -d 'erste Zeile enthält Überschriften'
complete -c dmimport -n '__fish_seen_subcommand_from inspect preview import' -l no-header -d 'erste Zeile ist ein Datensatz'
complete -c dmimport -n '__fish_seen_subcommand_from inspect preview import' -l encoding -xa 'latin1 cp1252 utf-8 utf-16' -d 'Zeichensatz'
complete -c dmimport -n '__fish_seen_subcommand_from inspect preview import' -l date-order -xa 'dmy mdy ymd' -d 'Reihenfolge von Tag, Monat und Jahr'
complete -c dmimport -n '__fish_seen_subcommand_from inspect preview import' -l decimal -xa ', .' -d 'Dezimalzeichen'
complete -c dmimport -n '__fish_seen_subcommand_from inspect preview import' -l format -xa 'star-money csv qif tax zasterhof' -d 'Format der Datei'
complete -c dmimport -n '__fish_seen_subcommand_from inspect preview import' -l profile -xa '(__dmimport_profiles)' -d 'nach diesem Profil lesen'
complete -c dmimport -n '__fish_seen_subcommand_from inspect preview import' -l save-profile -x -d 'als Profil speichern'
complete -c dmimport -n '__fish_seen_subcommand_from preview import accounts bookings show undo export' -l store -rF -d 'der Bestand'
complete -c dmimport -n '__fish_seen_subcommand_from preview' -l unassigned -d 'alle Spalten zeigen, wie sie sind'
complete -c dmimport -n '__fish_seen_subcommand_from preview import accounts bookings' -l verbatim -d 'die Datei geben, wie sie ist'
complete -c dmimport -n '__fish_seen_subcommand_from preview show' -l limit -x -d 'höchstens so viele Zeilen'
complete -c dmimport -n '__fish_seen_subcommand_from import' -l info -x -d 'Beschreibung der Importsitzung'
complete -c dmimport -n '__fish_seen_subcommand_from import' -l allow-undated -d 'Datensätze ohne lesbares Datum übernehmen'
complete -c dmimport -n '__fish_seen_subcommand_from import bookings' -l again -d 'auch schon Importiertes importieren'
complete -c dmimport -n '__fish_seen_subcommand_from import bookings' -l new-only -d 'nur, was noch nicht im Bestand ist'
complete -c dmimport -n '__fish_seen_subcommand_from import bookings' -l keep-partial -d 'bei einem Fehler das Übernommene behalten'
complete -c dmimport -n '__fish_seen_subcommand_from import bookings' -l report -rF -d 'Seite über den Import schreiben'
complete -c dmimport -n '__fish_seen_subcommand_from export' -l to -xa 'csv json hledger qif' -d 'Format der Ausgabe'
complete -c dmimport -n '__fish_seen_subcommand_from export' -l session -x -d 'nur diese Importsitzung'
complete -c dmimport -n '__fish_seen_subcommand_from export' -l since -x -d 'ab diesem Tag'
complete -c dmimport -n '__fish_seen_subcommand_from export' -l until -x -d 'bis zu diesem Tag'
complete -c dmimport -n '__fish_seen_subcommand_from export' -l account -x -d 'Buchungen dieses Kontos (BLZ/KTO)'
