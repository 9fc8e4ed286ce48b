// Main window: printing at scale, the output area and bitmaps.
#include <QBuffer>
#include <QCheckBox>
#include <QFileInfo>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "model/Fehler.h"
#include "model/Ganzzahl.h"
#include "output/Export.h"
#include "output/Geraeteansicht.h"
#include "ui/Hauptfenster.h"
#include "ui/Sanduhr.h"
#include "ui/Umwandlung.h"

namespace zrw {

/// The scale of the field; tells where it is none.
std::optional<double> TZrwMainDlg::Druckmassstab() {
    auto massstab = EditMasstab_->Massstab();
    if (!massstab) {
        programm_.dialoge.Melde(QStringLiteral("Der Druckmaßstab muss eine Zahl größer als 0 sein."));
        EditMasstab_->setFocus();
        EditMasstab_->selectAll();
    }
    return massstab;
}

/// Sheets of the plot at this scale; one without a place of its own where it fits, or would need too many.
std::vector<Blatt> TZrwMainDlg::Blaetter(double massstab, const Druckseite& seite) const {
    try {
        auto blaetter = Blattschnitt(*liste_, massstab, seite, druckrahmen_.Ecke(*liste_));
        if (blaetter.size() > 1 || (blaetter.size() == 1 && blaetter[0] != Blatt{})) return blaetter;
    } catch (const Fehler&) {
        // One sheet can be printed at any scale.
    }
    return {{0, 0, druckrahmen_.Ecke(*liste_)}};
}

Druckwerk TZrwMainDlg::Druckauftraege(std::vector<Blatt> blaetter, double massstab) {
    Druckwerk werk;
    werk.titel = QStringLiteral("Zarwik ") + QFileInfo(AusUtf8(PfadText(steuerdatei_))).fileName();
    werk.schrift = flaeche_.Schrift();
    werk.blaetter = static_cast<int>(blaetter.size());
    Druckauftrag auftrag{massstab, Utf8NachCp1252(NachUtf8(EditMasstab_->text())), programm_.drucker.Seite()};
    auftrag.legende = Legendenort(auftrag);
    werk.zeichne = [this, blaetter = std::move(blaetter), auftrag](Zeichenflaeche& flaeche,
                                                                   int nummer) mutable {
        auftrag.ecke = blaetter[static_cast<std::size_t>(nummer)].ecke;
        Drucke(*liste_, zeichner_, programm_.zustand, programm_.einstellungen, flaeche, auftrag);
    };
    return werk;
}

/// A legend that stands within the frame of the output area stands there on the sheet.
std::optional<Bildpunkt> TZrwMainDlg::Legendenort(const Druckauftrag& auftrag) const {
    const bool rahmen = findChild<QCheckBox*>(QStringLiteral("CheckBoxPreview"))->isChecked();
    if (!rahmen || liste_->Legend == nullptr) return std::nullopt;
    const double dot = Druckfaktor(auftrag.massstab, auftrag.seite.aufloesung);
    const Welt ecke = druckrahmen_.Ecke(*liste_);
    const Welt w = liste_->BildinWelt(liste_->Legend->Position());
    const Bildpunkt ort{RundeZuInt64((w.rechts - ecke.rechts) / dot),
                        RundeZuInt64((ecke.hoch - w.hoch) / dot)};
    const bool darin = ort.x >= 0 && ort.y >= 0 && ort.x < auftrag.seite.weite && ort.y < auftrag.seite.hoehe;
    return darin ? std::optional(ort) : std::nullopt;
}

void TZrwMainDlg::SpeedButton5Click() {
    if (liste_ == nullptr) return;
    BewahreNetz();
    BrichAb();
    const auto massstab = Druckmassstab();
    if (!massstab || !programm_.drucker.Waehle(this)) return;
    AktualisiereRahmen();  // other paper may have been chosen
    auto blaetter = Blaetter(*massstab, programm_.drucker.Seite());
    const bool leer = std::find(blaetter.begin(), blaetter.end(), Blatt{}) == blaetter.end();
    // Also where the plan lies on one sheet, but beside the output area.
    if (blaetter.size() > 1 || leer) {
        const auto alle = programm_.dialoge.FrageMitAbbruch(
            QStringLiteral("In diesem Maßstab liegt der Plan auf %1. Alles drucken?\n"
                           "Nein druckt nur eines: %2.%3")
                .arg(blaetter.size() == 1 ? QStringLiteral("einem anderen Blatt")
                                          : QStringLiteral("%1 Blättern").arg(blaetter.size()))
                .arg(druckrahmen_.Ecke() ? QStringLiteral("das des Ausgabebereichs")
                                         : QStringLiteral("das in der linken oberen Ecke des Bildes"),
                     leer ? QStringLiteral("\nAuf diesem liegt nichts vom Plan.") : QString()));
        if (!alle) return;
        if (!*alle) blaetter = {{0, 0, druckrahmen_.Ecke(*liste_)}};
    }
    try {
        const Sanduhr sanduhr;
        programm_.drucker.Drucke(Druckauftraege(std::move(blaetter), *massstab));
        ZeigeStatus(QStringLiteral("Gedruckt im Maßstab 1:") + EditMasstab_->text());
    } catch (const std::exception& f) {
        ZeigeFehler(f);
    }
    ZeichneNeu();  // the legend names the scale of the print
}

void TZrwMainDlg::VorschauClick() {
    if (liste_ == nullptr) return;
    BewahreNetz();
    BrichAb();
    const auto massstab = Druckmassstab();
    if (!massstab) return;
    bool drucken = false;
    try {
        const Druckseite seite = programm_.drucker.Seite();
        auto blaetter = Blaetter(*massstab, seite);
        const QImage uebersicht = Blattuebersicht(blaetter, Druckfaktor(*massstab, seite.aufloesung), seite);
        drucken =
            programm_.drucker.ZeigeVorschau(this, Druckauftraege(std::move(blaetter), *massstab), uebersicht);
    } catch (const std::exception& f) {
        ZeigeFehler(f);
    }
    ZeichneNeu();
    if (drucken) SpeedButton5Click();
}

/// The network without its texts, and over it the sheets with their numbers.
QImage TZrwMainDlg::Blattuebersicht(const std::vector<Blatt>& blaetter, double faktor,
                                    const Druckseite& seite) {
    constexpr double kWeite = 320;
    constexpr double kHoehe = 480;
    const double breite = seite.weite * faktor;
    const double hoehe = seite.hoehe * faktor;
    Welt lo = blaetter.front().ecke;
    Welt ru = lo;
    for (const Blatt& b : blaetter) {
        lo = {std::min(lo.rechts, b.ecke.rechts), std::max(lo.hoch, b.ecke.hoch)};
        ru = {std::max(ru.rechts, b.ecke.rechts + breite), std::min(ru.hoch, b.ecke.hoch - hoehe)};
    }
    const double massstab = std::max((ru.rechts - lo.rechts) / kWeite, (lo.hoch - ru.hoch) / kHoehe);
    const auto pixel = [&](double meter) { return static_cast<int>(std::lround(meter / massstab)); };
    Bildflaeche bild(pixel(ru.rechts - lo.rechts) + 1, pixel(lo.hoch - ru.hoch) + 1);
    const Geraeteansicht ansicht(*liste_, programm_.zustand, massstab, lo);
    Zeichenzustand zustand = programm_.zustand;
    zustand.flaeche = &bild;
    Figurenzeichner zeichner(zustand, programm_.einstellungen, programm_.netz, programm_.uhr);
    if (liste_->ShowBeob) liste_->DisplayKante(zeichner);
    liste_->DisplayPunkte(zeichner);
    bild.SetzeStift({programm_.einstellungen.PPCol, 1, Strichart::Voll});
    bild.SetzePinsel({kWeiss, true});
    for (std::size_t i = 0; i < blaetter.size(); ++i) {
        const int x = pixel(blaetter[i].ecke.rechts - lo.rechts);
        const int y = pixel(lo.hoch - blaetter[i].ecke.hoch);
        bild.ZeichneRechteck({x, y, x + pixel(breite), y + pixel(hoehe)});
        bild.Text({x + 3, y + 1}, std::to_string(i + 1), programm_.einstellungen.PPCol);
    }
    return bild.Bild();
}

void TZrwMainDlg::SpeedButton11Click() {
    BrichAb();
    programm_.drucker.RichteEin(this);
    AktualisiereRahmen();
    ZeichneNeu();
}

/// The output area follows the scale, the paper and its box; switching it off puts it back into the corner.
void TZrwMainDlg::AktualisiereRahmen() {
    const bool ein = findChild<QCheckBox*>(QStringLiteral("CheckBoxPreview"))->isChecked();
    if (!ein) druckrahmen_.Loese();
    const auto massstab = EditMasstab_->Massstab();
    if (ein && massstab) {
        druckrahmen_.Setze(Druckrahmen::Stand{*massstab, programm_.drucker.Seite()});
    } else {
        druckrahmen_.Setze({});
    }
    bild_->update();
}

void TZrwMainDlg::ZeigeAusgabebereich(Zeichenflaeche& flaeche) const {
    if (liste_ != nullptr) druckrahmen_.Zeichne(*liste_, flaeche, programm_.einstellungen.PPCol);
}

void TZrwMainDlg::SpeedButtonClipbrdClick() {
    if (liste_ == nullptr) return;
    BrichAb();
    const auto name =
        programm_.dialoge.WaehleZumSpeichern({QStringLiteral("Grafik als Bitmap speichern"),
                                              QStringLiteral("Bitmap (*.bmp *.BMP);;PNG-Bild (*.png *.PNG)"),
                                              ordner_,
                                              {},
                                              QStringLiteral("bmp;png")});
    if (!name) return;
    QImage bild = flaeche_.Bild().copy();
    {
        QPainter maler(&bild);
        Malerflaeche flaeche(maler, {0, 0, bild.width() - 1, bild.height() - 1}, flaeche_.Schrift());
        ZeigeAusgabebereich(flaeche);
    }
    // Other programs place the picture in the size that it has on the screen.
    const int jeMeter = static_cast<int>(std::lround(kBildaufloesung * 1000 / kMillimeterJeZoll));
    bild.setDotsPerMeterX(jeMeter);
    bild.setDotsPerMeterY(jeMeter);
    QByteArray bytes;
    QBuffer puffer(&bytes);
    puffer.open(QIODevice::WriteOnly);
    const bool png = QFileInfo(*name).suffix().compare(QLatin1String("png"), Qt::CaseInsensitive) == 0;
    try {
        if (!bild.save(&puffer, png ? "PNG" : "BMP"))
            throw Fehler("Das Bild ist zu groß für dieses Format.", NachUtf8(*name));
        programm_.dateien.Ersetze(NachPfad(*name),
                                  {bytes.constData(), static_cast<std::size_t>(bytes.size())});
        ZeigeStatus(QStringLiteral("Gespeichert: ") + *name);
    } catch (const std::exception& f) {
        ZeigeFehler(f);
    }
}

}  // namespace zrw
