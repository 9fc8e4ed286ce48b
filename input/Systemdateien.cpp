#include "input/Systemdateien.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>
#include <utility>

#include "model/Fehler.h"

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
    static constexpr std::array<std::pair<int, const char*>, 10> kGruende{{
        {ENOENT, "nicht vorhanden"},
        {EACCES, "keine Berechtigung"},
        {EPERM, "keine Berechtigung"},
        {EROFS, "Datenträger schreibgeschützt"},
        {ENOSPC, "Datenträger voll"},
        {EISDIR, "ist ein Ordner"},
        {ENOTDIR, "ein Teil des Pfades ist kein Ordner"},
        {ENAMETOOLONG, "Name zu lang"},
        {EIO, "Ein-/Ausgabefehler"},
        {EMFILE, "zu viele offene Dateien"},
    }};
    const auto* grund =
        std::find_if(kGruende.begin(), kGruende.end(), [&](const auto& g) { return g.first == nummer; });
    return grund != kGruende.end() ? grund->second : "Systemfehler " + std::to_string(nummer);
}

[[noreturn]] void Wirf(const std::string& text, const fs::path& datei, int nummer) {
    throw Fehler(text + " (" + Grund(nummer) + ").", PfadText(datei));
}

[[noreturn]] void NichtZuOeffnen(const fs::path& datei, const std::string& grund) {
    throw Oeffnungsfehler("Kann Datei nicht öffnen (" + grund + ").", PfadText(datei));
}

// The few calls that differ between the systems.
#ifdef _WIN32
Strom Oeffne(const fs::path& p, bool neu) {
    return Strom(_wfopen(p.c_str(), neu ? L"wbx" : L"rb"));
}
bool AufPlatte(std::FILE* f) {
    return _commit(_fileno(f)) == 0;
}
void OrdnerAufPlatte(const fs::path& /*ordner*/) {}
int Prozess() {
    return _getpid();
}
#else
Strom Oeffne(const fs::path& p, bool neu) {
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
    const int fd = ::open(ordner.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return;
    (void)::fsync(fd);  // the file is whole already; some file systems refuse this for folders
    ::close(fd);
}
int Prozess() {
    return ::getpid();
}
#endif

/// A name beside the target that no other running program and no second save uses.
fs::path NameDaneben(const fs::path& ziel, unsigned& laufend) {
    std::error_code fehler;
    for (;;) {
        fs::path name = ziel;
        name += '.' + std::to_string(Prozess()) + '-' + std::to_string(laufend++) + ".neu";
        if (!fs::exists(fs::symlink_status(name, fehler))) return name;
    }
}

void Schreibe(const fs::path& datei, std::string_view inhalt) {
    constexpr const char* kText = "Kann Datei nicht schreiben";
    Strom strom = Oeffne(datei, true);
    if (strom == nullptr) Wirf(kText, datei, errno);
    const bool ganz = std::fwrite(inhalt.data(), 1, inhalt.size(), strom.get()) == inhalt.size() &&
                      std::fflush(strom.get()) == 0 && AufPlatte(strom.get());
    const int nummer = errno;
    if (!ganz) Wirf(kText, datei, nummer);
    if (std::fclose(strom.release()) != 0) Wirf(kText, datei, errno);
}

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

}  // namespace

std::string Systemdateien::Lies(const fs::path& datei, std::size_t grenze) const {
    std::error_code fehler;
    const fs::file_status status = fs::status(datei, fehler);
    if (!fs::exists(status)) NichtZuOeffnen(datei, Grund(fehler ? fehler.value() : ENOENT));
    if (!fs::is_regular_file(status)) NichtZuOeffnen(datei, "keine gewöhnliche Datei");
    const Strom strom = Oeffne(datei, false);
    if (strom == nullptr) NichtZuOeffnen(datei, Grund(errno));
    const auto groesse = fs::file_size(datei, fehler);
    if (!fehler && groesse > grenze) {
        throw Fehler("Die Datei ist mit " + std::to_string(groesse) + " Bytes zu groß (höchstens " +
                         std::to_string(grenze) + ").",
                     PfadText(datei));
    }
    // The size is a hint only: the file may grow or shrink while it is read.
    std::string inhalt(fehler ? 0 : static_cast<std::size_t>(groesse), '\0');
    inhalt.resize(std::fread(inhalt.data(), 1, inhalt.size(), strom.get()));
    if (std::ferror(strom.get()) != 0) Wirf("Kann Datei nicht lesen", datei, errno);
    return inhalt;
}

void Systemdateien::Ersetze(const fs::path& datei, std::string_view inhalt) {
    std::error_code fehler;
    const fs::path echt = fs::weakly_canonical(datei, fehler);
    const fs::path ziel = fehler ? datei : echt;
    if (fs::is_directory(ziel, fehler))
        throw Fehler("Kann Datei nicht schreiben (ist ein Ordner).", PfadText(datei));
    // Renaming onto a device or a pipe would take it away from the whole system.
    if (fs::exists(ziel, fehler) && !fs::is_regular_file(ziel, fehler))
        throw Fehler("Kann Datei nicht schreiben (keine gewöhnliche Datei).", PfadText(datei));
    const fs::path daneben = NameDaneben(ziel, laufend_);
    try {
        Schreibe(daneben, inhalt);
        const fs::file_status alt = fs::status(ziel, fehler);
        if (fs::exists(alt)) fs::permissions(daneben, alt.permissions(), fehler);
        fs::rename(daneben, ziel, fehler);
        if (fehler) Wirf("Kann Datei nicht schreiben", datei, fehler.value());
    } catch (const Fehler& f) {
        fs::remove(daneben, fehler);
        throw Fehler(f.Text(), PfadText(datei));
    }
    OrdnerAufPlatte(ziel.parent_path());
}

std::optional<fs::path> Systemdateien::Finde(const fs::path& ordner, const std::string& name) const {
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
