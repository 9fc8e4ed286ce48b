#include "ui/ergebnisse/Ergebnisstand.h"

#include <QDir>
#include <QGuiApplication>
#include <algorithm>
#include <utility>

#include "ui/Umwandlung.h"

namespace zrw {
namespace {

/// The adjustment writes one table after the other [ms].
constexpr int kSuchpause = 500;

bool Unlesbar(const Tabellenlage& lage) {
    return lage.zustand == Lesezustand::Unlesbar;
}

}  // namespace

Ergebnisstand::Ergebnisstand(TDM& daten) : daten_(daten) {
    ruhe_.setSingleShot(true);
    ruhe_.setInterval(kSuchpause);
    melden_.setSingleShot(true);
    connect(&ruhe_, &QTimer::timeout, this, [this] { PruefeDateien(); });
    for (const auto signal : {&QFileSystemWatcher::fileChanged, &QFileSystemWatcher::directoryChanged})
        connect(&waechter_, signal, this, [this] { ruhe_.start(); });
    // Not every file system tells of changes.
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState zustand) {
        if (zustand == Qt::ApplicationActive) PruefeDateien();
    });
}

std::shared_ptr<const Beobachtungsliste> Ergebnisstand::Liste() {
    if (!offen_) {
        if (liste_ == nullptr) liste_ = std::make_shared<const Beobachtungsliste>();
        return liste_;
    }
    // Before reading: what is written meanwhile is read the next time.
    const Beobachtungsstand jetzt = StandDerBeobachtungen(daten_);
    if (liste_ != nullptr && stand_ == jetzt && !nochmal_) return liste_;
    if (liste_ != nullptr) melden_.start();
    nochmal_ = false;
    stand_ = jetzt;
    liste_ = std::make_shared<const Beobachtungsliste>(LiesBeobachtungen(daten_));
    BeobachteDateien();
    return liste_;
}

void Ergebnisstand::BeiAenderung(const QObject& hoerer, std::function<void()> tun) const {
    connect(&melden_, &QTimer::timeout, &hoerer, std::move(tun));
}

void Ergebnisstand::VergissNetz() {
    offen_ = false;
    liste_.reset();
    melden_.start();
}

void Ergebnisstand::OrdnerGewaehlt() {
    if (std::exchange(offen_, true) && ordner_ == daten_.Ordner()) return;
    ordner_ = daten_.Ordner();
    liste_.reset();
    melden_.start();
}

void Ergebnisstand::PruefeDateien() {
    if (!offen_ || liste_ == nullptr) return;
    nochmal_ = std::any_of(liste_->tabellen.begin(), liste_->tabellen.end(), Unlesbar);
    if (nochmal_ || stand_ != StandDerBeobachtungen(daten_)) melden_.start();
}

/// A file that was replaced is watched no longer, so all are told anew.
void Ergebnisstand::BeobachteDateien() {
    if (const QStringList alte = waechter_.files() + waechter_.directories(); !alte.isEmpty())
        waechter_.removePaths(alte);
    const QString ordner = AusUtf8(PfadText(daten_.Ordner()));
    if (ordner.isEmpty()) return;
    QStringList namen;
    for (const Beobachtungsgattung& g : kBeobachtungsgattungen)
        namen << AusUtf8(g.name) + QStringLiteral(".DB");
    QStringList pfade{ordner};
    for (const QFileInfo& datei : QDir(ordner).entryInfoList(namen, QDir::Files))  // in any case
        pfade << datei.filePath();
    waechter_.addPaths(pfade);
}

}  // namespace zrw
