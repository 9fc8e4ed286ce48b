#include "input/Systemdateien.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <utility>

#include "input/Systemaufrufe.h"
#include "model/Fehler.h"
#include "model/GrosserSpeicher.h"

namespace zrw {
namespace {

namespace fs = std::filesystem;

using system::Dateiart;
using system::Strom;

/// The system's own texts come in the language of the system; these are the ones that users meet.
std::string Grund(int nummer) {
    static constexpr auto kGruende = std::to_array<std::pair<int, const char*>>({
        {ENOENT, "nicht vorhanden"},
        {EACCES, "keine Berechtigung"},
        {EPERM, "keine Berechtigung"},
        {EROFS, "Datenträger schreibgeschützt"},
        {ENOSPC, "Datenträger voll"},
        {EFBIG, "Datei zu groß"},
        {EISDIR, "ist ein Ordner"},
        {ENOTDIR, "ein Teil des Pfades ist kein Ordner"},
        {ENAMETOOLONG, "Name zu lang"},
        {EIO, "Ein-/Ausgabefehler"},
        {ELOOP, "Verweise im Kreis"},
        {EMFILE, "zu viele offene Dateien"},
        {EBUSY, "von einem anderen Programm benutzt"},
        {EINVAL, "unzulässiger Name"},
    });
    const auto* grund =
        std::find_if(kGruende.begin(), kGruende.end(), [&](const auto& g) { return g.first == nummer; });
    return grund != kGruende.end() ? grund->second : "Systemfehler " + std::to_string(nummer);
}

[[noreturn]] void WirfFehler(const std::string& text, const fs::path& datei, int nummer) {
    throw Fehler(text + " (" + Grund(nummer) + ").", PfadText(datei));
}

constexpr const char* kNichtSchreiben = "Kann Datei nicht schreiben";

[[noreturn]] void NichtZuOeffnen(const fs::path& datei, const std::string& grund) {
    throw Oeffnungsfehler(grund, PfadText(datei));
}

std::string Puffer(std::size_t groesse) {
    std::string puffer;
    puffer.reserve(groesse);
    FasseInGrosseSeiten(puffer.data(), groesse);
    puffer.resize(groesse);
    return puffer;
}

/// A name beside the target that no other running program and no second save uses. Short: the target's own
/// may have all the characters that a name can have.
fs::path NameDaneben(const fs::path& ziel, unsigned& laufend) {
    fs::path name = ziel.parent_path() / "zarwik.";
    name += std::to_string(system::Prozess()) + '-' + std::to_string(laufend++) + ".neu";
    return name;
}

/// What writing to a name replaces. @throws Fehler for links in a circle
fs::path Schreibziel(const fs::path& datei) {
    int fehler = 0;
    fs::path ziel = system::Linkziel(datei, fehler);
    if (fehler != 0) WirfFehler(kNichtSchreiben, datei, fehler);
    return ziel;
}

/// Writes a file beside its target and renames it.
class Schreiber final : public Dateischreiber {
  public:
    /// @param genannt the target as the user called it, for messages
    Schreiber(const fs::path& genannt, fs::path ziel, unsigned& laufend)
        : genannt_(genannt), ziel_(std::move(ziel)) {
        do {
            daneben_ = NameDaneben(ziel_, laufend);
            strom_ = system::LegeAn(daneben_);
        } while (strom_ == nullptr && errno == EEXIST);  // left by a program of this number that was killed
        if (strom_ == nullptr) WirfFehler(kNichtSchreiben, genannt_, errno);
        // Callers hand over large pieces; a second buffer would only copy them.
        std::setvbuf(strom_.get(), nullptr, _IONBF, 0);
        liegtDaneben_ = true;
    }
    ~Schreiber() override {
        strom_.reset();
        if (liegtDaneben_) (void)system::Entferne(daneben_);
    }
    Schreiber(const Schreiber&) = delete;
    Schreiber& operator=(const Schreiber&) = delete;

    void SchreibeBytes(std::string_view bytes) override {
        if (std::fwrite(bytes.data(), 1, bytes.size(), strom_.get()) != bytes.size())
            WirfFehler(kNichtSchreiben, genannt_, errno);
    }
    void SichereDatei() override {
        if (!system::AufPlatte(strom_.get()) || std::fclose(strom_.release()) != 0)
            WirfFehler(kNichtSchreiben, genannt_, errno);
    }
    void ErsetzeZiel() override {
        if (const int fehler = system::Ersetze(daneben_, ziel_))
            WirfFehler(kNichtSchreiben, genannt_, fehler);
        liegtDaneben_ = false;
    }

  private:
    fs::path genannt_;
    fs::path ziel_;
    fs::path daneben_;
    Strom strom_;
    bool liegtDaneben_ = false;
};

/// Lower case of the letters that German file names use: ASCII and the Latin-1 letters, UTF-8.
std::string Klein(std::string text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto b = static_cast<unsigned char>(text[i]);
        const bool umlaut = i > 0 && text[i - 1] == '\xC3' && b >= 0x80 && b <= 0x9E && b != 0x97;
        if ((b >= 'A' && b <= 'Z') || umlaut) text[i] = static_cast<char>(b + 0x20);
    }
    return text;
}

/// The entry of a folder with this name in any case; of several the first in the alphabet.
fs::path FindeEintrag(const fs::path& ordner, const fs::path& name) {
    if (system::Untersuche(ordner / name).art != Dateiart::Keine) return ordner / name;
    const std::string gesucht = Klein(PfadText(name));
    fs::path gefunden;
    for (const fs::path& eintrag : system::Eintraege(ordner)) {
        if (Klein(PfadText(eintrag)) == gesucht && (gefunden.empty() || eintrag < gefunden))
            gefunden = eintrag;
    }
    return gefunden.empty() ? gefunden : ordner / gefunden;
}

/// @throws Oeffnungsfehler
Strom OeffneZumLesen(const fs::path& datei) {
    const system::Befund befund = system::Untersuche(datei);
    if (befund.art == Dateiart::Keine) NichtZuOeffnen(datei, Grund(befund.fehler));
    if (befund.art != Dateiart::Gewoehnlich) NichtZuOeffnen(datei, "keine gewöhnliche Datei");
    Strom strom = system::OeffneZumLesen(datei);
    if (strom == nullptr) NichtZuOeffnen(datei, Grund(errno));
    return strom;
}

}  // namespace

std::string Systemdateien::LiesDatei(const fs::path& datei, std::size_t grenze) const {
    const Strom strom = OeffneZumLesen(datei);
    const auto vorher = system::StandVon(strom.get());
    if (vorher && vorher->groesse > grenze) {
        throw Fehler("Die Datei ist mit " + std::to_string(vorher->groesse) + " Bytes zu groß (höchstens " +
                         std::to_string(grenze) + ").",
                     PfadText(datei));
    }
    std::string inhalt = Puffer(vorher ? static_cast<std::size_t>(vorher->groesse) : 0);
    inhalt.resize(std::fread(inhalt.data(), 1, inhalt.size(), strom.get()));
    if (std::ferror(strom.get()) != 0) WirfFehler("Kann Datei nicht lesen", datei, errno);
    // Another program may be writing it: part of the old content and part of the new one are no file.
    if (system::StandVon(strom.get()) != vorher || !vorher || inhalt.size() != vorher->groesse) {
        throw Fehler("Die Datei wurde während des Lesens geändert. Bitte noch einmal öffnen.",
                     PfadText(datei));
    }
    return inhalt;
}

std::string Systemdateien::LiesAnfang(const fs::path& datei, std::size_t anzahl) const {
    const Strom strom = OeffneZumLesen(datei);
    std::string inhalt(anzahl, '\0');
    inhalt.resize(std::fread(inhalt.data(), 1, inhalt.size(), strom.get()));
    if (std::ferror(strom.get()) != 0) WirfFehler("Kann Datei nicht lesen", datei, errno);
    return inhalt;
}

void Systemdateien::ErstelleOrdner(const fs::path& ordner) {
    if (const int fehler = system::ErstelleOrdner(ordner))
        WirfFehler("Kann Ordner nicht anlegen", ordner, fehler);
}

void Systemdateien::EntferneDatei(const fs::path& datei) {
    if (const int fehler = system::Entferne(datei)) WirfFehler("Kann Datei nicht entfernen", datei, fehler);
}

std::unique_ptr<Dateischreiber> Systemdateien::BeginneDatei(const fs::path& datei) {
    fs::path ziel = Schreibziel(datei);
    const Dateiart art = system::Untersuche(ziel).art;
    if (art == Dateiart::Ordner) WirfFehler(kNichtSchreiben, datei, EISDIR);
    // Renaming onto a device or a pipe would take it away from the whole system.
    if (art == Dateiart::Andere)
        throw Fehler("Kann Datei nicht schreiben (keine gewöhnliche Datei).", PfadText(datei));
    // The folder would allow it; but somebody has protected the file.
    if (art == Dateiart::Gewoehnlich) {
        if (const int fehler = system::VerbotenesSchreiben(ziel)) WirfFehler(kNichtSchreiben, datei, fehler);
    }
    return std::make_unique<Schreiber>(datei, std::move(ziel), laufend_);
}

std::optional<Dateistand> Systemdateien::Stand(const fs::path& datei) const {
    if (system::Untersuche(datei).art != Dateiart::Gewoehnlich) return std::nullopt;
    return system::StandVon(datei);
}

std::optional<fs::path> Systemdateien::FindeDatei(const fs::path& ordner, const std::string& name) const {
    // On a network these begin with the name of a computer, which is no folder that could be looked into.
    const fs::path ganz = TextPfad(name);
    if (name.starts_with("//") && system::Untersuche(ganz).art == Dateiart::Gewoehnlich) return ganz;
    fs::path stelle = ordner;
    // Each folder of the name may be written in another case, too.
    for (const fs::path& teil : ganz) {
        stelle = FindeEintrag(stelle, teil);
        if (stelle.empty()) return std::nullopt;
    }
    if (system::Untersuche(stelle).art != Dateiart::Gewoehnlich) return std::nullopt;
    return stelle;
}

void LegeOrdnerAn(const fs::path& ordner) {
    (void)system::LegeOrdnerAn(ordner);
}

fs::path VollerName(const fs::path& datei) {
    return system::VollerName(datei);
}

bool DieselbeDatei(const fs::path& a, const fs::path& b) {
    return system::DieselbeDatei(a, b);
}

}  // namespace zrw
