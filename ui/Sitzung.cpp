#include "ui/Sitzung.h"

#include <QStandardPaths>

namespace zrw {
namespace {

const QString kDateien = QStringLiteral("Sitzung/Dateien");
const QString kOrdner = QStringLiteral("Sitzung/Ordner");
const QString kLage = QStringLiteral("Sitzung/Fensterlage");

QString EigeneDatei() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/ZRWSITZUNG.ini");
}

}  // namespace

Sitzung::Sitzung() : Sitzung(EigeneDatei()) {}

Sitzung::Sitzung(const QString& inidatei) : ablage_(inidatei, QSettings::IniFormat) {}

QStringList Sitzung::LetzteDateien() const {
    return ablage_.value(kDateien).toStringList().mid(0, kLetzteDateien);
}

void Sitzung::NimmDatei(const QString& datei) {
    QStringList dateien = LetzteDateien();
    dateien.removeAll(datei);
    dateien.prepend(datei);
    ablage_.setValue(kDateien, dateien.mid(0, kLetzteDateien));
}

QString Sitzung::Ordner() const {
    return ablage_.value(kOrdner).toString();
}

void Sitzung::MerkeOrdner(const QString& ordner) {
    ablage_.setValue(kOrdner, ordner);
}

QByteArray Sitzung::Fensterlage() const {
    return ablage_.value(kLage).toByteArray();
}

void Sitzung::MerkeFensterlage(const QByteArray& lage) {
    ablage_.setValue(kLage, lage);
}

}  // namespace zrw
