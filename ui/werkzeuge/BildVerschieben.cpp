#include "ui/werkzeuge/BildVerschieben.h"

namespace zrw {

QString BildVerschieben::Anleitung() const {
    return QStringLiteral("Bild verschieben: Bild mit gedrückter Maustaste ziehen.");
}

void BildVerschieben::Druecken(Bildpunkt ort) {
    if (umgebung_.AktuelleListe() != nullptr) anfang_ = ort;
}

void BildVerschieben::Ziehen(Bildpunkt ort) {
    if (anfang_) umgebung_.ZeigeVerschoben({ort.x - anfang_->x, ort.y - anfang_->y});
}

void BildVerschieben::Loslassen(Bildpunkt ort) {
    if (!anfang_) return;
    const Bildpunkt versatz{ort.x - anfang_->x, ort.y - anfang_->y};
    Abbrechen();
    if (versatz != Bildpunkt{}) umgebung_.Verschiebe(versatz);
}

void BildVerschieben::Abbrechen() {
    if (anfang_) umgebung_.ZeigeVerschoben({});
    anfang_.reset();
}

}  // namespace zrw
