// Main window: printing at scale, the output area and bitmaps.
#include <QBuffer>
#include <QCheckBox>
#include <QFileInfo>
#include <QPainter>

#include "model/Fehler.h"
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

void TZrwMainDlg::SpeedButton5Click() {
    if (liste_ == nullptr) return;
    BrichAb();
    const auto massstab = Druckmassstab();
    if (!massstab || !programm_.drucker.Waehle(this)) return;
    const QString name = QFileInfo(AusUtf8(PfadText(steuerdatei_))).fileName();
    try {
        const Sanduhr sanduhr;
        const Druckauftrag auftrag{*massstab, Utf8NachCp1252(NachUtf8(EditMasstab_->text())),
                                   programm_.drucker.Seite()};
        programm_.drucker.Drucke(
            QStringLiteral("Zarwik ") + name, flaeche_.Schrift(), [&](Zeichenflaeche& blatt) {
                zrw::Drucke(*liste_, zeichner_, programm_.zustand, programm_.einstellungen, blatt, auftrag);
            });
        ZeigeStatus(QStringLiteral("Gedruckt im Maßstab 1:") + EditMasstab_->text());
    } catch (const std::exception& f) {
        ZeigeFehler(f);
    }
    ZeichneNeu();  // the legend names the scale of the print
}

void TZrwMainDlg::SpeedButton11Click() {
    BrichAb();
    programm_.drucker.RichteEin(this);
    ZeichneNeu();
}

void TZrwMainDlg::ZeigeAusgabebereich(Zeichenflaeche& flaeche) const {
    if (liste_ == nullptr || !findChild<QCheckBox*>(QStringLiteral("CheckBoxPreview"))->isChecked()) return;
    const auto massstab = EditMasstab_->Massstab();
    if (!massstab) return;
    const Bildpunkt ecke = Ausgabebereich(*liste_, *massstab, programm_.drucker.Seite());
    const Stiftwechsel rahmen(flaeche, {programm_.einstellungen.PPCol, 1, Strichart::Voll}, {kWeiss, true});
    // Edges beyond the picture stay beyond it, within what a surface can address.
    constexpr std::int64_t kWeit = 30000;
    flaeche.ZeichneRechteck({0, 0, static_cast<std::int32_t>(std::min(ecke.x, kWeit)),
                             static_cast<std::int32_t>(std::min(ecke.y, kWeit))});
}

void TZrwMainDlg::SpeedButtonClipbrdClick() {
    if (liste_ == nullptr) return;
    BrichAb();
    const auto name =
        programm_.dialoge.WaehleZumSpeichern({QStringLiteral("Grafik als Bitmap speichern"),
                                              QStringLiteral("Bitmap (*.bmp *.BMP);;PNG-Bild (*.png *.PNG)"),
                                              ordner_,
                                              {},
                                              QStringLiteral("bmp")});
    if (!name) return;
    QImage bild = flaeche_.Bild().copy();
    {
        QPainter maler(&bild);
        Malerflaeche flaeche(maler, {0, 0, bild.width() - 1, bild.height() - 1}, flaeche_.Schrift());
        ZeigeAusgabebereich(flaeche);
    }
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
