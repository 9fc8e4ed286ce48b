#include "ui/ausgabe/Formate.h"

#include <QBuffer>
#include <QByteArray>
#include <algorithm>
#include <array>
#include <cmath>

#include "input/tabellen/Beobachtungsleser.h"
#include "model/Aufzaehltafel.h"
#include "model/Bilddatei.h"
#include "model/Cp1252.h"
#include "model/Fehler.h"
#include "model/Zahlentext.h"
#include "output/Blattschnitt.h"
#include "output/Druck.h"
#include "output/Export.h"
#include "output/Figurenzeichner.h"
#include "output/Geojson.h"
#include "output/Pdfflaeche.h"
#include "output/Svgflaeche.h"
#include "output/beschriftung/Blattordnung.h"
#include "output/ergebnisse/Beobachtungsdatei.h"
#include "ui/bild/Bildflaeche.h"
#include "ui/bild/Malerflaeche.h"
#include "ui/bild/Schriftquelle.h"

namespace zrw {
namespace {

void SchreibeZrw(const Ausgabe& a, const std::filesystem::path& datei) {
    const std::string weg =
        WeggelasseneNummern(SchreibeBilddatei(a.vorlage.netz, a.vorlage.ansicht, a.netz, datei, a.dateien));
    if (!weg.empty()) a.sage(Fehler::Meldung(weg, PfadText(datei), 0));
}

/// Draws the picture as the window would show it.
void ZeichneAuf(Zeichenflaeche& flaeche, const Ausgabe& a) {
    Zeichenzustand zustand = a.zustand;
    zustand.flaeche = &flaeche;
    const Systemuhr uhr;
    Figurenzeichner zeichner(zustand, a.einstellungen, a.netz, uhr);
    ZeichneBild(a.vorlage, zeichner);
}

/// Draws the picture as the window would show it and writes it in one of Qt's picture formats.
void SchreibeBild(const Ausgabe& a, const std::filesystem::path& datei, const char* art) {
    Bildflaeche flaeche(a.vorlage.ansicht.Weite, a.vorlage.ansicht.Hoehe);
    flaeche.SetzeGlatt(!a.kantig);
    ZeichneAuf(flaeche, a);
    QByteArray bytes;
    QBuffer puffer(&bytes);
    puffer.open(QIODevice::WriteOnly);
    if (flaeche.Bild().isNull() || !flaeche.Bild().save(&puffer, art)) {
        throw Fehler("Das Bild ist zu groß für dieses Format.", PfadText(datei));
    }
    a.dateien.ErsetzeDatei(datei, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

/// What the control file calls the network, or else its file's name.
std::string Titel(const Ausgabe& a) {
    const auto& legende = a.vorlage.darstellung.Legend;
    return !legende || legende->Bez1.empty() ? Utf8NachCp1252(a.eingabe) : legende->Bez1;
}

/// The picture as the window would show it, to any size.
void SchreibeSvg(const Ausgabe& a, const std::filesystem::path& datei) {
    Svgflaeche flaeche(a.dateien.BeginneDatei(datei),
                       {a.vorlage.ansicht.Weite, a.vorlage.ansicht.Hoehe, kBildaufloesung}, Titel(a));
    ZeichneAuf(flaeche, a);
    flaeche.BeendeDatei();
}

/// What a document is drawn with.
struct Druckmittel {
    Einstellungen groessen;  ///< scaled for every sheet
    Systemuhr uhr;
    Zeichenmittel mittel;
    Druckseite seite;
    Blattteilung teilung;

    explicit Druckmittel(const Ausgabe& a)
        : groessen(a.einstellungen),
          mittel{a.zustand, groessen, a.netz, uhr},
          seite(Bedruckbar(a.papier, a.dpi)),
          teilung(TeileSeite(seite, a.zustand.Blattrahmen, a.gestaltung)) {}
    Druckmittel(const Druckmittel&) = delete;
    Druckmittel& operator=(const Druckmittel&) = delete;
};

/// Scale: the one that was asked for, or else the largest at which the plan fits its sheets.
void WaehleMassstab(const Ausgabe& a, const Druckplan& plan, const Blattteilung& teilung, Blattwahl& wahl) {
    wahl.massstab = a.massstab;
    wahl.massstabtext = a.massstabtext;
    const auto passend = a.passend ? PassenderMassstab(plan, teilung, a.blaetter) : std::nullopt;
    if (!passend) return;
    wahl.massstab = *passend;
    wahl.massstabtext = Massstabtext(*passend);
}

Blattwahl WaehleBlaetter(const Ausgabe& a, const Druckplan& plan, const Blattteilung& teilung) {
    Blattwahl wahl{};
    WaehleMassstab(a, plan, teilung, wahl);
    try {
        wahl.blaetter = TeileBlaetterAuf(plan, wahl.massstab, teilung);
        wahl.gebraucht = std::max<std::size_t>(wahl.blaetter.size(), 1);
    } catch (const Fehler&) {
        if (a.alleBlaetter) throw;
        if (const auto erstes = ErstesBlatt(plan, wahl.massstab, teilung.plan)) wahl.blaetter = {*erstes};
    }
    if (wahl.blaetter.empty())
        wahl.blaetter = {{0, 0, a.vorlage.ansicht.BildinWelt({})}};  // frame, legend and grids alone
    if (!a.alleBlaetter) wahl.blaetter.resize(1);
    return wahl;
}

/// Tells where the sheets do not hold all of the plan.
void MeldeBlaetter(const Ausgabe& a, const Blattwahl& wahl, const std::filesystem::path& datei) {
    const auto sage = [&](const std::string& text) {
        a.sage(Fehler::Meldung("Der Plan braucht in diesem Maßstab " + text + ".", PfadText(datei), 0));
    };
    const Blatt& erstes = wahl.blaetter.front();
    if (wahl.gebraucht == 0) {
        sage("mehr als " + std::to_string(kMeisteBlaetter) +
             " Blätter; geschrieben ist eines am oberen Rand");
    } else if (wahl.gebraucht > wahl.blaetter.size()) {
        sage(std::to_string(wahl.gebraucht) + " Blätter; geschrieben ist das erste (Zeile " +
             std::to_string(erstes.zeile + 1) + ", Spalte " + std::to_string(erstes.spalte + 1) +
             "), --alle-blaetter schreibt alle");
    }
}

std::optional<Einbettschrift> Dokumentschrift() {
    return Einbettschrift::AusQuelle(LiesSchriftquelle(Zeichenschrift()));
}

/// Sheets of paper at scale, as a printer would print them.
void SchreibePdf(const Ausgabe& a, const std::filesystem::path& datei) {
    const auto schrift = Dokumentschrift();
    if (!schrift) {
        a.sage(Fehler::Meldung("Die Zeichenschrift lässt sich nicht einbetten; die Datei verlangt Helvetica.",
                               PfadText(datei), 0));
    }
    Pdfflaeche flaeche(a.dateien.BeginneDatei(datei), a.papier, a.dpi,
                       {Titel(a), nullptr, schrift ? &*schrift : nullptr});
    Druckmittel d(a);
    const Blattwahl wahl = WaehleBlaetter(a, {a.vorlage, d.mittel, flaeche}, d.teilung);
    MeldeBlaetter(a, wahl, datei);
    const Blattauftrag auftrag = AuftragVon(a, wahl, d.seite);
    for (std::size_t i = 0; i < wahl.blaetter.size(); ++i) {
        if (i > 0) flaeche.NeueSeite();
        DruckeBlatt(a.vorlage, d.mittel, Geraetegroessen(d.groessen, Geraetefaktor(d.seite)), flaeche,
                    auftrag, i);
    }
    flaeche.BeendeDatei();
}

/// Swallows what is only measured.
class Leerschreiber final : public Dateischreiber {
  public:
    void SchreibeBytes(std::string_view /*bytes*/) override {}
    void SichereDatei() override {}
    void ErsetzeZiel() override {}
};

void SchreibeExport(const Ausgabe& a, Exportauftrag auftrag) {
    const Systemuhr uhr;
    const double massstab = a.gesucht ? WaehleBlaetter(a).massstab : a.massstab;
    auftrag.faktor = Druckfaktor(massstab, a.dpi);
    ExportierePlan(a.vorlage, {a.zustand, a.einstellungen, a.netz, uhr}, a.dateien, auftrag);
}

void SchreibeGis(const Ausgabe& a, const std::filesystem::path& datei) {
    Netzangaben netz = a.netz;
    // A picture file keeps neither ellipsoid nor meridian: its grid is not known.
    if (a.ausBild) netz.Netztyp = 0;
    SchreibeGeojson(a.vorlage.netz, netz, a.einstellungen, a.zustand.Ergebnisse, a.dateien, datei);
}

using Listenschreiber = void (*)(const Beobachtungsliste& liste, std::unique_ptr<Dateischreiber> datei);

/// What is there is written, and then told what is missing.
void SchreibeListe(const Ausgabe& a, const std::filesystem::path& datei, Listenschreiber schreibe) {
    const Beobachtungsliste liste = a.daten != nullptr ? LiesBeobachtungen(*a.daten) : Beobachtungsliste{};
    schreibe(liste, a.dateien.BeginneDatei(datei));
    std::string fehlende;
    bool leer = true;
    for (const Beobachtungsgattung& g : kBeobachtungsgattungen) {
        const Lesezustand zustand = liste.Lage(g.tabelle).zustand;
        leer = leer && zustand == Lesezustand::Fehlt;
        if (zustand == Lesezustand::Unlesbar)
            fehlende += (fehlende.empty() ? "" : ", ") + std::string(g.name);
    }
    if (leer)
        a.sage(Fehler::Meldung("Beim Netz liegen keine Tabellen mit Beobachtungen; die Datei nennt keine.",
                               PfadText(datei), 0));
    if (!fehlende.empty())
        throw Fehler("Ohne die Beobachtungen unlesbarer Tabellen: " + fehlende + ".", PfadText(datei));
}

constexpr auto kFormate = std::to_array<Format>({
    {"zrw", "Zarwikdatei (ZRW)", ".ZRW", {}, kMitNummern, &SchreibeZrw},
    {"png",
     "Bild (PNG)",
     ".png",
     {},
     kMitGroesse | kMitKanten | kMitSchaltern | kMitNummern,
     [](const Ausgabe& a, const std::filesystem::path& d) { SchreibeBild(a, d, "PNG"); }},
    {"bmp",
     "Bild (BMP)",
     ".bmp",
     {},
     kMitGroesse | kMitKanten | kMitSchaltern | kMitNummern,
     [](const Ausgabe& a, const std::filesystem::path& d) { SchreibeBild(a, d, "BMP"); }},
    {"svg", "Vektorbild (SVG)", ".svg", {}, kMitGroesse | kMitSchaltern | kMitNummern, &SchreibeSvg},
    {"pdf",
     "Blätter im Maßstab (PDF)",
     ".pdf",
     {},
     kMitPapier | kMitMassstab | kMitSchaltern | kMitNummern,
     &SchreibePdf},
    {"geojson", "Netz für Geoinformationssysteme (GeoJSON)", ".geojson", {}, 0, &SchreibeGis},
    {"dxf",
     "Zeichnung für CAD (DXF)",
     {},
     kDxfname,
     kMitMassstab | kMitSchaltern | kOhneLegende,
     [](const Ausgabe& a, const std::filesystem::path& d) { SchreibeExport(a, {.plot = {}, .dxf = d}); }},
    {"plt",
     "Plotdatei (HPGL/2)",
     {},
     kPlotname,
     kMitMassstab | kMitSchaltern | kOhneLegende,
     [](const Ausgabe& a, const std::filesystem::path& d) { SchreibeExport(a, {.plot = d, .dxf = {}}); }},
    {"liste",
     "Liste der Beobachtungen (CSV)",
     "_beobachtungen.csv",
     {},
     0,
     [](const Ausgabe& a, const std::filesystem::path& d) { SchreibeListe(a, d, &SchreibeBeobachtungen); }},
    {"statistik",
     "Statistik der Beobachtungen (JSON)",
     "_statistik.json",
     {},
     0,
     [](const Ausgabe& a, const std::filesystem::path& d) { SchreibeListe(a, d, &SchreibeStatistik); }},
});

static_assert(Verschieden(kFormate, &Format::name));

}  // namespace

std::span<const Format> AlleFormate() {
    return kFormate;
}

const Format* FindeFormat(std::string_view name) {
    const auto* f =
        std::find_if(kFormate.begin(), kFormate.end(), [&](const Format& x) { return x.name == name; });
    return f != kFormate.end() ? f : nullptr;
}

std::string Formatnamen() {
    std::string namen;
    for (const Format& f : kFormate)
        namen += (namen.empty() ? "" : ", ") + std::string(f.name);
    return namen;
}

std::filesystem::path Zielname(const Format& format, const std::filesystem::path& eingabe) {
    if (!format.dateiname.empty()) return TextPfad(format.dateiname);
    std::filesystem::path name = eingabe.stem();
    return name += TextPfad(format.endung);
}

Blattauftrag AuftragVon(const Ausgabe& a, const Blattwahl& wahl, const Druckseite& seite) {
    return {.druck = {wahl.massstab, wahl.massstabtext, seite, {}, {}},
            .gestaltung = a.gestaltung,
            .blaetter = wahl.blaetter,
            .datei = Utf8NachCp1252(a.eingabe),
            .systemBekannt = !a.ausBild};
}

namespace {

/// The surface that a document is measured on: its texts are as wide as in the file.
struct Messmittel {
    std::optional<Einbettschrift> schrift = Dokumentschrift();
    Pdfflaeche flaeche;
    Druckmittel druck;

    explicit Messmittel(const Ausgabe& a)
        : flaeche(std::make_unique<Leerschreiber>(), a.papier, a.dpi,
                  {{}, nullptr, schrift ? &*schrift : nullptr}),
          druck(a) {}
    [[nodiscard]] Druckplan Plan(const Ausgabe& a) const { return {a.vorlage, druck.mittel, flaeche}; }
};

}  // namespace

std::string Dokumentmassstab(const Ausgabe& a) {
    const Messmittel m(a);
    Blattwahl wahl{};
    WaehleMassstab(a, m.Plan(a), m.druck.teilung, wahl);
    return wahl.massstabtext;
}

std::optional<Planbeschriftung::Ordnung> OrdneAufDokument(const Ausgabe& a, Netz& netz,
                                                          const Planbeschriftung::Beweglich& beweglich,
                                                          const Fortschritt& fortschritt) {
    const Messmittel m(a);
    Blattwahl wahl{};
    WaehleMassstab(a, m.Plan(a), m.druck.teilung, wahl);
    auto plan = Planbeschriftung::FuerDruck(a.vorlage, m.druck.mittel, m.flaeche, wahl.massstab,
                                            m.druck.teilung.plan, beweglich);
    const auto schneide = [&]() -> std::vector<Blatt> {
        try {
            return TeileBlaetterAuf(m.Plan(a), wahl.massstab, m.druck.teilung);
        } catch (const Fehler&) {
            return {};  // too many: whoever writes them tells
        }
    };
    return OrdneAufBlaetter(plan, netz, schneide, fortschritt);
}

Blattwahl WaehleBlaetter(const Ausgabe& a) {
    const Messmittel m(a);
    return WaehleBlaetter(a, m.Plan(a), m.druck.teilung);
}

}  // namespace zrw
