// Main window: printing at scale, the output area and bitmaps.
#include <QBuffer>
#include <QFileInfo>
#include <QPainter>
#include <cmath>
#include <utility>

#include "model/Fehler.h"
#include "ui/Umwandlung.h"
#include "ui/fenster/Hauptfenster.h"
#include "ui/fenster/Sanduhr.h"

namespace zrw {

void TZrwMainDlg::SpeedButton5Click() {
    if (!plan_.Offen()) return;
    bewahrung_.BewahrePlan();
    const auto massstab = druck_.Massstab();
    if (!massstab || !programm_.drucker.WaehleDrucker(this)) return;
    druck_.AktualisiereRahmen();  // other paper may have been chosen
    auto blaetter = druck_.WaehleBlaetter(*plan_.Daten(), *massstab);
    if (!blaetter) return;
    try {
        const Sanduhr sanduhr;
        druck_.DruckeBlaetter(*plan_.Daten(), std::move(*blaetter), *massstab, plan_.Datei());
        MeldeErledigt(QStringLiteral("Gedruckt im Maßstab 1:") + EditMasstab_->text());
    } catch (const std::exception& f) {
        ZeigeFehler(f);
    }
    ZeichneNeu();  // the legend names the scale of the print
}

void TZrwMainDlg::VorschauClick() {
    if (!plan_.Offen()) return;
    bewahrung_.BewahrePlan();
    werkzeuge_.BrichAb();
    const auto massstab = druck_.Massstab();
    if (!massstab) return;
    bool drucken = false;
    try {
        drucken = druck_.ZeigeVorschau(this, *plan_.Daten(), *massstab, plan_.Datei());
    } catch (const std::exception& f) {
        ZeigeFehler(f);
    }
    ZeichneNeu();
    if (drucken) SpeedButton5Click();
    druck_.VergissAuswahl();
}

void TZrwMainDlg::SpeedButton11Click() {
    programm_.drucker.RichteEin(this);
    druck_.AktualisiereRahmen();
    ZeichneNeu();
}

void TZrwMainDlg::BlattrahmenClick() {
    if (!plan_.Offen()) return;
    try {
        if (druck_.BearbeiteBlaetter(this)) MeldeErledigt(QStringLiteral("Blattrahmen geändert"));
    } catch (const std::exception& f) {
        ZeigeFehler(f);
    }
}

void TZrwMainDlg::MassstabEinpassenClick() {
    if (!plan_.Offen()) return;
    if (druck_.PasseMassstabEin(this, *plan_.Daten()))
        MeldeErledigt(QStringLiteral("Druckmaßstab 1:") + EditMasstab_->text());
}

void TZrwMainDlg::SpeedButtonClipbrdClick() {
    if (!plan_.Offen()) return;
    const auto name =
        programm_.dialoge.WaehleZumSpeichern({QStringLiteral("Grafik als Bitmap speichern"),
                                              QStringLiteral("Bitmap (*.bmp *.BMP);;PNG-Bild (*.png *.PNG)"),
                                              ordner_,
                                              {},
                                              QStringLiteral("bmp;png")});
    if (!name) return;
    QImage bild = Bild().copy();
    {
        QPainter maler(&bild);
        Malerflaeche flaeche(maler, {0, 0, bild.width() - 1, bild.height() - 1},
                             planbild_.Flaeche().Planschrift());
        druck_.ZeichneRahmen(*plan_.Daten(), flaeche);
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
        programm_.dateien.ErsetzeDatei(NachPfad(*name),
                                       {bytes.constData(), static_cast<std::size_t>(bytes.size())});
        MeldeErledigt(QStringLiteral("Gespeichert: ") + *name);
    } catch (const std::exception& f) {
        ZeigeFehler(f);
    }
}

}  // namespace zrw
