#include "ui/werkzeuge/RahmenVerschieben.h"

#include <cassert>

namespace zrw {

bool RahmenVerschieben::UeberRand(Bildpunkt ort) const {
    const Liste* netz = umgebung_.AktuelleListe();
    return netz != nullptr && rahmen_.Gefangen(*netz, ort);
}

void RahmenVerschieben::Druecken(Bildpunkt ort) {
    assert(UeberRand(ort));
    const Liste& netz = *umgebung_.AktuelleListe();
    vorher_ = rahmen_.Ecke();
    ecke_ = rahmen_.Ecke(netz);
    anfang_ = netz.BildinWelt(ort);
}

void RahmenVerschieben::Ziehen(Bildpunkt ort) {
    if (!anfang_) return;
    const Welt jetzt = umgebung_.AktuelleListe()->BildinWelt(ort);
    rahmen_.VerlegeEcke(
        {ecke_.rechts + jetzt.rechts - anfang_->rechts, ecke_.hoch + jetzt.hoch - anfang_->hoch});
    umgebung_.UeberlagerungGeaendert();
}

void RahmenVerschieben::Loslassen(Bildpunkt ort) {
    if (!anfang_) return;
    const Welt jetzt = umgebung_.AktuelleListe()->BildinWelt(ort);
    // A mere click fixes nothing.
    if (jetzt.rechts == anfang_->rechts && jetzt.hoch == anfang_->hoch) return Abbrechen();
    Ziehen(ort);
    anfang_.reset();
    umgebung_.MeldeErledigt(QStringLiteral("Ausgabebereich verschoben"));
}

void RahmenVerschieben::Abbrechen() {
    if (!anfang_) return;
    anfang_.reset();
    vorher_ ? rahmen_.VerlegeEcke(*vorher_) : rahmen_.LoeseEcke();
    umgebung_.UeberlagerungGeaendert();
}

}  // namespace zrw
