#include "ui/ablage/Rettung.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <functional>

#include "model/Fehler.h"
#include "ui/Umwandlung.h"

namespace zrw {
namespace {

const QString kEndung = QStringLiteral(".rettung");
const QString kAbgelegt = QStringLiteral(".verworfen");
const QString kSperre = QStringLiteral(".sperre");
constexpr int kTage = 7;  ///< files put aside are kept so long
constexpr int kMeisteVersuche = 1000;
constexpr std::size_t kGroessterStand = std::size_t{64} << 20U;

std::unique_ptr<QLockFile> SperreDatei(const QString& datei) {
    auto sperre = std::make_unique<QLockFile>(datei + kSperre);
    // A lock is as old as its program; only one whose program is gone is stale.
    sperre->setStaleLockTime(0);
    return sperre;
}

/// Whether the program that locked it had the number that this one has now: then it looks as if it were at
/// work.
bool HatUnsereNummer(const QLockFile& sperre) {
    qint64 nummer = 0;
    QString rechner;
    QString programm;
    return sperre.getLockInfo(&nummer, &rechner, &programm) && nummer == QCoreApplication::applicationPid();
}

/// Numbers come again, in a container with every start. A lock that is really held cannot be removed.
bool NimmSperre(QLockFile& sperre) {
    if (sperre.tryLock()) return true;
    return HatUnsereNummer(sperre) && sperre.removeStaleLockFile() && sperre.tryLock();
}

}  // namespace

/// Finds a name that no other program uses.
bool Rettung::BelegeDatei() {
    if (!datei_.isEmpty()) return true;
    if (ordner_.isEmpty() || !QDir().mkpath(ordner_)) return false;
    for (int i = 1; i <= kMeisteVersuche; ++i) {
        const QString datei = QDir(ordner_).filePath(
            QStringLiteral("%1-%2").arg(QCoreApplication::applicationPid()).arg(i) + kEndung);
        auto sperre = SperreDatei(datei);
        if (QFileInfo::exists(datei) || !sperre->tryLock()) continue;
        datei_ = datei;
        sperre_ = std::move(sperre);
        return true;
    }
    return false;
}

void Rettung::BewahreBytes(const std::string& bytes) {
    if (ordner_.isEmpty()) return;
    const std::size_t stand = std::hash<std::string>()(bytes);
    if (bewahrt_ && stand == stand_) return;
    if (!BelegeDatei())
        throw Fehler("Der Ordner für den Netzplan im Notfall ist nicht beschreibbar.", NachUtf8(ordner_));
    dateien_.ErsetzeDatei(NachPfad(datei_), bytes);
    stand_ = stand;
    bewahrt_ = true;
}

void Rettung::VergissDatei() {
    if (!datei_.isEmpty()) QFile::remove(datei_);
    bewahrt_ = false;
}

QStringList Rettung::Hinterlassene() {
    QStringList gefunden;
    if (ordner_.isEmpty()) return gefunden;
    const QDir ordner(ordner_);
    for (const QFileInfo& f : ordner.entryInfoList({QStringLiteral("*") + kAbgelegt}, QDir::Files)) {
        if (f.lastModified().daysTo(QDateTime::currentDateTime()) > kTage) QFile::remove(f.filePath());
    }
    for (const QFileInfo& f :
         ordner.entryInfoList({QStringLiteral("*") + kEndung}, QDir::Files, QDir::Time | QDir::Reversed)) {
        if (f.filePath() == datei_) continue;
        auto sperre = SperreDatei(f.filePath());
        if (!NimmSperre(*sperre)) continue;  // its program is at work
        fremde_.push_back(std::move(sperre));
        gefunden << f.filePath();
    }
    return gefunden;
}

std::string Rettung::LiesDatei(const QString& datei) const {
    return dateien_.LiesDatei(NachPfad(datei), kGroessterStand);
}

void Rettung::LegeAb(const QString& datei) {
    QFile::remove(datei + kAbgelegt);
    QFile::rename(datei, datei + kAbgelegt);
}

void Rettung::EntferneDatei(const QString& datei) {
    QFile::remove(datei);
}

}  // namespace zrw
