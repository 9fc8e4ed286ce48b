// The result tables as one description: names, fields in the order of the files, how each is shown, and the
// query that lists all of a table. Creating, formats, titles and queries come from here. Ten of them are the
// adjustment's; the others come from imports alone.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "input/tabellen/Paradox.h"
#include "model/Aufzaehltafel.h"

namespace zrw {

struct Tabellenfeld {
    std::string_view name;
    paradox::Feldtyp typ = paradox::Feldtyp::Zahl;
    std::uint8_t groesse = 8;
    std::string_view format = {};  ///< pattern of Anzeigetext.h; empty: as it is
    std::string_view titel = {};   ///< empty: the name
    std::string_view nkFlag = {};  ///< flag that shows "NK" in place of the number
};

/// Index into `kTabellen`; `Anzahl` is no table, but the number of its rows.
enum class Tabelle : std::uint8_t {
    Gps,
    Strecken,
    Hoehenunterschiede,
    Richtungen,
    Koordinaten,
    GpsPunkte3D,
    GpsPunkte2D,
    Linien,
    Streckenkontrollen,
    WeitereKoordinaten,
    RelativeEllipsen,
    Anzahl
};

struct Ergebnistabelle {
    Tabelle tabelle;
    std::string_view name;
    std::span<const Tabellenfeld> felder;
    std::string_view alles;  ///< query of all rows in order
};

namespace tabellen {

using F = Tabellenfeld;
using T = paradox::Feldtyp;

constexpr F Ganz(std::string_view name, std::string_view format = {}, std::string_view titel = {}) {
    return {name, T::Lang, 4, format, titel};
}
constexpr F Real(std::string_view name, std::string_view format = {}, std::string_view titel = {},
                 std::string_view nkFlag = {}) {
    return {name, T::Zahl, 8, format, titel, nkFlag};
}
constexpr F Text(std::string_view name, std::uint8_t breite = 14) {
    return {name, T::Alpha, breite};
}
constexpr F Flag(std::string_view name, std::string_view titel = {}) {
    return {name, T::Logisch, 1, {}, titel};
}
constexpr F Zeitpunkt(std::string_view name) {
    return {name, T::Zeitpunkt, 8};
}

// clang-format off
inline constexpr F kGps[]{
    Ganz("ID", "0"), Text("P1"), Text("P2"), Ganz("NIVP1", "0"), Ganz("NIVP2", "0"),
    Real("DX", "#.000"), Real("DY", "#.000"), Real("DZ", "#.000"),
    Real("VX", "0"), Real("VY", "0"), Real("VZ", "0"), Real("VL", "0"), Real("VQ", "0"), Real("VH", "0"),
    Real("TG", "#.0"), Real("EPN", "0"), Real("EPE", "0"), Real("EPH", "0"),
    Real("VMFX", "0"), Real("VMFY", "0"), Real("VMFZ", "0"),
    Real("EVX", "#.00"), Real("EVY", "#.00"), Real("EVZ", "#.00"),
    Real("GRZWX", "0"), Real("GRZWY", "0"), Real("GRZWZ", "0"),
    Real("EGRZWX", "0", "EGRWX"), Real("EGRZWY", "0", "EGRWY"), Real("EGRZWZ", "0", "EGRWZ"),
    Real("EF", "0"), Real("GFL", "0"), Real("GFQ", "0"), Real("GFH", "0"),
    Real("NMFX", "0", {}, "NKDX"), Real("NMFY", "0", {}, "NKDY"), Real("NMFZ", "0", {}, "NKDZ"),
    Flag("NKDX", "NKX"), Flag("NKDY", "NKY"), Flag("NKDZ", "NKZ"), Flag("FF")};

inline constexpr F kStrecken[]{
    Ganz("ID", "0"), Text("P1"), Text("P2"), Real("ST", "#.000"), Real("VS", "0"), Real("TG", "#.0"),
    Real("EP", "0"), Real("VMF", "0"), Real("EV", "#.00"), Real("GRZW", "0"), Real("EGRZW", "0"),
    Real("EF", "#"), Real("GF", "0"), Real("NMF", "0"), Real("RI", "#.0000"), Flag("NK"), Flag("FF")};

inline constexpr F kHoehenunterschiede[]{
    Ganz("ID", "0"), Text("P1"), Text("P2"), Ganz("NIVP1"), Ganz("NIVP2", "#"), Real("DH", "#.000"),
    Real("VH", "0"), Real("TG", "#.0"), Real("EH", "0"), Real("VMF", "0"), Real("EV", "#.00"),
    Real("GRZW", "0"), Real("EGRZW", "0"), Real("EF", "#"), Real("GF", "0"), Real("NMF", "#."),
    Real("ST", "#.000"), Flag("NK"), Flag("FF")};

inline constexpr F kRichtungen[]{
    Ganz("ID", "#"), Text("PS"), Text("PZ"), Ganz("Satz", "0"), Real("RI", "#.0000"), Real("VR", "#.00"),
    Real("TG", "#.0"), Real("EP", "0"), Real("VMF", "#.00"), Real("EV", "#.00"), Real("GRZW", "#.00"),
    Real("EGRZW", "0"), Real("EF", "0"), Real("GF", "#.00"), Real("QA", "0"), Real("NMF", "#.00"),
    Real("ST", "#.000"), Flag("NK"), Flag("FF")};

inline constexpr F kKoordinaten[]{
    Ganz("ID"), Text("PKT"), Ganz("NIV", "0"), Real("X", "#.000"), Real("Y", "#.000"),
    Real("H", "#.000", "Höhe"), Real("UND", "#.000"), Real("dY", "0"), Real("dX", "0"), Real("dH", "0"),
    Real("dP", "0"), Real("mY", "0"), Real("mX", "0"), Real("mH", "0"), Real("mL", "0"), Real("A", "0"),
    Real("B", "0"), Real("Phi", "#.00"), Text("ST", 2), Ganz("LS", "0")};

inline constexpr F kGpsPunkte3D[]{
    Ganz("ID", "0"), Text("PKT"), Ganz("NIV"), Real("Y", "#.000"), Real("X", "#.000"), Real("H", "#.000"),
    Real("vY", "0"), Real("vX", "0"), Real("vP", "0"), Real("vH", "0"),
    Real("EPY", "0"), Real("EPX", "0"), Real("EPH", "0"), Real("VMFY", "0"), Real("VMFX", "0"), Real("VMFH", "0"),
    Real("GRZWY", "0", "GWY"), Real("GRZWX", "0", "GWX"), Real("GRZWH", "0", "GWH"),
    Real("EGRZWY", "0", "EGY"), Real("EGRZWX", "0", "EGX"), Real("EGRZWH", "0", "EGH"),
    Real("EFY", "0"), Real("EFX", "0"), Real("EFH", "0"), Real("GFY", "0"), Real("GFX", "0"), Real("GFH", "0"),
    Real("NMFY", "0"), Real("NMFX", "0"), Real("NMFH", "0"),
    Real("X(GPS)", "#.000"), Real("Y(GPS)", "#.000"), Real("Z(GPS)", "#.000"),
    Real("vX(GPS)", "0", "vX"), Real("vY(GPS)", "0", "vY"), Real("vZ(GPS)", "0", "vZ"),
    Real("TGX", "#.0"), Real("TGY", "#.0"), Real("TGZ", "#.0"),
    Real("EVX", "#.00"), Real("EVY", "#.00"), Real("EVZ", "#.00"), Zeitpunkt("Zeit"), Flag("FF")};

inline constexpr F kGpsPunkte2D[]{
    Ganz("ID", "0"), Text("PKT"), Ganz("NIV"), Real("Y", "#.000"), Real("X", "#.000"),
    Real("vY", "0"), Real("vX", "0"), Real("vP", "0"), Real("EPY", "0"), Real("EPX", "0"),
    Real("VMFY", "0"), Real("VMFX", "0"), Real("GRZWY", "0", "GWY"), Real("GRZWX", "0", "GWX"),
    Real("EGRZWY", "0", "EGY"), Real("EGRZWX", "0", "EGX"), Real("EFY", "0"), Real("EFX", "0"),
    Real("GFY", "0"), Real("GFX", "0"), Real("NMFY", "0"), Real("NMFX", "0"),
    Real("TGX", "#.0"), Real("TGY", "#.0"), Real("EVX", "#.00"), Real("EVY", "#.00"),
    Zeitpunkt("Zeit"), Flag("FF")};

inline constexpr F kLinien[]{
    Ganz("ID", {}, "Linie"), Text("PA"), Text("PE"), Real("Sgem", "0.000"), Real("Sger", "0.000"),
    Real("vS", "0.000"), Real("Dzul", "0.000"), Ganz("LG", "0"), Flag("GF")};

inline constexpr F kStreckenkontrollen[]{
    Ganz("ID"), Text("P1"), Text("P2"), Real("Sgem", "0.000"), Real("Sger", "0.000"),
    Real("vS", "0.000"), Real("Dzul", "0.000"), Ganz("LG", "0"), Flag("GF")};

inline constexpr F kWeitereKoordinaten[]{
    Ganz("ID"), Text("PKT"), Ganz("NIV", "0"), Real("Y", "0.000"), Real("X", "0.000"), Ganz("LG", "0"),
    Ganz("ST", "0")};

// Of one point against another: semi-axes [mm], direction of the longer one from north [gon], standard
// deviations along and across their line [mm].
inline constexpr F kRelativeEllipsen[]{
    Ganz("ID"), Text("P1"), Text("P2"), Real("A", "0"), Real("B", "0"), Real("Phi", "#.00"), Real("mS", "0"),
    Real("mQ", "0")};
// clang-format on

}  // namespace tabellen

/// A table's file is its name with ".DB".
inline constexpr auto kTabellen = std::to_array<Ergebnistabelle>({
    {Tabelle::Gps, "GPSTABLE", tabellen::kGps, "Select * from GPSTable order by ID"},
    {Tabelle::Strecken, "STRTABLE", tabellen::kStrecken, "SELECT * from STRTABLE ORDER BY ID"},
    {Tabelle::Hoehenunterschiede, "DHTABLE", tabellen::kHoehenunterschiede,
     "select * from DHTable order by ID"},
    {Tabelle::Richtungen, "RTGTABLE", tabellen::kRichtungen, "select * from RTGTable order by id"},
    {Tabelle::Koordinaten, "KooTABLE", tabellen::kKoordinaten, "SELECT * from KooTable order by ID"},
    {Tabelle::GpsPunkte3D, "WGSTABLE", tabellen::kGpsPunkte3D, "SELECT * from WGSTable order by ID"},
    {Tabelle::GpsPunkte2D, "WGSYXTABLE", tabellen::kGpsPunkte2D, "SELECT * from WGSYXTable order by ID"},
    {Tabelle::Linien, "MLTABLE", tabellen::kLinien, "SELECT * FROM MLTABLE ORDER BY ID"},
    {Tabelle::Streckenkontrollen, "STRKTRTable", tabellen::kStreckenkontrollen,
     "SELECT * FROM STRKTRTABLE ORDER BY ID"},
    {Tabelle::WeitereKoordinaten, "PostKooTABLE", tabellen::kWeitereKoordinaten,
     "SELECT * FROM POSTKOOTABLE ORDER BY ID"},
    {Tabelle::RelativeEllipsen, "RELTABLE", tabellen::kRelativeEllipsen,
     "SELECT * FROM RELTABLE ORDER BY ID"},
});
static_assert(InReihe(kTabellen, &Ergebnistabelle::tabelle), "a row for each Tabelle, in its order");

/// Those of the adjustment, in the order in which they are created.
inline constexpr auto kErgebnistabellen = std::span(kTabellen).first<10>();

[[nodiscard]] constexpr const Ergebnistabelle& Beschreibung(Tabelle t) {
    return kTabellen[static_cast<std::size_t>(t)];
}

}  // namespace zrw
