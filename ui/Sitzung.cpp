#include "ui/Sitzung.h"

#include <QStandardPaths>

namespace zrw {
namespace {

const QString kDateien = QStringLiteral("Sitzung/Dateien");
const QString kOrdner = QStringLiteral("Sitzung/Ordner");

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

QByteArray Sitzung::Stand(const QString& name) const {
    return ablage_.value(QStringLiteral("Sitzung/") + name).toByteArray();
}

void Sitzung::MerkeStand(const QString& name, const QByteArray& stand) {
    ablage_.setValue(QStringLiteral("Sitzung/") + name, stand);
}

}  // namespace zrw
