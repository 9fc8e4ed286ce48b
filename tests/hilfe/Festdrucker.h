// A printer of 600 dots per inch for tests: a small sheet that can be looked at.
#pragma once

#include <QImage>
#include <QStringList>

#include "model/Fehler.h"
#include "ui/bild/Malerflaeche.h"
#include "ui/druck/Drucker.h"

namespace zrw {

class Festdrucker final : public Drucker {
  public:
    bool angenommen = true;  ///< answer of both dialogs
    bool kaputt = false;     ///< breaks the job off half way
    QStringList titel;       ///< of the jobs
    QList<QImage> blaetter;  ///< of the last job or preview
    QImage uebersicht;       ///< of the last preview

    [[nodiscard]] int Aufloesung() const override { return 600; }
    [[nodiscard]] Druckseite Seite() const override { return {1200, 900, 600.0}; }
    bool WaehleDrucker(QWidget* /*eltern*/) override { return angenommen; }
    bool RichteEin(QWidget* /*eltern*/) override { return angenommen; }
    void DruckeBlaetter(const Druckwerk& werk) override {
        titel << werk.titel;
        MaleBlaetter(werk);
        if (kaputt) throw Fehler("Papierstau.");
    }
    std::function<void(Vorschauplan&)> inDerVorschau;  ///< what the user does there, and then prints
    bool ZeigeVorschau(QWidget* /*eltern*/, Vorschauplan& plan) override {
        if (inDerVorschau) inDerVorschau(plan);
        uebersicht = plan.Uebersicht();
        MaleBlaetter(plan.Werk());
        return inDerVorschau != nullptr;
    }

  private:
    void MaleBlaetter(const Druckwerk& werk) {
        blaetter.clear();
        for (int i = 0; i < werk.blaetter; ++i) {
            QImage blatt(1200, 900, QImage::Format_RGB32);
            blatt.fill(Qt::white);
            QPainter maler(&blatt);
            Malerflaeche flaeche(maler, {0, 0, 1199, 899}, Druckschrift(werk.schrift, 600));
            werk.zeichne(flaeche, i);
            maler.end();
            blaetter << blatt;
        }
    }
};

}  // namespace zrw
