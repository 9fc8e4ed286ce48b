#include "ui/ablage/Sitzung.h"

#include <QStandardPaths>

#include "ui/Umwandlung.h"

namespace zrw {
namespace {

constexpr const char* kDateien = "Dateien";
constexpr const char* kOrdnerschluessel = "Ordner";

QString EigeneDatei() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/ZRWSITZUNG.ini");
}

}  // namespace

Sitzung::Sitzung() : Sitzung(EigeneDatei()) {}

Sitzung::Sitzung(const QString& inidatei) : ablage_(inidatei, "Sitzung") {
    bald_.setSingleShot(true);
    bald_.callOnTimeout([this] { SichereAblage(); });
}

Sitzung::~Sitzung() {
    SichereAblage();
}

void Sitzung::SetzeTexte(std::string_view schluessel, const QStringList& texte) {
    ablage_.SetzeTexte(schluessel, texte);
    bald_.start();
}

void Sitzung::SichereAblage() {
    if (ablage_.Lesefehler()) return;
    try {
        ablage_.SichereDatei();
    } catch (const std::exception&) {  // the next run begins as this one did
    }
}

QStringList Sitzung::LetzteDateien() const {
    return ablage_.LiesTexte(kDateien).mid(0, kLetzteDateien);
}

void Sitzung::NimmDatei(const QString& datei) {
    QStringList dateien = LetzteDateien();
    dateien.removeAll(datei);
    dateien.prepend(datei);
    SetzeTexte(kDateien, dateien.mid(0, kLetzteDateien));
}

QString Sitzung::Ordner() const {
    // A comma in the name, written by hand, has made two of it.
    return ablage_.LiesTexte(kOrdnerschluessel).join(QLatin1Char(','));
}

void Sitzung::MerkeOrdner(const QString& ordner) {
    SetzeTexte(kOrdnerschluessel, {ordner});
}

QByteArray Sitzung::Stand(const QString& name) const {
    return QByteArray::fromBase64(ablage_.LiesTexte(NachUtf8(name)).value(0).toLatin1());
}

void Sitzung::MerkeStand(const QString& name, const QByteArray& stand) {
    SetzeTexte(NachUtf8(name), {QString::fromLatin1(stand.toBase64())});
}

}  // namespace zrw
