#include "ui/ablage/Einstellungsablage.h"

#include <QStandardPaths>
#include <QStringList>

#include "model/Fehler.h"
#include "ui/Systemart.h"
#include "ui/Umwandlung.h"

namespace zrw {
namespace {

constexpr const char* kAbschnitt = "ZRWPAR";

[[nodiscard]] QString Registryname(std::string_view schluessel) {
    return QLatin1String(kAbschnitt) + QLatin1Char('/') + AusUtf8(schluessel);
}

}  // namespace

Einstellungsablage::Einstellungsablage() {
    if (kWindows) {
        registry_ =
            std::make_unique<QSettings>(QStringLiteral("HKEY_CURRENT_USER\\ZRWINI"), QSettings::NativeFormat);
        return;
    }
    datei_.emplace(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                       QStringLiteral("/ZRWINI.ini"),
                   kAbschnitt);
}

Einstellungsablage::Einstellungsablage(const QString& inidatei)
    : datei_(std::in_place, inidatei, kAbschnitt) {}

std::optional<Fehler> Einstellungsablage::Lesefehler() const {
    return datei_ ? datei_->Lesefehler() : std::nullopt;
}

std::optional<std::string> Einstellungsablage::LiesWert(std::string_view schluessel) const {
    const QStringList texte =
        datei_ ? datei_->LiesTexte(schluessel) : registry_->value(Registryname(schluessel)).toStringList();
    if (texte.isEmpty()) return std::nullopt;
    // A text with a comma comes back as several; it was one when the user wrote it.
    return NachUtf8(texte.join(QLatin1Char(',')));
}

void Einstellungsablage::SchreibeWert(std::string_view schluessel, const std::string& text) {
    if (datei_) {
        datei_->SetzeTexte(schluessel, {AusUtf8(text)});
    } else {
        registry_->setValue(Registryname(schluessel), AusUtf8(text));
    }
}

void Einstellungsablage::SichereWerte() {
    const std::string text = "Die Einstellungen konnten nicht gespeichert werden";
    if (datei_) {
        try {
            datei_->SichereDatei();
        } catch (const Fehler& f) {
            throw Fehler(text + ". " + f.Text(), f.Datei());
        }
        return;
    }
    registry_->sync();
    if (registry_->status() != QSettings::NoError) throw Fehler(text + ".", NachUtf8(registry_->fileName()));
}

std::optional<std::filesystem::path> TavelinOrdner(const EinstellungsSpeicher& ablage) {
    constexpr const char* kAlias = "TAVELIN";
    if (qEnvironmentVariableIsSet(kAlias)) return NachPfad(qEnvironmentVariable(kAlias));
    const auto wert = ablage.LiesWert(kAlias);
    if (!wert || wert->empty()) return std::nullopt;
    return TextPfad(*wert);
}

}  // namespace zrw
