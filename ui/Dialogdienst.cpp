#include "ui/Dialogdienst.h"

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>

#include "ui/Umwandlung.h"

namespace zrw {

QString MitEndung(const QString& name, const QString& endung) {
    if (endung.isEmpty()) return name;
    const QStringList moegliche = endung.split(QLatin1Char(';'));
    for (const QString& m : moegliche) {
        if (name.endsWith(QLatin1Char('.') + m, Qt::CaseInsensitive)) return name;
    }
    return name + QLatin1Char('.') + moegliche.front();
}

/// Over the window that asks, which then has the keyboard again.
QWidget* QtDialogdienst::Eltern() const {
    QWidget* fenster = QApplication::activeWindow();
    return fenster != nullptr && fenster->isVisible() ? fenster : eltern_;
}

void QtDialogdienst::ZeigeMeldung(int symbol, const QString& text) {
    QMessageBox box(static_cast<QMessageBox::Icon>(symbol), QStringLiteral("Zarwik"), text, QMessageBox::Ok,
                    Eltern());
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void QtDialogdienst::MeldeFehler(const QString& text) {
    ZeigeMeldung(QMessageBox::Warning, text);
}

void QtDialogdienst::SageErfolg(const QString& text) {
    ZeigeMeldung(QMessageBox::Information, text);
}

bool QtDialogdienst::FrageJaNein(const QString& text) {
    return FrageJaNein(text, false);
}

bool QtDialogdienst::FrageJaNein(const QString& text, bool escapeIstNein) {
    QMessageBox box(QMessageBox::Question, QStringLiteral("Zarwik"), text, QMessageBox::NoButton, Eltern());
    const auto* ja = box.addButton(QStringLiteral("&Ja"), QMessageBox::YesRole);
    // Not QMessageBox::NoRole: Escape would press that, and a plot would be gone for one key too many.
    auto* nein = box.addButton(QStringLiteral("&Nein"), QMessageBox::DestructiveRole);
    if (escapeIstNein) box.setEscapeButton(nein);
    box.exec();
    return box.clickedButton() == ja;
}

std::optional<bool> QtDialogdienst::FrageMitAbbruch(const QString& text) {
    QMessageBox box(QMessageBox::Question, QStringLiteral("Zarwik"), text, QMessageBox::NoButton, Eltern());
    const auto* ja = box.addButton(QStringLiteral("&Ja"), QMessageBox::YesRole);
    const auto* nein = box.addButton(QStringLiteral("&Nein"), QMessageBox::NoRole);
    box.setEscapeButton(box.addButton(QStringLiteral("&Abbrechen"), QMessageBox::RejectRole));
    box.exec();
    if (box.clickedButton() == ja) return true;
    if (box.clickedButton() == nein) return false;
    return std::nullopt;
}

std::optional<QFont> QtDialogdienst::WaehleSchrift(const QFont& anfang) {
    QFontDialog dialog(anfang, Eltern());
    dialog.setWindowTitle(QStringLiteral("Zeichenfont wählen"));
    dialog.setOption(QFontDialog::DontUseNativeDialog);
    // The dialog knows only fonts that its lists can say: what it shows first may differ from what there was.
    const QFont gezeigt = dialog.currentFont();
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFont() == gezeigt) return std::nullopt;
    return dialog.selectedFont();
}

std::optional<QString> QtDialogdienst::WaehleAus(const QStringList& texte) {
    QMenu menue(eltern_);
    int nummer = 0;
    for (const QString& text : texte)
        menue.addAction(QStringLiteral("&%1  ").arg(++nummer) + QDir::toNativeSeparators(text))
            ->setData(text);
    const QAction* gewaehlt = menue.exec(QCursor::pos());
    if (gewaehlt == nullptr) return std::nullopt;
    return gewaehlt->data().toString();
}

std::optional<QString> QtDialogdienst::WaehleZumOeffnen(const Dateiwahl& wahl) {
    const QString name = QFileDialog::getOpenFileName(Eltern(), wahl.titel, wahl.ordner, wahl.filter);
    if (name.isEmpty()) return std::nullopt;
    return name;
}

std::optional<QString> QtDialogdienst::WaehleZumSpeichern(const Dateiwahl& wahl) {
    QFileDialog dialog(Eltern(), wahl.titel, wahl.ordner, wahl.filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    // The question about replacing must name the file that is written, so it is asked here, with the
    // extension.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.selectFile(wahl.vorschlag);
    while (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty()) {
        const QString name = MitEndung(dialog.selectedFiles().front(), wahl.endung);
        const QString frage = QStringLiteral("%1 ist bereits vorhanden. Ersetzen?");
        if (!QFileInfo::exists(name) || FrageJaNein(frage.arg(QDir::toNativeSeparators(name)), true))
            return name;
    }
    return std::nullopt;
}

std::optional<QString> QtDialogdienst::WaehleOrdner(const Dateiwahl& wahl) {
    const QString ordner = QFileDialog::getExistingDirectory(Eltern(), wahl.titel, wahl.ordner);
    if (ordner.isEmpty()) return std::nullopt;
    return ordner;
}

std::optional<Farbe> QtDialogdienst::WaehleFarbe(Farbe anfang) {
    const QColor farbe = QColorDialog::getColor(AlsQColor(anfang), Eltern(), QStringLiteral("Farbe wählen"));
    if (!farbe.isValid()) return std::nullopt;
    const QRgb rgb = farbe.rgb();
    return Farbe{static_cast<std::uint32_t>(qRed(rgb)) | static_cast<std::uint32_t>(qGreen(rgb)) << 8U |
                 static_cast<std::uint32_t>(qBlue(rgb)) << 16U};
}

}  // namespace zrw
