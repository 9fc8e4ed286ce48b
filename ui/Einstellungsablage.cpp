#include "ui/Einstellungsablage.h"

#include <QStandardPaths>
#include <QStringList>

#include "model/Fehler.h"
#include "ui/Umwandlung.h"

namespace zrw {
namespace {

const QString kAbschnitt = QStringLiteral("ZRWPAR/");

std::unique_ptr<QSettings> EigeneAblage() {
#ifdef Q_OS_WIN
    return std::make_unique<QSettings>(QStringLiteral("HKEY_CURRENT_USER\\ZRWINI"), QSettings::NativeFormat);
#else
    const QString ordner = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return std::make_unique<QSettings>(ordner + QStringLiteral("/ZRWINI.ini"), QSettings::IniFormat);
#endif
}

}  // namespace

Einstellungsablage::Einstellungsablage() : ablage_(EigeneAblage()) {}

Einstellungsablage::Einstellungsablage(const QString& inidatei)
    : ablage_(std::make_unique<QSettings>(inidatei, QSettings::IniFormat)) {}

std::optional<std::string> Einstellungsablage::Lies(std::string_view schluessel) const {
    const QVariant wert = ablage_->value(kAbschnitt + AusUtf8(schluessel));
    if (!wert.isValid()) return std::nullopt;
    // An INI text with a comma comes back as a list; it was one text when the user wrote it.
    return NachUtf8(wert.toStringList().join(QLatin1Char(',')));
}

void Einstellungsablage::Schreibe(std::string_view schluessel, const std::string& text) {
    ablage_->setValue(kAbschnitt + AusUtf8(schluessel), AusUtf8(text));
}

void Einstellungsablage::Sichere() {
    ablage_->sync();
    if (ablage_->status() != QSettings::NoError) {
        throw Fehler("Die Einstellungen konnten nicht gespeichert werden.", NachUtf8(ablage_->fileName()));
    }
}

std::optional<std::filesystem::path> TavelinOrdner(const EinstellungsSpeicher& ablage) {
    constexpr const char* kAlias = "TAVELIN";
    if (qEnvironmentVariableIsSet(kAlias)) return NachPfad(qEnvironmentVariable(kAlias));
    const auto wert = ablage.Lies(kAlias);
    if (!wert || wert->empty()) return std::nullopt;
    return TextPfad(*wert);
}

}  // namespace zrw
