// A printer of 600 dots per inch for tests: a small sheet that can be looked at.
#pragma once

#include <QImage>
#include <QStringList>

#include "model/Fehler.h"
#include "ui/Drucker.h"
#include "ui/Malerflaeche.h"

namespace zrw {

class Festdrucker final : public Drucker {
  public:
    bool angenommen = true;  ///< answer of both dialogs
    bool kaputt = false;     ///< breaks the job off half way
    QStringList titel;       ///< of the jobs
    QImage blatt;            ///< the last sheet

    [[nodiscard]] int Aufloesung() const override { return 600; }
    [[nodiscard]] Druckseite Seite() const override { return {1200, 900, 600.0}; }
    bool Waehle(QWidget* /*eltern*/) override { return angenommen; }
    bool RichteEin(QWidget* /*eltern*/) override { return angenommen; }
    void Drucke(const QString& name, const QFont& schrift,
                const std::function<void(Zeichenflaeche&)>& zeichne) override {
        titel << name;
        blatt = QImage(1200, 900, QImage::Format_RGB32);
        blatt.fill(Qt::white);
        QPainter maler(&blatt);
        Malerflaeche flaeche(maler, {0, 0, 1199, 899}, schrift);
        zeichne(flaeche);
        if (kaputt) throw Fehler("Papierstau.");
    }
};

}  // namespace zrw
