#include "ui/werkzeuge/Punktgang.h"

#include "model/Bildorte.h"
#include "model/Punktarten.h"
#include "model/Zahlentext.h"
#include "output/Abschneiden.h"
#include "ui/Umwandlung.h"
#include "ui/dialoge/TFormPunktart.h"

namespace zrw {
namespace {

Bildpunkt Schritt(Gehrichtung richtung) {
    switch (richtung) {
        case Gehrichtung::Links:
            return {-1, 0};
        case Gehrichtung::Rechts:
            return {1, 0};
        case Gehrichtung::Hinauf:
            return {0, -1};
        case Gehrichtung::Hinunter:
            return {0, 1};
    }
    return {};
}

}  // namespace

void Punktgang::GeheZumNaechsten(Gehrichtung richtung) {
    if (!u_.plan.Offen()) return;
    const Liste& netz = *u_.plan.Daten();
    const Welt von = ort_ ? *ort_ : netz.BildinWelt({netz.Weite / 2, netz.Hoehe / 2});
    const PunktKnoten* ziel =
        NaechsterPunkt(netz, netz, netz, von, ort_ ? std::optional(richtung) : std::nullopt);
    if (ziel == nullptr) {
        u_.melde(QStringLiteral("In dieser Richtung liegt kein sichtbarer Punkt mehr."));
        return;
    }
    punkt_ = ziel;
    ort_ = Welt{ziel->XWPu, ziel->YWPu};
    u_.planbild.HoleInsBild(*ort_);
    // As if the mouse had gone there: the tool shows what a click would hit.
    if (const auto ort = Bildort()) u_.maus.ImageZarwikMouseMove(*ort);
    u_.melde(Beschreibung());
}

bool Punktgang::KlickePunkt() {
    if (const auto hand = std::exchange(hand_, std::nullopt); hand && u_.zieht()) {
        u_.maus.ImageZarwikMouseUp(*hand, Qt::LeftButton);
        return true;
    }
    const auto ort = Bildort();
    if (!ort) return false;
    hand_ = u_.griff(*punkt_);
    u_.maus.ImageZarwikMouseDown(hand_.value_or(*ort), Qt::LeftButton);
    if (hand_) {
        u_.melde(QStringLiteral(
            "In der Hand: Pfeiltasten ziehen (mit Umschalt weiter), Eingabe legt ab, Esc bricht ab"));
    } else {
        u_.maus.ImageZarwikMouseUp(*ort, Qt::LeftButton);
    }
    return true;
}

bool Punktgang::ZieheHand(Gehrichtung richtung, std::int64_t weite) {
    if (!hand_ || !u_.zieht()) return false;
    const Bildpunkt weg = Schritt(richtung);
    hand_ = {hand_->x + weg.x * weite, hand_->y + weg.y * weite};
    u_.maus.ImageZarwikMouseMove(*hand_);
    return true;
}

std::optional<Bildpunkt> Punktgang::Bildort() const {
    if (punkt_ == nullptr || !u_.plan.Offen()) return std::nullopt;
    const Bildpunkt ort = BildortVon(*punkt_, *u_.plan.Daten());
    return InReichweite(ort, 0, u_.planbild.Flaeche().Sichtbar()) ? std::optional(ort) : std::nullopt;
}

void Punktgang::VergissPunkt() {
    ort_.reset();
    hand_.reset();
    if (std::exchange(punkt_, nullptr) != nullptr) u_.melde({});
}

void Punktgang::PruefePunkt() {
    if (punkt_ == nullptr) return;
    const Liste& netz = *u_.plan.Daten();
    if (netz.EnthaeltPunkt(*punkt_) && punkt_->Item->Visible && netz.Dargestellt(*punkt_->Item)) {
        ort_ = Welt{punkt_->XWPu, punkt_->YWPu};
    } else {
        punkt_ = nullptr;
        u_.melde(QStringLiteral("Der Punkt ist nicht mehr zu sehen."));
    }
}

QString Punktgang::Beschreibung() const {
    if (punkt_ == nullptr) return {};
    const QString nummer = AusNetz(u_.plan.Daten()->GetPktText(punkt_->PNr));
    const PunktArt art = ArtNachFarbe(punkt_->Item->Farbe, u_.einstellungen);
    return QStringLiteral("Punkt %1, %2, Rechtswert %3, Hochwert %4")
        .arg(nummer.isEmpty() ? QStringLiteral("ohne Nummer") : nummer, AusUtf8(ZurArt(art).bezeichnung),
             AusUtf8(Festkomma(punkt_->XWPu, 0, 2)), AusUtf8(Festkomma(punkt_->YWPu, 0, 2)));
}

/// Dark on light, so that it shows on every paper and every figure.
void Punktgang::ZeichneRing(Zeichenflaeche& flaeche) const {
    const auto ort = Bildort();
    if (!ort) return;
    constexpr Farbe kRing{0x903000};
    const Flaechenpunkt m = Aufflaeche(*ort);
    const std::int32_t r = u_.einstellungen.PTSize + 8;
    for (const Stift& stift : {Stift{kWeiss, 5, Strichart::Voll}, Stift{kRing, 2, Strichart::Voll}}) {
        const Stiftwechsel wechsel(flaeche, stift, {kWeiss, true});
        flaeche.Ellipse({m.x - r, m.y - r, m.x + r, m.y + r});
    }
}

}  // namespace zrw
