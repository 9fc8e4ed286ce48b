#include "ui/werkzeuge/BildVerschieben.h"

#include <utility>

namespace zrw {

QString BildVerschieben::Anleitung() const {
    return QStringLiteral("Bild verschieben: Bild mit gedrückter Maustaste ziehen.");
}

void BildVerschieben::Druecken(Bildpunkt ort) {
    if (umgebung_.AktuelleListe() == nullptr) return;
    anfang_ = ort;
    umgebung_.BeginneZug();
}

void BildVerschieben::Ziehen(Bildpunkt ort) {
    if (anfang_) umgebung_.ZieheBild({ort.x - anfang_->x, ort.y - anfang_->y});
}

void BildVerschieben::Loslassen(Bildpunkt ort) {
    Ziehen(ort);
    if (std::exchange(anfang_, std::nullopt)) umgebung_.BeendeZug();
}

void BildVerschieben::Abbrechen() {
    if (!std::exchange(anfang_, std::nullopt)) return;
    umgebung_.ZieheBild({});
    umgebung_.BeendeZug();
}

}  // namespace zrw
