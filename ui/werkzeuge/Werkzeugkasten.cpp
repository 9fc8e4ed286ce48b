#include "ui/werkzeuge/Werkzeugkasten.h"

#include "model/Ganzzahl.h"
#include "ui/werkzeuge/Werkzeugtafel.h"

namespace zrw {

/// Away from every figure.
static constexpr Bildpunkt kNirgends{-kZeichengrenze, -kZeichengrenze};

Werkzeugkasten::Werkzeugkasten(Werkzeugumgebung& umgebung, Druckrahmen& rahmen)
    : mitteltaste_(NeuesWerkzeug<BildVerschieben>(umgebung)),
      auswahl_(std::make_unique<Auswahl>(umgebung)),
      rahmenrand_(std::make_unique<RahmenVerschieben>(umgebung, rahmen)) {
    kaesten_.push_back(std::make_unique<ErklaerungVerschieben>(umgebung));
    kaesten_.push_back(std::make_unique<LegendeVerschieben>(umgebung));
    for (const Werkzeugzeile& zeile : kWerkzeuge)
        werkzeuge_.push_back(zeile.neu(umgebung));
}

void Werkzeugkasten::SetzeAktiv(std::size_t nummer, bool ein) {
    Werkzeug* const werkzeug = werkzeuge_[nummer].get();
    if (ein) {
        aktiv_ = werkzeug;
        auswahl_->LeereAuswahl();
    } else if (aktiv_ == werkzeug) {
        aktiv_ = nullptr;
    }
    BrichAb();
}

void Werkzeugkasten::BrichAb() {
    if (gedrueckt_ != nullptr) std::exchange(gedrueckt_, nullptr)->Abbrechen();
}

void Werkzeugkasten::VergissNetz() {
    BrichAb();
    for (const auto& werkzeug : werkzeuge_)
        werkzeug->Abbrechen();
    auswahl_->LeereAuswahl();
}

void Werkzeugkasten::NetzGeaendert() {
    for (const auto& werkzeug : werkzeuge_)
        werkzeug->NetzGeaendert();
    auswahl_->NetzGeaendert();
}

/// Whose a press here is; with no mode on it selects. Legend and key are caught with no mode on and where
/// the mode allows it, the edge of the output area with no mode on.
Werkzeug* Werkzeugkasten::Zustaendig(Bildpunkt ort) const {
    const bool frei = aktiv_ == nullptr || aktiv_->LaesstLegendeZu();
    for (const auto& kasten : kaesten_) {
        if (frei && kasten->UeberGriff(ort)) return kasten.get();
    }
    if (aktiv_ == nullptr && rahmenrand_->UeberRand(ort)) return rahmenrand_.get();
    return aktiv_ != nullptr ? aktiv_ : auswahl_.get();
}

Qt::CursorShape Werkzeugkasten::ZeigerBei(Bildpunkt ort) const {
    return Zustaendig(ort)->Zeiger();
}

bool Werkzeugkasten::VergissMaus() {
    if (Zieht()) return false;
    maus_.reset();
    return true;
}

void Werkzeugkasten::Schwebe() {
    if (aktiv_ != nullptr && !Zieht()) aktiv_->Schweben(maus_.value_or(kNirgends));
}

void Werkzeugkasten::DrueckeTaste(Bildpunkt ort, Qt::MouseButton taste) {
    if (Zieht()) {
        // A second button during a drag ends it; the same one again means that its release went elsewhere.
        BrichAb();
        if (taste != taste_) return;
    }
    if (taste == Qt::RightButton && aktiv_ != nullptr) return aktiv_->RechteTaste();
    if (taste == Qt::RightButton && rechteTaste) return rechteTaste(ort);
    Werkzeug* werkzeug = nullptr;
    if (taste == Qt::MiddleButton) {
        werkzeug = mitteltaste_.get();
    } else if (taste == Qt::LeftButton) {
        werkzeug = Zustaendig(ort);
    }
    if (werkzeug == nullptr) return;
    taste_ = taste;
    gedrueckt_ = werkzeug;
    werkzeug->Druecken(ort);
}

/// Where one click does all, the second of two quick ones would do it to what lies below.
void Werkzeugkasten::DrueckeZweimal(Bildpunkt ort, Qt::MouseButton taste) {
    if (taste == Qt::LeftButton && aktiv_ != nullptr && aktiv_->EinKlickGenuegt()) return;
    DrueckeTaste(ort, taste);
}

void Werkzeugkasten::LassTasteLos(Bildpunkt ort, Qt::MouseButton taste) {
    if (Zieht() && taste == taste_) std::exchange(gedrueckt_, nullptr)->Loslassen(ort);
}

void Werkzeugkasten::FolgeMaus(Bildpunkt ort) {
    if (Zieht()) {
        gedrueckt_->Ziehen(ort);
    } else if (aktiv_ != nullptr) {
        aktiv_->Schweben(ort);
    }
}

}  // namespace zrw
