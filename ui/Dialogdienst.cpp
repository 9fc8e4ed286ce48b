#include "ui/Dialogdienst.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

namespace zrw {

void QtDialogdienst::Melde(const QString& text) {
    QMessageBox box(QMessageBox::Warning, QStringLiteral("Zarwik"), text, QMessageBox::Ok, eltern_);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

bool QtDialogdienst::Frage(const QString& text) {
    QMessageBox box(QMessageBox::Question, QStringLiteral("Zarwik"), text, QMessageBox::NoButton, eltern_);
    const auto* ja = box.addButton(QStringLiteral("&Ja"), QMessageBox::YesRole);
    box.addButton(QStringLiteral("&Nein"), QMessageBox::NoRole);
    box.exec();
    return box.clickedButton() == ja;
}

std::optional<QString> QtDialogdienst::WaehleZumOeffnen(const Dateiwahl& wahl) {
    const QString name = QFileDialog::getOpenFileName(eltern_, wahl.titel, wahl.ordner, wahl.filter);
    if (name.isEmpty()) return std::nullopt;
    return name;
}

std::optional<QString> QtDialogdienst::WaehleZumSpeichern(const Dateiwahl& wahl) {
    QFileDialog dialog(eltern_, wahl.titel, wahl.ordner, wahl.filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(wahl.endung);
    dialog.selectFile(wahl.vorschlag);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    return dialog.selectedFiles().front();
}

}  // namespace zrw
