#include "ui/seitenleiste/Zeichenzeilen.h"

#include <QColor>
#include <QStringList>
#include <array>

#include "model/Linienarten.h"
#include "model/Punktarten.h"
#include "model/Punktsymbole.h"
#include "model/Zeichenbestand.h"
#include "ui/Umwandlung.h"
#include "ui/bild/Zeichenmuster.h"

namespace zrw {
namespace {

/// More colours than these tell nobody anything.
constexpr std::size_t kMeisteFarben = 40;

QString Linientext(const Linienart& art) {
    const QString text = art.bezeichnung.empty() ? QStringLiteral("ohne Richtung") : AusUtf8(art.bezeichnung);
    return art.indirekt ? text + QStringLiteral(", indirekt") : text;
}

QString Farbnummer(Farbe farbe) {
    const QColor c(static_cast<int>(farbe.wert & 0xFFU), static_cast<int>(farbe.wert >> 8U & 0xFFU),
                   static_cast<int>(farbe.wert >> 16U & 0xFFU));
    return c.name().toUpper();
}

/// What the settings use the colour for; its number where they do not.
QString Punktfarbtext(Farbe farbe, const Einstellungen& e) {
    QStringList arten;
    for (const Punktart& art : kPunktarten) {
        if (e.*art.farbe == farbe)
            arten << AusUtf8(art.kuerzel) + QStringLiteral(": ") + AusUtf8(art.bezeichnung);
    }
    return arten.isEmpty() ? Farbnummer(farbe) : arten.join(QStringLiteral(", "));
}

struct Linienfarbe {
    Farbe Einstellungen::*farbe;
    const char* text;
};
constexpr auto kLinienfarben = std::to_array<Linienfarbe>({
    {&Einstellungen::RICol, "Richtung"},
    {&Einstellungen::AZCol, "Azimut"},
    {&Einstellungen::GPSCol, "GPS-Vektor"},
    {&Einstellungen::GFCol, "grober Fehler"},
});

QString Linienfarbtext(Farbe farbe, const Einstellungen& e) {
    QStringList arten;
    for (const Linienfarbe& f : kLinienfarben) {
        if (e.*f.farbe == farbe) arten << QString::fromUtf8(f.text);
    }
    return arten.isEmpty() ? Farbnummer(farbe) : arten.join(QStringLiteral(", "));
}

/// Shows the colour, whatever else lines of it show.
Kante AlsStrich(Farbe farbe) {
    return Kante::Create(farbe, {}, LinieAttr::AR2);
}

/// Adds the rows of one heading after the other.
class Zeilenbauer {
  public:
    Zeilenbauer(const Netz& netz, const Einstellungen& einstellungen, Zeichenmuster& muster)
        : bestand_(netz), einstellungen_(einstellungen), muster_(muster) {
        FuelleLinien();
        FuelleMarken();
        FuelleSymbole();
        FuelleFarben();
    }
    [[nodiscard]] std::vector<Zeichenzeile> NimmZeilen() { return std::move(zeilen_); }

  private:
    void BeginneGruppe(const QString& titel) { gruppe_ = titel; }
    void NimmZeile(const QImage& bild, const QString& text, std::size_t anzahl) {
        zeilen_.push_back({gruppe_, bild, text, anzahl});
    }
    void FuelleLinien();
    void FuelleMarken();
    void FuelleSymbole();
    void FuelleFarben();

    Zeichenbestand bestand_;
    const Einstellungen& einstellungen_;
    Zeichenmuster& muster_;
    QString gruppe_;
    std::vector<Zeichenzeile> zeilen_;
};

void Zeilenbauer::FuelleLinien() {
    BeginneGruppe(QStringLiteral("Linienarten"));
    for (const Linienart& art : kLinienarten) {
        if (art.attr == LinieAttr::Null) continue;
        auto g =
            Zeichenbestand::Gefasst(bestand_.Kanten(), [&](const Kante& k) { return k.LAttr == art.attr; });
        if (g.anzahl == 0) continue;
        g.muster.KAttr = {};
        NimmZeile(muster_.MaleKante(g.muster), Linientext(art), g.anzahl);
    }
    for (const bool gps : {true, false}) {
        const auto g = Zeichenbestand::Gefasst(bestand_.Kanten(), [&](const Kante& k) {
            return ZurLinie(k.LAttr).attr == LinieAttr::Null && k.KAttr.HatArt(KanteAttr::GPS) == gps;
        });
        if (g.anzahl != 0)
            NimmZeile(muster_.MaleKante(g.muster),
                      gps ? QStringLiteral("nur GPS-Vektor")
                          : QStringLiteral("weder Richtung noch GPS-Vektor: weiß gezeichnet"),
                      g.anzahl);
    }
}

void Zeilenbauer::FuelleMarken() {
    BeginneGruppe(QStringLiteral("Beobachtungen an den Linien"));
    for (const Beobachtungsart& art : kBeobachtungsarten) {
        auto g = Zeichenbestand::Gefasst(bestand_.Kanten(),
                                         [&](const Kante& k) { return k.KAttr.HatArt(art.art); });
        if (g.anzahl == 0) continue;
        g.muster.KAttr = art.art;
        NimmZeile(muster_.MaleKante(g.muster), AusUtf8(art.bezeichnung), g.anzahl);
    }
}

void Zeilenbauer::FuelleSymbole() {
    BeginneGruppe(QStringLiteral("Punktsymbole"));
    for (const Punktsymbol& symbol : kPunktsymbole) {
        for (const PunktAttr attr : {PunktAttr::Em, PunktAttr::Fu}) {
            const auto g = Zeichenbestand::Gefasst(bestand_.Punkte(), [&](const Punkt& p) {
                return p.PktTyp == symbol.typ && (p.PktAttr == PunktAttr::Fu) == (attr == PunktAttr::Fu);
            });
            if (g.anzahl == 0) continue;
            const QString text = AusUtf8(symbol.bezeichnung) +
                                 (attr == PunktAttr::Fu ? QStringLiteral(", gefüllt") : QString());
            NimmZeile(muster_.MalePunkt(g.muster), text, g.anzahl);
        }
    }
    const auto g = Zeichenbestand::Gefasst(bestand_.Punkte(),
                                           [](const Punkt& p) { return ZumSymbol(p.PktTyp) == nullptr; });
    if (g.anzahl != 0) NimmZeile(muster_.MalePunkt(g.muster), QStringLiteral("ohne Symbol"), g.anzahl);
}

void Zeilenbauer::FuelleFarben() {
    const auto fuelle = [&](const QString& titel, const auto& farben, auto male, auto text) {
        BeginneGruppe(titel);
        std::size_t uebrige = 0;
        for (std::size_t i = 0; i < farben.size(); ++i) {
            if (i >= kMeisteFarben) {
                uebrige += farben[i].anzahl;
            } else {
                NimmZeile(male(farben[i].muster), text(farben[i].muster.Farbe, einstellungen_),
                          farben[i].anzahl);
            }
        }
        if (uebrige != 0)
            NimmZeile({}, QStringLiteral("in %1 weiteren Farben").arg(farben.size() - kMeisteFarben),
                      uebrige);
    };
    fuelle(
        QStringLiteral("Farben der Punkte"), Zeichenbestand::NachFarbe(bestand_.Punkte()),
        [&](const Punkt& p) { return muster_.MalePunkt(p); }, Punktfarbtext);
    fuelle(
        QStringLiteral("Farben der Linien"), Zeichenbestand::NachFarbe(bestand_.Kanten()),
        [&](const Kante& k) { return muster_.MaleKante(AlsStrich(k.Farbe)); }, Linienfarbtext);
}

}  // namespace

std::vector<Zeichenzeile> BaueZeichenzeilen(const Netz& netz, const Programm& programm, QSize groesse,
                                            double dichte, bool glatt) {
    Zeichenmuster muster(programm, groesse, dichte, glatt);
    return Zeilenbauer(netz, programm.einstellungen, muster).NimmZeilen();
}

}  // namespace zrw
