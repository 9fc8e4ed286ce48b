#include "ui/fenster/Statuszeile.h"

#include <utility>

namespace zrw {

Statuszeile::Statuszeile(QStatusBar& zeile) : zeile_(zeile) {
    setObjectName(QStringLiteral("StatusAnleitung"));
    setMinimumWidth(1);  // a long text must not widen the window
    setContentsMargins(0, 0, 6, 0);
    setTextFormat(Qt::PlainText);
    zeile_.addPermanentWidget(this);
    constexpr int kLesezeit = 5000;  // [ms]
    lesezeit_.setSingleShot(true);
    lesezeit_.setInterval(kLesezeit);
    connect(&lesezeit_, &QTimer::timeout, this, [this] {
        erledigt_.clear();
        ZeigeDaneben(anleitung_);
    });
}

void Statuszeile::ZeigeText(const QString& text) {
    zeile_.showMessage(text);
    ZeigeDaneben({});
}

void Statuszeile::ZeigeFolge(const QString& text) {
    ZeigeText(text);
    folge_ = text;
}

void Statuszeile::MeldeErledigt(const QString& satz) {
    erledigt_ = satz;
    lesezeit_.start();
    const QString folge = std::exchange(folge_, {});
    if (!folge.isEmpty() && zeile_.currentMessage() == folge) return ZeigeDaneben({});
    ZeigeText(satz);
}

void Statuszeile::ZeigeStand(const QString& stand, const QString& anleitung) {
    zeile_.showMessage(stand);
    ZeigeDaneben(anleitung);
}

void Statuszeile::VergissAnleitung(const QString& anleitung) {
    if (zeile_.currentMessage() == anleitung) return ZeigeText({});
    ZeigeDaneben({});
}

/// Nothing stands there twice.
void Statuszeile::ZeigeDaneben(const QString& anleitung) {
    anleitung_ = anleitung;
    const bool steht = erledigt_.isEmpty() || zeile_.currentMessage() == erledigt_;
    setText(steht ? anleitung : erledigt_);
}

}  // namespace zrw
