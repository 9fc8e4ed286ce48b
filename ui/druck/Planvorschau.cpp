#include "ui/druck/Planvorschau.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "model/Fehler.h"
#include "output/Export.h"
#include "ui/Umwandlung.h"

namespace zrw {

static constexpr Farbe kWeggelassen{0xD8D8D8};

Planvorschau::Planvorschau(Plandruck& druck, Liste& liste, double massstab, std::filesystem::path datei)
    : druck_(druck), liste_(liste), massstab_(massstab), datei_(std::move(datei)) {
    NimmPapier();
    geaendert_ = false;
}

void Planvorschau::NimmPapier() {
    weggelassen_.clear();
    blaetter_ = druck_.Blaetter(liste_, massstab_).blaetter;
    geaendert_ = true;
}

std::vector<Blatt> Planvorschau::Gedruckte() const {
    std::vector<Blatt> gedruckte;
    for (const Blatt& b : blaetter_)
        if (!Weggelassen(b)) gedruckte.push_back(b);
    return gedruckte;
}

Druckwerk Planvorschau::Werk() {
    return druck_.Werk(liste_, Gedruckte(), massstab_, datei_);
}

QString Planvorschau::Massstab() const {
    return druck_.felder_.massstab->text();
}

void Planvorschau::SetzeMassstab(const QString& text) {
    const auto massstab = LiesMassstab(NachUtf8(text));
    if (!massstab) return;
    massstab_ = *massstab;
    druck_.felder_.massstab->setText(text);
    NimmPapier();
}

Planvorschau::Lage Planvorschau::BlattLage() const {
    constexpr double kWeite = 320;
    constexpr double kHoehe = 480;
    const Druckseite seite = druck_.Teilung().plan;
    const double faktor = Druckfaktor(massstab_, seite.aufloesung);
    Lage l{blaetter_.front().ecke, {}, 0, seite.weite * faktor, seite.hoehe * faktor};
    l.ru = l.lo;
    for (const Blatt& b : blaetter_) {
        l.lo = {std::min(l.lo.rechts, b.ecke.rechts), std::max(l.lo.hoch, b.ecke.hoch)};
        l.ru = {std::max(l.ru.rechts, b.ecke.rechts + l.breite), std::min(l.ru.hoch, b.ecke.hoch - l.hoehe)};
    }
    l.jePixel = std::max((l.ru.rechts - l.lo.rechts) / kWeite, (l.lo.hoch - l.ru.hoch) / kHoehe);
    return l;
}

void Planvorschau::SchalteBlatt(QPoint ort) {
    const Lage l = BlattLage();
    const Welt w{l.lo.rechts + ort.x() * l.jePixel, l.lo.hoch - ort.y() * l.jePixel};
    const auto b = std::find_if(blaetter_.begin(), blaetter_.end(), [&](const Blatt& x) {
        return w.rechts >= x.ecke.rechts && w.rechts < x.ecke.rechts + l.breite && w.hoch <= x.ecke.hoch &&
               w.hoch > x.ecke.hoch - l.hoehe;
    });
    if (b == blaetter_.end()) return;
    const std::pair feld{b->zeile, b->spalte};
    if (weggelassen_.erase(feld) == 0) {
        if (Gedruckte().size() < 2) return;  // a print of nothing is none
        weggelassen_.insert(feld);
    }
    geaendert_ = true;
}

void Planvorschau::VerschiebeBlaetter(QPoint weg) {
    const Lage l = BlattLage();
    const Blattteilung t = druck_.Teilung();
    const double faktor = Druckfaktor(massstab_, t.plan.aufloesung);
    const Blatt& erstes = blaetter_.front();
    const Welt ursprung{
        erstes.ecke.rechts - erstes.spalte * (t.plan.weite - t.ueberlappung) * faktor + weg.x() * l.jePixel,
        erstes.ecke.hoch + erstes.zeile * (t.plan.hoehe - t.ueberlappung) * faktor - weg.y() * l.jePixel};
    try {
        auto blaetter = druck_.SchneideAb(liste_, massstab_, ursprung);
        if (blaetter.empty()) return;
        blaetter_ = std::move(blaetter);
    } catch (const Fehler&) {
        return;  // too many: they stay where they are
    }
    if (Gedruckte().empty()) weggelassen_.clear();
    geaendert_ = true;
}

std::vector<Vorschaublatt> Planvorschau::Blaetter() {
    const Lage l = BlattLage();
    const auto pixel = [&](double meter) { return static_cast<int>(std::lround(meter / l.jePixel)); };
    std::vector<Vorschaublatt> alle;
    int nummer = 0;
    for (const Blatt& b : blaetter_) {
        const QPoint ecke(pixel(b.ecke.rechts - l.lo.rechts), pixel(l.lo.hoch - b.ecke.hoch));
        alle.push_back({QRect(ecke, QSize(pixel(l.breite) + 1, pixel(l.hoehe) + 1)), b.zeile, b.spalte,
                        Weggelassen(b) ? 0 : ++nummer});
    }
    return alle;
}

/// The network without its texts, and over it the sheets with their numbers; those that are off are crossed
/// out.
QImage Planvorschau::Uebersicht() {
    const Lage l = BlattLage();
    const auto pixel = [&](double meter) { return static_cast<int>(std::lround(meter / l.jePixel)); };
    Bildflaeche bild(pixel(l.ru.rechts - l.lo.rechts) + 1, pixel(l.lo.hoch - l.ru.hoch) + 1);
    bild.SetzeGlatt(true);
    const Programm& programm = druck_.programm_;
    const Ansicht ansicht = liste_.FuerGeraet(l.jePixel, l.lo);
    const Bildvorlage vorlage = liste_.Vorlage().InAnsicht(ansicht);
    Zeichenzustand zustand = programm.zustand;
    zustand.flaeche = &bild;
    // In the size of the overview: symbols of the window would cover what lies on the sheets.
    constexpr double kVerkleinert = 0.5;
    Einstellungen groessen = programm.einstellungen;
    groessen.ScaleSizes(kVerkleinert);
    Figurenzeichner zeichner(zustand, groessen, programm.netz, programm.uhr);
    if (liste_.ShowBeob) ZeichneKanten(vorlage, zeichner);
    ZeichnePunkte(vorlage, zeichner);
    const Farbe farbe = programm.einstellungen.PPCol;
    bild.SetzeStift({farbe, 1, Strichart::Voll});
    bild.SetzePinsel({kWeiss, true});
    for (const Vorschaublatt& b : Blaetter()) {
        const Rechteck r{b.ort.left(), b.ort.top(), b.ort.right(), b.ort.bottom()};
        if (b.nummer == 0) bild.FuelleRechteck(r, kWeggelassen);
        bild.ZeichneRechteck(r);
        if (b.nummer == 0) {
            bild.Linie({r.links, r.oben}, {r.rechts, r.unten});
            bild.Linie({r.links, r.unten}, {r.rechts, r.oben});
        } else {
            bild.TextMitRand({r.links + 3, r.oben + 1}, std::to_string(b.nummer), farbe, kWeiss, 1);
        }
    }
    return bild.Bild();
}

bool Plandruck::ZeigeVorschau(QWidget* eltern, Liste& liste, double massstab,
                              const std::filesystem::path& datei) {
    gewaehlt_.reset();
    Planvorschau plan(*this, liste, massstab, datei);
    const bool drucken = programm_.drucker.ZeigeVorschau(eltern, plan);
    if (drucken && plan.Geaendert())
        gewaehlt_ = Auswahl{plan.Gedruckte(), plan.massstab_, programm_.drucker.Seite()};
    AktualisiereRahmen();
    return drucken;
}

}  // namespace zrw
