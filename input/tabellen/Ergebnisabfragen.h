// The listings of the results browser and the passes that mark flagged observations: which table, guarded by
// which file, asked in which words.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "input/tabellen/Ergebnistabellen.h"

namespace zrw {

/// One tab of the results browser. In the queries "{a}" and "{b}" stand for point numbers.
struct Ergebnisreiter {
    std::string_view titel;
    Tabelle tabelle;
    std::string_view datei;       ///< without it the tab lists nothing
    std::string_view punkt;       ///< results of the point {a}
    std::string_view kante;       ///< results of the line from {a} to {b}
    std::string_view flag = {};   ///< field that is set in rows with a gross error; empty: none
    std::string_view gegen = {};  ///< further results of the line, from {b} to {a}; empty: none
};

inline constexpr auto kErgebnisreiter = std::to_array<Ergebnisreiter>({
    {"Koordinaten", Tabelle::Koordinaten, "KooTable.DB",
     "SELECT * from KOOTABLE WHERE (KOOTABLE.PKT = '{a}')",
     "SELECT * from KOOTABLE WHERE ((KOOTABLE.PKT = '{a}') OR (KOOTABLE.PKT = '{b}'))"},
    // A line lists its vectors in its own direction only.
    {"GPS Vektoren", Tabelle::Gps, "GPSTable.DB",
     "SELECT * from GPSTABLE WHERE ((GPSTABLE.P1 = '{a}') OR (GPSTABLE.P2= '{a}')) order by ID ASC",
     "SELECT * from GPSTABLE WHERE ((GPSTABLE.P1 = '{a}') AND (GPSTABLE.P2= '{b}')) order by ID ASC", "FF",
     "SELECT * from GPSTABLE WHERE ((GPSTABLE.P1 = '{b}') AND (GPSTABLE.P2= '{a}')) order by ID ASC"},
    {"Strecken", Tabelle::Strecken, "STRTable.DB",
     "SELECT * from STRTABLE WHERE ((STRTABLE.P1 = '{a}') OR (STRTABLE.P2= '{a}')) order by ID ASC",
     "SELECT * from STRTABLE WHERE (((STRTABLE.P1 = '{a}') AND (STRTABLE.P2= '{b}')) OR "
     "((STRTABLE.P1 = '{b}') AND (STRTABLE.P2= '{a}'))) order by ID ASC",
     "FF"},
    {"Höhenunterschiede", Tabelle::Hoehenunterschiede, "DHTable.DB",
     "SELECT * from DHTABLE WHERE ((DHTABLE.P1 = '{a}') OR (DHTABLE.P2= '{a}')) order by ID ASC",
     "SELECT * from DHTABLE WHERE (((DHTABLE.P1 = '{a}') AND (DHTABLE.P2= '{b}')) OR "
     "((DHTABLE.P1 = '{b}') AND (DHTABLE.P2= '{a}'))) order by ID ASC",
     "FF"},
    {"Richtungen", Tabelle::Richtungen, "RTGTable.DB",
     "SELECT * from RTGTABLE WHERE ((RTGTABLE.PS = '{a}') OR (RTGTABLE.PZ= '{a}')) order by ID ASC",
     "SELECT * from RTGTABLE WHERE (((RTGTABLE.PS = '{a}') AND (RTGTABLE.PZ= '{b}')) OR "
     "((RTGTABLE.PS = '{b}') AND (RTGTABLE.PZ= '{a}'))) order by ID ASC",
     "FF"},
    {"GPS Punkte 3D", Tabelle::GpsPunkte3D, "WGSTable.DB",
     "SELECT * from WGSTABLE WHERE (WGSTABLE.PKT = '{a}') order by ID ASC",
     "SELECT * from WGSTABLE WHERE ((WGSTABLE.PKT = '{a}') or (WGSTABLE.PKT = '{b}')) order by ID ASC", "FF"},
    {"GPS Punkte 2D", Tabelle::GpsPunkte2D, "WGSYXTable.DB",
     "SELECT * from WGSYXTABLE WHERE (WGSYXTABLE.PKT = '{a}') order by ID ASC",
     "SELECT * from WGSYXTABLE WHERE ((WGSYXTABLE.PKT = '{a}') or (WGSYXTABLE.PKT = '{b}')) order by ID ASC",
     "FF"},
    {"Linienprüfungen", Tabelle::Linien, "MLTable.DB",
     "SELECT * from MLTABLE WHERE ((MLTABLE.PA = '{a}') OR (MLTABLE.PE= '{a}')) order by ID ASC",
     "SELECT * from MLTABLE WHERE (((MLTABLE.PA = '{a}') AND (MLTABLE.PE= '{b}')) OR "
     "((MLTABLE.PA = '{b}') AND (MLTABLE.PE= '{a}'))) order by ID ASC",
     "GF"},
    {"Streckenprüfungen", Tabelle::Streckenkontrollen, "STRKTRTable.DB",
     "SELECT * from STRKTRTABLE WHERE ((STRKTRTABLE.P1 = '{a}') OR (STRKTRTABLE.P2= '{a}')) order by ID ASC",
     "SELECT * from STRKTRTABLE WHERE (((STRKTRTABLE.P1 = '{a}') AND (STRKTRTABLE.P2= '{b}')) OR "
     "((STRKTRTABLE.P1 = '{b}') AND (STRKTRTABLE.P2= '{a}'))) order by ID ASC",
     "GF"},
    {"Koordinaten 2", Tabelle::WeitereKoordinaten, "PostKooTable.DB",
     "SELECT * from POSTKOOTABLE WHERE (POSTKOOTABLE.PKT = '{a}') order by ID ASC",
     "SELECT * from POSTKOOTABLE WHERE ((POSTKOOTABLE.PKT = '{a}') or (POSTKOOTABLE.PKT = '{b}')) "
     "order by ID ASC"},
});

/// One pass over the flagged rows of a table.
struct Fehlersuche {
    Tabelle tabelle;
    std::string_view datei;  ///< without it the pass is left out
    std::string_view abfrage;
    std::string_view von;
    std::string_view nach;
    std::string_view flag;
};

inline constexpr auto kFehlersuchen = std::to_array<Fehlersuche>({
    {Tabelle::Strecken, "STRTable.DB", "SELECT * from STRTABLE WHERE (STRTABLE.FF = True) order by ID", "P1",
     "P2", "FF"},
    // Directions are marked only beside distances: the guard is the distances' file.
    {Tabelle::Richtungen, "STRTable.DB", "SELECT * from RTGTABLE WHERE (RTGTABLE.FF = True) order by ID",
     "PS", "PZ", "FF"},
    {Tabelle::Hoehenunterschiede, "DHTable.DB", "SELECT * from DHTABLE WHERE (DHTABLE.FF = True) order by ID",
     "P1", "P2", "FF"},
    {Tabelle::Gps, "GPSTable.DB", "SELECT * from GPSTABLE WHERE (GPSTABLE.FF = True) order by ID", "P1", "P2",
     "FF"},
    {Tabelle::Streckenkontrollen, "STRKTRTable.DB",
     "SELECT * from STRKTRTABLE WHERE (STRKTRTABLE.GF = True) order by ID", "P1", "P2", "GF"},
    {Tabelle::Linien, "MLTable.DB", "SELECT * from MLTABLE WHERE (MLTABLE.GF = True) order by ID", "PA", "PE",
     "GF"},
});

class TDM;

/// Which results of the line between two points (UTF-8) are flagged, by the titles of their tabs: what it may
/// be marked for. Tables that are missing, cannot be read or would take long to read say nothing.
[[nodiscard]] std::vector<std::string_view> Markiergruende(TDM& daten, std::string_view a,
                                                           std::string_view b);

/// The query with the point numbers (UTF-8) in their places; quote marks in them are doubled, so that a
/// number stays one text.
[[nodiscard]] std::string Abfragetext(std::string_view muster, std::string_view a, std::string_view b = {});

}  // namespace zrw
