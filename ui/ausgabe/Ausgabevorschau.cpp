#include "ui/ausgabe/Ausgabevorschau.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "model/Fehler.h"
#include "model/Ganzzahl.h"
#include "output/Druck.h"
#include "output/Figurenzeichner.h"
#include "output/Uhr.h"
#include "ui/Umwandlung.h"
#include "ui/bild/Bildflaeche.h"

namespace zrw {
namespace {

/// Drawn so much larger than it is shown: sizes of symbols are whole pixels, and would be coarse.
constexpr int kFeiner = 2;
/// Longest side of a picture that is drawn as it is [px]; larger ones have fewer pixels in the preview.
constexpr double kGroesste = 1200;

QImage Verkleinert(const QImage& bild, QSize platz) {
    if (bild.width() <= platz.width() && bild.height() <= platz.height()) return bild.copy();
    return bild.scaled(platz, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

QImage ZeichnePlan(const Format& format, const Ausgabe& a) {
    const Ansicht& ganz = a.vorlage.ansicht;
    const double dichte = std::min(kGroesste / std::max({ganz.Weite, ganz.Hoehe, 1}), 1.0);
    Bildflaeche flaeche(1, 1);
    flaeche.SetzeGroesse(ganz.Weite, ganz.Hoehe, dichte);
    flaeche.SetzeGlatt(!a.kantig);
    Zeichenzustand zustand = a.zustand;
    zustand.flaeche = &flaeche;
    zustand.Pixeldichte = dichte;
    Einstellungen groessen = a.einstellungen;
    groessen.ScaleSizes(dichte);
    const Ansicht ansicht = ganz.InDichte(dichte);
    Darstellung darstellung = a.vorlage.darstellung;
    if (format.HatMerkmal(kOhneLegende)) {
        using Schalterfeld = bool Darstellung::*;
        for (const Schalterfeld schalter : std::initializer_list<Schalterfeld>{
                 &Darstellung::ShowLegende, &Darstellung::ShowLgRes, &Darstellung::ShowHRes,
                 &Darstellung::ShowLGGen, &Darstellung::ShowHGen, &Darstellung::ShowKooVergleich,
                 &Darstellung::ShowRelEllipsen, &Darstellung::ShowMassbalken, &Darstellung::ShowErklaerung})
            darstellung.*schalter = false;
        darstellung.Stile.reset();
    }
    Legende* legende = darstellung.Legend ? &*darstellung.Legend : nullptr;
    if (legende != nullptr) {
        legende->XO = RundeZuInt64(static_cast<double>(legende->XO) * dichte);
        legende->YO = RundeZuInt64(static_cast<double>(legende->YO) * dichte);
    }
    const Systemuhr uhr;
    Figurenzeichner zeichner(zustand, groessen, a.netz, uhr);
    ZeichneBild({a.vorlage.netz, ansicht, darstellung, legende}, zeichner);
    return flaeche.Bild().copy();
}

/// The first sheet on its paper.
QImage ZeichneBlatt(const Ausgabe& a, const Blattwahl& wahl, QSize platz) {
    const QSizeF papier(a.papier.weite, a.papier.hoehe);
    const QSizeF groesse = papier.scaled(platz * kFeiner, Qt::KeepAspectRatio);
    const double jeMillimeter = groesse.width() / papier.width();
    const Druckseite seite = Bedruckbar(a.papier, jeMillimeter * kMillimeterJeZoll);
    const double faktor = Geraetefaktor(seite);
    const auto pixel = [&](int dots) { return static_cast<int>(std::lround(dots / faktor)); };
    Bildflaeche flaeche(1, 1);
    flaeche.SetzeGroesse(pixel(seite.weite), pixel(seite.hoehe), faktor);
    flaeche.SetzeGlatt(true);
    Einstellungen groessen = a.einstellungen;
    const Systemuhr uhr;
    const Einstellungen druck = Geraetegroessen(groessen, faktor);
    DruckeBlatt(a.vorlage, {a.zustand, groessen, a.netz, uhr}, druck, flaeche, AuftragVon(a, wahl, seite), 0);
    QImage blatt(groesse.toSize(), QImage::Format_RGB32);
    blatt.fill(Qt::white);
    const int rand = static_cast<int>(std::lround(kPapierrand * jeMillimeter));
    QPainter(&blatt).drawImage(rand, rand, flaeche.Bild());
    return Verkleinert(blatt, platz);
}

QString Blattext(const Blattwahl& wahl) {
    const QString massstab = QStringLiteral("1:%1").arg(AusNetz(wahl.massstabtext));
    if (wahl.gebraucht == 0)
        return QStringLiteral("%1, eines von mehr als %2 Blättern").arg(massstab).arg(kMeisteBlaetter);
    if (wahl.gebraucht == 1) return QStringLiteral("%1, ein Blatt").arg(massstab);
    if (wahl.blaetter.size() == 1)
        return QStringLiteral("%1, nur das erste von %2 Blättern").arg(massstab).arg(wahl.gebraucht);
    return QStringLiteral("%1, das erste von %2 Blättern").arg(massstab).arg(wahl.gebraucht);
}

}  // namespace

Ausgabevorschau ZeichneAusgabe(const Format& format, const Ausgabe& ausgabe, QSize platz) {
    try {
        if (format.HatMerkmal(kMitPapier)) {
            const Blattwahl wahl = WaehleBlaetter(ausgabe);
            return {ZeichneBlatt(ausgabe, wahl, platz), Blattext(wahl)};
        }
        const Ansicht& ansicht = ausgabe.vorlage.ansicht;
        const QString groesse = QStringLiteral("%1 × %2 Pixel").arg(ansicht.Weite).arg(ansicht.Hoehe);
        return {Verkleinert(ZeichnePlan(format, ausgabe), platz),
                format.HatMerkmal(kMitGroesse) ? groesse : QStringLiteral("Das ganze Netz")};
    } catch (const std::exception& f) {
        return {{}, AusUtf8(Fehlertext(f))};
    }
}

}  // namespace zrw
