#include "ui/bild/Planbild.h"

#include <QScopedValueRollback>
#include <algorithm>
#include <cmath>
#include <utility>

#include "model/Bildorte.h"
#include "model/Ganzzahl.h"
#include "output/Abschneiden.h"
#include "output/Residuenbild.h"

namespace zrw {

using Wechsel = Ansichtssteuerung::Wechsel;

namespace {

constexpr Farbe kSuchfarbe{0xFF0000};
/// What was drawn plain becomes smooth after so long without a drawing [ms].
constexpr int kRuhe = 100;

const QString kNichtWeiter = QStringLiteral("Weiter lässt sich das Bild nicht zoomen.");

}  // namespace

Planbild::Planbild(const Programm& programm, Plan& plan, Beobachter& beobachter)
    : programm_(programm),
      plan_(plan),
      beobachter_(beobachter),
      zeichner_(bildzustand_, groessen_, programm.netz, programm.uhr),
      pflege_(bildzustand_, flaeche_, zeichner_) {
    programm_.zustand.flaeche = &flaeche_;
    ruhe_.setSingleShot(true);
    QObject::connect(&ruhe_, &QTimer::timeout, [this] { GlaetteWeiter(); });
}

Planbild::~Planbild() {
    programm_.zustand.flaeche = nullptr;
}

Bildvorlage Planbild::Vorlage() {
    const double dichte = flaeche_.Dichte();
    bildzustand_ = programm_.zustand;
    bildzustand_.Pixeldichte = dichte;
    groessen_ = programm_.einstellungen;
    Bildvorlage v = plan_.Daten()->Vorlage();
    v.ohne = &ohne_;
    if (dichte == 1.0) return v;
    groessen_.ScaleSizes(dichte);
    bildansicht_ = v.ansicht.InDichte(dichte);
    bildlegende_.reset();
    if (v.legende != nullptr) {
        bildlegende_ = *v.legende;
        bildlegende_->XO = RundeZuInt64(static_cast<double>(v.legende->XO) * dichte);
        bildlegende_->YO = RundeZuInt64(static_cast<double>(v.legende->YO) * dichte);
    }
    Bildvorlage fein = v.InAnsicht(bildansicht_);
    fein.legende = bildlegende_ ? &*bildlegende_ : nullptr;
    return fein;
}

Rechteck Planbild::Sicht() const {
    return {0, 0, plan_.Daten()->Weite - 1, plan_.Daten()->Hoehe - 1};
}

Zeichenzustand Planbild::ZustandFuer(Zeichenflaeche& flaeche) const {
    Zeichenzustand zustand = programm_.zustand;
    zustand.flaeche = &flaeche;
    return zustand;
}

Bildbereich Planbild::Textrahmen(const PunktString& text) const {
    const Liste& netz = *plan_.Daten();
    const Bildpunkt ort = text.Item->Textort(BildortVon(text, netz, netz));
    const Bildpunkt groesse = Textgroesse(programm_.zustand.Gezeigt(*text.Item));
    return {ort.x, ort.y, Summe(ort.x, groesse.x), Summe(ort.y, groesse.y)};
}

// --- Drawing ----------------------------------------------------------------------------------------------

void Planbild::ZeichneNeu() {
    if (!plan_.Offen()) return;
    steuerung_.SchliesseRad();
    pflege_.ZeichneNeu(Vorlage());
    ZeigeBild();
}

/// After every drawing of the network.
void Planbild::ZeigeBild() {
    if (bildlegende_ && plan_.Daten()->Legend) plan_.Daten()->Legend->Zeit = bildlegende_->Zeit;
    if (pflege_.Rau()) ruhe_.start(kRuhe);
    bild_->update();
    beobachter_.BildGezeichnet();
}

void Planbild::SetzeGlatt(bool glatt) {
    pflege_.SetzeGlatt(glatt);
    bild_->SetzeGlatt(glatt);
    ZeichneNeu();
}

/// A few rows, then whatever the user wants first: a drawing starts the rest anew.
void Planbild::GlaetteWeiter() {
    if (!plan_.Offen() || !pflege_.Rau() || stehendesLose_) return;
    pflege_.GlaetteZeilen(Vorlage());
    if (pflege_.Rau()) {
        ruhe_.start(0);
    } else {
        bild_->update();  // all at once, without a flash
    }
}

void Planbild::GlaetteAlles() {
    while (pflege_.Rau())
        pflege_.GlaetteZeilen(Vorlage());
}

void Planbild::NachAenderung(const Figurenmenge& figuren) {
    steuerung_.NetzGeaendert();
    pflege_.Nachher(Vorlage(), figuren);
    ZeigeBild();
}

void Planbild::LasseAus(Figurenmenge figuren) {
    if (!plan_.Offen()) return;
    Figurenmenge beide = figuren;
    beide.NimmFiguren(ausgelassene_);
    pflege_.Vorher(Vorlage(), beide);
    ausgelassene_ = std::move(figuren);
    ohne_.SetzeFiguren(ausgelassene_);
    pflege_.Nachher(Vorlage(), beide);
    ZeigeBild();
}

void Planbild::LasseLegendeAus(bool aus) {
    ohne_.legende = aus;
    ZeichneNeu();
}

void Planbild::LasseErklaerungAus(bool aus) {
    ohne_.erklaerung = aus;
    ZeichneNeu();
}

Bildbereich Planbild::Erklaerungsrahmen() const {
    const auto pixel = [&](std::int32_t dots) { return RundeZuInt64(dots / flaeche_.Dichte()); };
    const Rechteck& r = zeichner_.Erklaerungsrahmen();
    return {pixel(r.links), pixel(r.oben), pixel(r.rechts), pixel(r.unten)};
}

void Planbild::ZeigeVorschau(Vorschau vorschau) {
    if (!vorschau) {
        bild_->SetzeVorschau({});
        return;
    }
    bild_->SetzeVorschau([this, vorschau = std::move(vorschau)](Zeichenflaeche& flaeche) {
        Zeichenzustand zustand = ZustandFuer(flaeche);
        Figurenzeichner zeichner(zustand, programm_.einstellungen, programm_.netz, programm_.uhr);
        vorschau(zeichner, flaeche);
    });
}

bool Planbild::MarkierePunkt(const PunktKnoten& punkt) {
    Liste& netz = *plan_.Daten();
    const Rechteck bild = Sicht();
    if (!InReichweite(BildortVon(punkt, netz), 0, bild)) {
        steuerung_.MerkeLage(netz.Lage(), Wechsel::Sprung);
        netz.SetzeMitte({punkt.XWPu, punkt.YWPu});
    }
    ZeichneNeu();
    if (!InReichweite(BildortVon(punkt, netz), 0, bild)) return false;
    GlaetteAlles();  // later it would go over the mark
    const Flaechenpunkt m = Aufflaeche(BildortVon(punkt, Vorlage().ansicht));
    {
        const Stiftwechsel stift(flaeche_, {kSuchfarbe, 2, Strichart::Voll}, {kWeiss, true});
        for (const double pixel : {50.0, 25.0}) {
            const auto r = static_cast<std::int32_t>(std::lround(pixel * flaeche_.Dichte()));
            flaeche_.Ellipse({m.x - r, m.y - r, m.x + r, m.y + r});
        }
    }
    pflege_.VerwirfBild();
    bild_->update();
    return true;
}

Planbild::Punktzahl Planbild::ZaehlePunkte() const {
    const Liste& netz = *plan_.Daten();
    const Rechteck bild = Sicht();
    Punktzahl zahl;
    netz.FuerAllePunkte([&](const PunktKnoten& p) {
        if (!p.Item->Visible || !netz.Dargestellt(*p.Item)) return;
        ++zahl.gezeigt;
        if (!InReichweite(BildortVon(p, netz), 0, bild)) ++zahl.draussen;
    });
    return zahl;
}

void Planbild::ZeichneStehendes(Zeichenflaeche& flaeche) {
    if (!stehendesLose_) return;
    Zeichenzustand zustand = ZustandFuer(flaeche);
    Figurenzeichner zeichner(zustand, programm_.einstellungen, programm_.netz, programm_.uhr);
    if (plan_.Daten()->ShowLegende) plan_.Daten()->SetLegende(zeichner);
    zeichner.DrawResMasstab(plan_.Daten()->Vorlage());
    if (plan_.Daten()->ZeigtErklaerung()) zeichner.ZeichneErklaerung(plan_.Daten()->Vorlage());
    if (plan_.Daten()->ShowMassbalken) zeichner.ZeichneMassbalken(plan_.Daten()->Vorlage());
}

// --- The view ---------------------------------------------------------------------------------------------

void Planbild::BeginneNetz() {
    steuerung_.NeuesNetz();
    pflege_.VergissZeiten();
}

void Planbild::SetzeGroesse(int weite, int hoehe, double dichte) {
    beobachter_.VorAnsichtswechsel();
    flaeche_.SetzeGroesse(weite, hoehe, dichte);
    pflege_.VergissZeiten();
    if (!plan_.Offen()) return;
    plan_.Daten()->Weite = weite;
    plan_.Daten()->Hoehe = hoehe;
    ZeichneNeu();
}

void Planbild::PasseEin() {
    if (!plan_.Offen()) return;
    beobachter_.VorAnsichtswechsel();
    const Bildlage vorher = plan_.Daten()->Lage();
    steuerung_.PasseEin(*plan_.Daten(), *plan_.Daten());
    if (!(plan_.Daten()->Lage() == vorher)) steuerung_.MerkeLage(vorher, Wechsel::Sprung);
    ZeichneNeu();
    beobachter_.NachAnsichtswechsel();
}

void Planbild::PasseGezeigtesEin() {
    if (!plan_.Offen()) return;
    const Liste& netz = *plan_.Daten();
    if (const auto lage = Ansichtssteuerung::Eingepasst(netz, netz, netz)) {
        ZoomeAuf(*lage);
    } else {
        beobachter_.MeldeStatus(QStringLiteral("Es ist kein Punkt sichtbar."));
    }
}

void Planbild::SetzeEingepasst() {
    Liste& netz = *plan_.Daten();
    const auto lage = Ansichtssteuerung::Eingepasst(netz, netz, netz);
    if (lage && ErlaubteLage(*lage)) netz.SetzeLage(*lage);
}

void Planbild::ZoomeAuf(Bildpunkt a, Bildpunkt b) {
    ZoomeAuf(plan_.Daten()->Ausschnitt(a, b));
}

void Planbild::ZoomeAufOrte(Welt a, Welt b) {
    // On every side half of what lies between them.
    const double rand = std::max(std::fabs(a.rechts - b.rechts), std::fabs(a.hoch - b.hoch)) / 2.0;
    Weltkasten kasten;
    kasten.NimmOrt(std::min(a.rechts, b.rechts) - rand, std::min(a.hoch, b.hoch) - rand);
    kasten.NimmOrt(std::max(a.rechts, b.rechts) + rand, std::max(a.hoch, b.hoch) + rand);
    if (!(rand > 0.0) || kasten.Leer()) return SetzeMitte(a);
    const Bildlage lage = plan_.Daten()->Eingepasst(kasten);
    if (ErlaubteLage(lage)) {
        ZoomeAuf(lage);
    } else {
        SetzeMitte({(a.rechts + b.rechts) / 2.0, (a.hoch + b.hoch) / 2.0});
    }
}

/// With a way back.
void Planbild::ZoomeAuf(const Bildlage& lage) {
    const Bildlage vorher = plan_.Daten()->Lage();
    if (!(lage == vorher) && SetzeLage(lage)) steuerung_.MerkeLage(vorher, Wechsel::Sprung);
}

bool Planbild::SetzeLage(const Bildlage& lage) {
    if (!ErlaubteLage(lage)) {
        beobachter_.MeldeStatus(kNichtWeiter);
        return false;
    }
    beobachter_.VorAnsichtswechsel();
    plan_.Daten()->SetzeLage(lage);
    ZeichneNeu();
    beobachter_.NachAnsichtswechsel();
    return true;
}

bool Planbild::GeheZurueck() {
    const auto lage = plan_.Offen() ? steuerung_.NimmFruehere(plan_.Daten()->Lage()) : std::nullopt;
    return lage && SetzeLage(*lage);
}

bool Planbild::GeheVor() {
    const auto lage = plan_.Offen() ? steuerung_.NimmSpaetere(plan_.Daten()->Lage()) : std::nullopt;
    return lage && SetzeLage(*lage);
}

void Planbild::ZoomeUm(Bildpunkt ort) {
    const Bildlage vorher = plan_.Daten()->Lage();
    if (ZoomeSchritt(static_cast<double>(ort.x), static_cast<double>(ort.y), true))
        steuerung_.MerkeLage(vorher, Wechsel::Sprung);
}

void Planbild::ZoomeUmMitte(bool groesser) {
    if (!plan_.Offen()) return;
    const Bildlage vorher = plan_.Daten()->Lage();
    if (ZoomeSchritt(plan_.Daten()->Weite / 2.0, plan_.Daten()->Hoehe / 2.0, groesser))
        steuerung_.MerkeLage(vorher, Wechsel::Bewegung);
}

/// @return false: zooming ends here
bool Planbild::ZoomeSchritt(double x, double y, bool groesser) {
    beobachter_.VorAnsichtswechsel();
    if (!plan_.Daten()->ZoomeSchritt(x, y, groesser, programm_.einstellungen.Zoomschritt)) {
        beobachter_.MeldeStatus(kNichtWeiter);
        return false;
    }
    ZeichneNeu();
    beobachter_.NachAnsichtswechsel();
    return true;
}

void Planbild::RolleUm(Bildpunkt ort, int schritte) {
    const Bildlage vorher = plan_.Daten()->Lage();
    if (!Ansichtssteuerung::Rolle(*plan_.Daten(), ort, schritte, programm_.einstellungen.Zoomschritt))
        return beobachter_.MeldeStatus(kNichtWeiter);
    steuerung_.MerkeLage(vorher, Wechsel::Bewegung);
    beobachter_.NachAnsichtswechsel();
    if (!steuerung_.OeffneRad()) QTimer::singleShot(0, bild_, [this] { ZeichneNachRad(); });
}

void Planbild::ZeichneNachRad() {
    if (steuerung_.SchliesseRad()) ZeichneNeu();
}

void Planbild::VerschiebeBild(Bildpunkt versatz) {
    beobachter_.VorAnsichtswechsel();
    Ansicht& ansicht = *plan_.Daten();
    steuerung_.MerkeLage(ansicht.Lage(), Wechsel::Bewegung);
    ansicht.SetzeVersatz(ansicht.Versatz(), versatz);
    ZieheBildNach(versatz);
    ZeigeBild();
    beobachter_.NachAnsichtswechsel();
}

/// The picture goes with its network: as it is where that are whole pixels of the screen.
void Planbild::ZieheBildNach(Bildpunkt versatz) {
    const double x = static_cast<double>(versatz.x) * flaeche_.Dichte();
    const double y = static_cast<double>(versatz.y) * flaeche_.Dichte();
    if (x == std::floor(x) && y == std::floor(y)) {
        pflege_.VerschiebeBild(Vorlage(), {RundeZuInt64(x), RundeZuInt64(y)});
    } else {
        pflege_.ZeichneNeu(Vorlage());
    }
}

void Planbild::HoleInsBild(Welt ort) {
    if (!InReichweite(plan_.Daten()->Bildort(ort), 0, Sicht())) SetzeMitte(ort);
}

void Planbild::SetzeMitte(Welt ort) {
    Ansicht& ansicht = *plan_.Daten();
    beobachter_.VorAnsichtswechsel();
    steuerung_.MerkeLage(ansicht.Lage(), Wechsel::Bewegung);
    ansicht.SetzeMitte(ort);
    ZeichneNeu();
    beobachter_.NachAnsichtswechsel();
}

void Planbild::BeginneZug() {
    zuglage_ = plan_.Daten()->Lage();
    steuerung_.BeginneZug(*plan_.Daten());
}

void Planbild::ZieheBild(Bildpunkt versatz) {
    steuerung_.ZieheNach(versatz);
    if (pflege_.Verschiebbar(Vorlage())) {
        (void)FolgeZug();
    } else {
        // What must be worked out anew is drawn when the mouse is let go, what stands still lies over it.
        const Darstellung& d = *plan_.Daten();
        if (!stehendesLose_ &&
            (d.ShowLegende || d.ZeigtErklaerung() || d.ZeigtErgebnisse() || d.ShowMassbalken)) {
            stehendesLose_ = true;
            const QScopedValueRollback ohne(programm_.zustand.OhneStehendes, true);
            pflege_.ZeichneNeu(Vorlage());
        }
        bild_->SetzeVerschiebung(steuerung_.Rueckstand());
    }
}

/// The picture goes where it is dragged. @return whether it was not there
bool Planbild::FolgeZug() {
    const auto weg = steuerung_.Folge(*plan_.Daten());
    if (!weg) return false;
    ZieheBildNach(*weg);
    ZeigeBild();
    return true;
}

void Planbild::BeendeZug() {
    bild_->SetzeVerschiebung({});
    const bool stand = std::exchange(stehendesLose_, false);
    if (!FolgeZug() && stand) ZeichneNeu();
    if (!(plan_.Daten()->Lage() == zuglage_)) steuerung_.MerkeLage(zuglage_, Wechsel::Bewegung);
}

}  // namespace zrw
