#include "output/Erklaerungsbild.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "model/Bildorte.h"
#include "model/Cp1252.h"
#include "model/Ganzzahl.h"
#include "model/Zahlentext.h"
#include "model/Zeichner.h"
#include "output/Abschneiden.h"
#include "output/Balkenbild.h"
#include "output/Residuenbild.h"

namespace zrw {
namespace {

constexpr double kMusterweite = 48;  ///< of an example [px]
constexpr double kRand = 6;          ///< inside the frame, and between example and text [px]
constexpr std::string_view kTitel = "Zeichenerklärung";

}  // namespace

Erklaerungsbild::Erklaerungsbild(const Zeichenzustand& zustand, const Einstellungen& groessen,
                                 const Bildvorlage& v, Zeichner& zeichner, std::int64_t symbolhoehe,
                                 const std::vector<Zeichenzeile>& zeilen)
    : zustand_(zustand),
      groessen_(groessen),
      v_(v),
      zeichner_(zeichner),
      flaeche_(*zustand.flaeche),
      titel_(Utf8NachCp1252(kTitel)) {
    for (const Zeichenzeile& z : zeilen) {
        // Lines that are coloured by a result do not show their own colours.
        if (z.gruppe == kLinienfarben && v.darstellung.Stile != nullptr &&
            !v.darstellung.Stile->kanten.empty())
            continue;
        if (const auto* punkt = std::get_if<Punkt>(&z.muster)) {
            NimmZeile(z.text,
                      [this, punkt](Bildpunkt m) { zeichner_.ZeichnePunkt(*punkt, m, Gang::Zeigen); });
        } else if (const auto* kante = std::get_if<Kante>(&z.muster)) {
            NimmZeile(z.text, [this, kante](Bildpunkt m) {
                const std::int64_t halb = Dots(kMusterweite / 2);
                zeichner_.ZeichneKante(*kante, {m.x - halb, m.y}, {m.x + halb, m.y}, Gang::Zeigen);
            });
        }
    }
    if (v_.darstellung.Stile != nullptr) NimmKlassen();
    if (v_.darstellung.ShowErklaerung) NimmErgebnisse();
    zeilenhoehe_ = std::max<std::int64_t>(flaeche_.Texthoehe(), symbolhoehe) + Dots(2);
    if (!zeilen_.empty()) MissKasten();
}

std::int64_t Erklaerungsbild::Dots(double pixel) const {
    return RundeZuInt64(pixel * zustand_.Dichte());
}

void Erklaerungsbild::NimmZeile(std::string_view text, std::function<void(Bildpunkt mitte)> male) {
    zeilen_.push_back({Utf8NachCp1252(text), std::move(male)});
}

void Erklaerungsbild::Strich(Farbe farbe, Bildpunkt von, Bildpunkt nach) const {
    const Stiftwechsel stift(flaeche_, {farbe, 1, Strichart::Voll}, {kWeiss, true});
    if (const auto teil = SchneideLinieAb(von, nach, flaeche_.Grenzen()))
        flaeche_.Linie(teil->first, teil->second);
}

/// What the colours of a result stand for. Alone they have the box to themselves.
void Erklaerungsbild::NimmKlassen() {
    const Figurenstile& stile = *v_.darstellung.Stile;
    if (!stile.zeilen.empty() && v_.darstellung.ShowErklaerung) {
        NimmZeile(stile.titel, [](Bildpunkt /*m*/) {});
    } else if (!stile.zeilen.empty()) {
        titel_ = Utf8NachCp1252(stile.titel);
    }
    for (const Stilzeile& z : stile.zeilen) {
        if (z.anzahl == 0) continue;
        NimmZeile(z.text + " (" + std::to_string(z.anzahl) + ")", [this, &z, &stile](Bildpunkt m) {
            const std::int64_t halb = Dots(kMusterweite / 2);
            zeichner_.SetzeStil(&z.stil);
            if (stile.punkte) {
                zeichner_.ZeichnePunkt(Punkt::Create(PunktTyp::Krei, kSchwarz, PunktAttr::Em), m,
                                       Gang::Zeigen);
            } else {
                zeichner_.ZeichneKante(Kante::Create(kSchwarz, {}, LinieAttr::AR2), {m.x - halb, m.y},
                                       {m.x + halb, m.y}, Gang::Zeigen);
            }
            zeichner_.SetzeStil(nullptr);
        });
    }
}

/// What is drawn of the adjustment's results, and how long they are drawn.
void Erklaerungsbild::NimmErgebnisse() {
    const Darstellung& d = v_.darstellung;
    if (zustand_.Ergebnisse == nullptr) return;
    if (d.ShowLgRes) {
        NimmZeile("Verbesserung der Lage (dY, dX)", [this](Bildpunkt m) {
            Vektor(groessen_.LGRCol, {m.x - Dots(14), m.y + Dots(4)}, {m.x + Dots(14), m.y - Dots(4)});
        });
    }
    if (d.ShowHRes) {
        NimmZeile("Verbesserung der Höhe (dH)", [this](Bildpunkt m) {
            Vektor(groessen_.HRCol, {m.x, m.y + Dots(7)}, {m.x, m.y - Dots(7)});
        });
    }
    if (d.ShowKooVergleich) {
        NimmZeile("Koordinaten 2 minus Koordinaten", [this](Bildpunkt m) {
            Vektor(groessen_.LGRCol, {m.x - Dots(14), m.y + Dots(4)}, {m.x + Dots(14), m.y - Dots(4)},
                   Strichart::Gestrichelt);
        });
    }
    if (d.ShowLGGen) {
        NimmZeile(d.Ellipsen95 ? "Fehlerellipse der Lage, 95 %" : "Fehlerellipse der Lage",
                  [this](Bildpunkt m) { Ellipse(m); });
    }
    if (d.ShowRelEllipsen) {
        NimmZeile(d.Ellipsen95 ? "Relative Fehlerellipse, 95 %" : "Relative Fehlerellipse",
                  [this](Bildpunkt m) { Ellipse(m, Strichart::Gestrichelt); });
    }
    if (d.ShowHGen) {
        NimmZeile("Standardabweichung der Höhe (mH)", [this](Bildpunkt m) {
            const std::int64_t h = Dots(6);
            const std::int64_t w = Dots(4);
            Strich(groessen_.HGCol, {m.x, m.y - h}, {m.x, m.y + h});
            for (const std::int64_t y : {m.y - h, m.y + h})
                Strich(groessen_.HGCol, {m.x - w, y}, {m.x + w, y});
        });
    }
    if (!d.ZeigtErgebnisse()) return;
    const bool eigener = d.ZeigtEllipsen() && d.EigenerEllipsenmassstab();
    NimmMassstab(eigener ? "Verbesserung" : "Verbesserung oder Halbachse", groessen_.ResMF);
    if (eigener) NimmMassstab("Halbachse der Fehlerellipse", d.Ellipsenmassstab);
}

void Erklaerungsbild::Vektor(Farbe farbe, Bildpunkt von, Bildpunkt nach, Strichart art) const {
    const Stiftwechsel stift(flaeche_, {}, {kWeiss, true});
    Residuenbild(zustand_, groessen_, v_).ZeichneVektor(von, nach, farbe, art);
}

void Erklaerungsbild::Ellipse(Bildpunkt mitte, Strichart art) const {
    constexpr Gon kSchraeg{25};
    const auto a = static_cast<double>(Dots(14));
    const auto b = static_cast<double>(Dots(5));
    const auto x = static_cast<double>(mitte.x);
    const auto y = static_cast<double>(mitte.y);
    const Stiftwechsel stift(flaeche_, {groessen_.LGGCol, 1, Strichart::Voll}, {kWeiss, true});
    const Residuenbild bild(zustand_, groessen_, v_);
    if (v_.darstellung.EllipsenGefuellt) bild.FuelleEllipse(kSchraeg, a, b, x, y, groessen_.LGGCol);
    bild.DrawEllipse(kSchraeg, a, b, x, y, art);
}

/// A stroke of round length. Sizes of results may be anything, also turned round.
void Erklaerungsbild::NimmMassstab(const std::string& was, double vergroesserung) {
    constexpr double kKuerzester = 16;  ///< [px]; the next round length is at most 2.5 times as long
    constexpr double kMillimeter = 10;  ///< in a centimetre
    const double jeZentimeter = kMillimeter * vergroesserung * zustand_.Dichte();
    if (!(jeZentimeter > 0.0) || !std::isfinite(jeZentimeter)) return;
    const auto laenge = KleinsteTeilung(jeZentimeter, kKuerzester * zustand_.Dichte()).Mal(1);
    if (!laenge || !std::isfinite(*laenge * jeZentimeter)) return;
    const double dots = *laenge * jeZentimeter;
    NimmZeile(was + " von " + SchreibeReal(*laenge) + " cm", [this, dots](Bildpunkt m) {
        const std::int64_t links = m.x - RundeZuInt64(dots / 2);
        const std::int64_t rechts = links + RundeZuInt64(dots);
        Strich(kSchwarz, {links, m.y}, {rechts, m.y});
        for (const std::int64_t x : {links, rechts})
            Strich(kSchwarz, {x, m.y - Dots(3)}, {x, m.y + Dots(3)});
    });
}

/// Points below a box.
std::size_t Erklaerungsbild::Verdeckte(const Bildbereich& r) const {
    std::size_t anzahl = 0;
    v_.netz.FuerAllePunkte([&](const PunktKnoten& p) {
        if (!v_.Gezeichnet(p) || !v_.darstellung.Dargestellt(*p.Item)) return;
        const Bildpunkt ort = BildortVon(p, v_.ansicht);
        if (ort.x >= r.links && ort.x <= r.rechts && ort.y >= r.oben && ort.y <= r.unten) ++anzahl;
    });
    return anzahl;
}

/// Top-right corner of a box of this size [dots].
Bildpunkt Erklaerungsbild::Ort(std::int64_t weite, std::int64_t hoehe) const {
    const Rechteck s = flaeche_.Sichtbar();
    const Darstellung& d = v_.darstellung;
    const auto rand = [&](std::int64_t pixel) { return Dots(static_cast<double>(pixel)); };
    const Bildpunkt von = d.Erklaerungsort.value_or(kUeblicherOrt);
    const Bildpunkt ueblich{s.rechts + rand(von.x), s.oben + rand(von.y)};
    // In the window it must not jump while the plan is moved.
    if (d.Erklaerungsort || zustand_.modus != Zeichenmodus::Drucker) return ueblich;
    const std::int64_t links = s.links - rand(von.x) + weite;
    const std::int64_t unten = s.unten - rand(von.y) - hoehe;
    const struct {
        bool frei;
        Bildpunkt ort;
    } ecken[]{{true, ueblich},
              {!d.ShowMassbalken, {ueblich.x, unten}},
              {!d.ShowLegende, {links, ueblich.y}},
              {!d.ZeigtErgebnisse(), {links, unten}}};
    Bildpunkt beste = ueblich;
    std::size_t wenigste = std::numeric_limits<std::size_t>::max();
    for (const auto& e : ecken) {
        if (!e.frei) continue;
        const std::size_t verdeckt = Verdeckte({e.ort.x - weite, e.ort.y, e.ort.x, e.ort.y + hoehe});
        if (verdeckt >= wenigste) continue;
        wenigste = verdeckt;
        beste = e.ort;
    }
    return beste;
}

void Erklaerungsbild::MissKasten() {
    std::int64_t text = 0;
    for (const Zeile& z : zeilen_)
        text = std::max<std::int64_t>(text, flaeche_.Textbreite(z.text));
    spaltenweite_ = Dots(kMusterweite) + 3 * Dots(kRand) + text;
    const Rechteck s = flaeche_.Sichtbar();
    const std::int64_t titel = flaeche_.Texthoehe() + 2 * Dots(kRand);
    const auto anzahl = static_cast<std::int64_t>(zeilen_.size());
    const std::int64_t oben =
        std::abs(Dots(static_cast<double>(v_.darstellung.Erklaerungsort.value_or(kUeblicherOrt).y)));
    const std::int64_t frei = std::int64_t{s.unten} - s.oben - 2 * oben - titel;
    jeSpalte_ = std::clamp<std::int64_t>(frei / zeilenhoehe_, 1, anzahl);
    const std::int64_t spalten = (anzahl + jeSpalte_ - 1) / jeSpalte_;
    // Columns of one length.
    jeSpalte_ = (anzahl + spalten - 1) / spalten;
    const std::int64_t weite =
        std::max<std::int64_t>(spalten * spaltenweite_, flaeche_.Textbreite(titel_) + 2 * Dots(kRand));
    const std::int64_t hoehe = titel + jeSpalte_ * zeilenhoehe_;
    const Bildpunkt ecke = Ort(weite, hoehe);
    const Bildpunkt von{ecke.x - weite, ecke.y};
    const Bildpunkt bis{ecke.x, ecke.y + hoehe};
    if (InReichweite(von, bis, 0, s)) umfang_ = Umgebung(von, bis, 0);
}

void Erklaerungsbild::ZeichneKasten() const {
    if (Leer(umfang_)) return;
    flaeche_.FuelleRechteck(umfang_, kWeiss);
    {
        const Stiftwechsel rahmen(flaeche_, {}, {kWeiss, true});
        flaeche_.ZeichneRechteck(umfang_);
    }
    const std::int64_t rand = Dots(kRand);
    const auto schreibe = [&](std::int64_t x, std::int64_t y, std::string_view text) {
        flaeche_.Text(Aufflaeche({x, y}), text, kSchwarz);
    };
    schreibe(umfang_.links + rand, umfang_.oben + rand, titel_);
    const std::int64_t oben = umfang_.oben + 2 * rand + flaeche_.Texthoehe() - Dots(2);
    for (std::size_t i = 0; i < zeilen_.size(); ++i) {
        const auto stelle = static_cast<std::int64_t>(i);
        const std::int64_t links = umfang_.links + rand + stelle / jeSpalte_ * spaltenweite_;
        const std::int64_t mitte = oben + stelle % jeSpalte_ * zeilenhoehe_ + zeilenhoehe_ / 2;
        zeilen_[i].male({links + Dots(kMusterweite / 2), mitte});
        schreibe(links + Dots(kMusterweite) + rand, mitte - flaeche_.Texthoehe() / 2, zeilen_[i].text);
    }
}

}  // namespace zrw
