#include "input/Systemdateien.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <system_error>
#include <utility>

#include "model/Fehler.h"
#include "model/GrosserSpeicher.h"

#ifdef _WIN32
#include <io.h>
#include <process.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace zrw {
namespace {

namespace fs = std::filesystem;

struct Schliesser {
    void operator()(std::FILE* f) const { std::fclose(f); }
};
using Strom = std::unique_ptr<std::FILE, Schliesser>;

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

// The few calls that differ between the systems.
#ifdef _WIN32
Strom OeffneStrom(const fs::path& p, bool neu) {
    return Strom(_wfopen(p.c_str(), neu ? L"wbx" : L"rb"));
}
bool AufPlatte(std::FILE* f) {
    return _commit(_fileno(f)) == 0;
}
void OrdnerAufPlatte(const fs::path& /*ordner*/) {}
int Prozess() {
    return _getpid();
}
std::optional<Dateistand> StandVon(std::FILE* /*f*/, const fs::path& p) {
    std::error_code fehler;
    const std::uintmax_t groesse = fs::file_size(p, fehler);
    if (fehler) return std::nullopt;
    return Dateistand{groesse, std::int64_t{fs::last_write_time(p, fehler).time_since_epoch().count()}};
}
bool Schreibbar(const fs::path& p) {
    constexpr int kSchreiben = 2;
    return _waccess(p.c_str(), kSchreiben) == 0;
}
#else
Strom OeffneStrom(const fs::path& p, bool neu) {
    // Without blocking: the name may have become a pipe since it was looked at.
    const int fd = neu ? ::open(p.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666)
                       : ::open(p.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) return nullptr;
    std::FILE* f = ::fdopen(fd, neu ? "wb" : "rb");
    if (f == nullptr) ::close(fd);
    return Strom(f);
}
bool AufPlatte(std::FILE* f) {
    return ::fsync(::fileno(f)) == 0;
}
void OrdnerAufPlatte(const fs::path& ordner) {
    const int fd = ::open(ordner.empty() ? "." : ordner.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return;
    (void)::fsync(fd);  // the file is whole already; some file systems refuse this for folders
    ::close(fd);
}
int Prozess() {
    return ::getpid();
}
/// Of the file that is open, which a new one under its name does not touch.
std::optional<Dateistand> StandVon(std::FILE* f, const fs::path& /*p*/) {
    struct stat s {};
    if (::fstat(::fileno(f), &s) != 0) return std::nullopt;
    constexpr std::int64_t kNano = 1'000'000'000;
    return Dateistand{static_cast<std::uintmax_t>(s.st_size),
                      std::int64_t{s.st_mtim.tv_sec} * kNano + std::int64_t{s.st_mtim.tv_nsec}};
}
bool Schreibbar(const fs::path& p) {
    return ::access(p.c_str(), W_OK) == 0;
}
#endif

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
    std::error_code fehler;
    for (;;) {
        fs::path name = ziel.parent_path() / "zarwik.";
        name += std::to_string(Prozess()) + '-' + std::to_string(laufend++) + ".neu";
        if (!fs::exists(fs::symlink_status(name, fehler))) return name;
    }
}

/// Where writing to a name leads to. A link whose file is missing leads to where that file belongs: who has
/// put the link there wants the file in that place, and not the link replaced.
/// @throws Fehler for links in a circle
fs::path Linkziel(const fs::path& datei) {
    constexpr int kVerweise = 40;  // as many as the system follows
    std::error_code fehler;
    fs::path ziel = datei;
    for (int i = 0; fs::is_symlink(fs::symlink_status(ziel, fehler)); ++i) {
        if (i == kVerweise) WirfFehler(kNichtSchreiben, datei, ELOOP);
        ziel = ziel.parent_path() / fs::read_symlink(ziel, fehler);  // an absolute one stands for itself
    }
    const fs::path echt = fs::weakly_canonical(ziel, fehler);
    return fehler ? ziel : echt;
}

/// Writes a file beside its target and renames it.
class Schreiber final : public Dateischreiber {
  public:
    /// @param genannt the target as the user called it, for messages
    Schreiber(const fs::path& genannt, fs::path ziel, fs::path daneben)
        : genannt_(genannt), ziel_(std::move(ziel)), daneben_(std::move(daneben)) {
        strom_ = OeffneStrom(daneben_, true);
        if (strom_ == nullptr) WirfFehler(kNichtSchreiben, genannt_, errno);
        // Callers hand over large pieces; a second buffer would only copy them.
        std::setvbuf(strom_.get(), nullptr, _IONBF, 0);
        liegtDaneben_ = true;
    }
    ~Schreiber() override {
        strom_.reset();
        std::error_code fehler;
        if (liegtDaneben_) fs::remove(daneben_, fehler);
    }
    Schreiber(const Schreiber&) = delete;
    Schreiber& operator=(const Schreiber&) = delete;

    void SchreibeBytes(std::string_view bytes) override {
        if (std::fwrite(bytes.data(), 1, bytes.size(), strom_.get()) != bytes.size())
            WirfFehler(kNichtSchreiben, genannt_, errno);
    }
    void SichereDatei() override {
        if (!AufPlatte(strom_.get()) || std::fclose(strom_.release()) != 0)
            WirfFehler(kNichtSchreiben, genannt_, errno);
    }
    void ErsetzeZiel() override {
        std::error_code fehler;
        const fs::file_status alt = fs::status(ziel_, fehler);
        if (fs::exists(alt)) fs::permissions(daneben_, alt.permissions(), fehler);
        fs::rename(daneben_, ziel_, fehler);
        if (fehler) WirfFehler(kNichtSchreiben, genannt_, fehler.value());
        liegtDaneben_ = false;
        OrdnerAufPlatte(ziel_.parent_path());
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
    std::error_code fehler;
    if (fs::exists(ordner / name, fehler)) return ordner / name;
    const std::string gesucht = Klein(PfadText(name));
    fs::path gefunden;
    for (fs::directory_iterator i(ordner.empty() ? "." : ordner, fehler), ende; !fehler && i != ende;
         i.increment(fehler)) {
        if (Klein(PfadText(i->path().filename())) != gesucht) continue;
        if (gefunden.empty() || i->path() < gefunden) gefunden = i->path();
    }
    return gefunden;
}

/// @throws Oeffnungsfehler
Strom OeffneZumLesen(const fs::path& datei) {
    std::error_code fehler;
    const fs::file_status status = fs::status(datei, fehler);
    if (!fs::exists(status)) NichtZuOeffnen(datei, Grund(fehler ? fehler.value() : ENOENT));
    if (!fs::is_regular_file(status)) NichtZuOeffnen(datei, "keine gewöhnliche Datei");
    Strom strom = OeffneStrom(datei, false);
    if (strom == nullptr) NichtZuOeffnen(datei, Grund(errno));
    return strom;
}

}  // namespace

std::string Systemdateien::LiesDatei(const fs::path& datei, std::size_t grenze) const {
    const Strom strom = OeffneZumLesen(datei);
    const auto vorher = StandVon(strom.get(), datei);
    if (vorher && vorher->groesse > grenze) {
        throw Fehler("Die Datei ist mit " + std::to_string(vorher->groesse) + " Bytes zu groß (höchstens " +
                         std::to_string(grenze) + ").",
                     PfadText(datei));
    }
    std::string inhalt = Puffer(vorher ? static_cast<std::size_t>(vorher->groesse) : 0);
    inhalt.resize(std::fread(inhalt.data(), 1, inhalt.size(), strom.get()));
    if (std::ferror(strom.get()) != 0) WirfFehler("Kann Datei nicht lesen", datei, errno);
    // Another program may be writing it: part of the old content and part of the new one are no file.
    if (StandVon(strom.get(), datei) != vorher || !vorher || inhalt.size() != vorher->groesse) {
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
    std::error_code fehler;
    fs::create_directories(ordner, fehler);
    if (!fs::is_directory(ordner))
        WirfFehler("Kann Ordner nicht anlegen", ordner, fehler ? fehler.value() : ENOTDIR);
}

void Systemdateien::EntferneDatei(const fs::path& datei) {
    std::error_code fehler;
    fs::remove(datei, fehler);
    if (fehler) WirfFehler("Kann Datei nicht entfernen", datei, fehler.value());
}

std::unique_ptr<Dateischreiber> Systemdateien::BeginneDatei(const fs::path& datei) {
    std::error_code fehler;
    fs::path ziel = Linkziel(datei);
    if (fs::is_directory(ziel, fehler)) WirfFehler(kNichtSchreiben, datei, EISDIR);
    // Renaming onto a device or a pipe would take it away from the whole system.
    if (fs::exists(ziel, fehler) && !fs::is_regular_file(ziel, fehler))
        throw Fehler("Kann Datei nicht schreiben (keine gewöhnliche Datei).", PfadText(datei));
    // The folder would allow it; but somebody has protected the file.
    if (fs::exists(ziel, fehler) && !Schreibbar(ziel)) WirfFehler(kNichtSchreiben, datei, errno);
    fs::path daneben = NameDaneben(ziel, laufend_);
    return std::make_unique<Schreiber>(datei, std::move(ziel), std::move(daneben));
}

std::optional<Dateistand> Systemdateien::Stand(const fs::path& datei) const {
    std::error_code fehler;
    if (!fs::is_regular_file(datei, fehler)) return std::nullopt;
    const std::uintmax_t groesse = fs::file_size(datei, fehler);
    if (fehler) return std::nullopt;
    const auto zeit = fs::last_write_time(datei, fehler);
    if (fehler) return std::nullopt;
    return Dateistand{groesse, std::int64_t{zeit.time_since_epoch().count()}};
}

std::optional<fs::path> Systemdateien::FindeDatei(const fs::path& ordner, const std::string& name) const {
    std::error_code fehler;
    fs::path stelle = ordner;
    // Each folder of the name may be written in another case, too.
    for (const fs::path& teil : TextPfad(name)) {
        stelle = FindeEintrag(stelle, teil);
        if (stelle.empty()) return std::nullopt;
    }
    if (!fs::is_regular_file(stelle, fehler)) return std::nullopt;
    return stelle;
}

}  // namespace zrw
