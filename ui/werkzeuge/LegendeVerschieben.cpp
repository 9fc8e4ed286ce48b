#include "ui/werkzeuge/LegendeVerschieben.h"

namespace zrw {

void LegendeVerschieben::Druecken(Bildpunkt ort) {
    anfang_ = ort;
    vorher_ = umgebung_.Legendenort();
    umgebung_.FasseLegende(ort);
}

void LegendeVerschieben::Ziehen(Bildpunkt ort) {
    if (anfang_) umgebung_.ZieheLegende({vorher_.x + ort.x - anfang_->x, vorher_.y + ort.y - anfang_->y});
}

void LegendeVerschieben::Loslassen(Bildpunkt ort) {
    if (anfang_) Beende({vorher_.x + ort.x - anfang_->x, vorher_.y + ort.y - anfang_->y});
}

void LegendeVerschieben::Abbrechen() {
    if (anfang_) Beende(vorher_);
}

void LegendeVerschieben::Beende(Bildpunkt legendenort) {
    anfang_.reset();
    umgebung_.ZieheLegende(legendenort);
    umgebung_.LegendeLosgelassen();
}

}  // namespace zrw
