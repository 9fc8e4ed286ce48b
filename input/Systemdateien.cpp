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

#ifdef _WIN32
#include <io.h>
#include <process.h>
#else
#include <fcntl.h>
#include <sys/mman.h>
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
    static constexpr std::array<std::pair<int, const char*>, 11> kGruende{{
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
    const int fd = ::open(ordner.empty() ? "." : ordner.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return;
    (void)::fsync(fd);  // the file is whole already; some file systems refuse this for folders
    ::close(fd);
}
int Prozess() {
    return ::getpid();
}
#endif

/// A buffer of so many bytes in few large pages where the system has them: to touch four kilobytes at a time
/// takes a multiple of the time that reading takes.
std::string Puffer(std::size_t groesse) {
    std::string puffer;
    puffer.reserve(groesse);
#ifdef MADV_HUGEPAGE
    constexpr std::uintptr_t kGrosseSeite = std::uintptr_t{2} << 20U;
    const auto anfang = (reinterpret_cast<std::uintptr_t>(puffer.data()) + kGrosseSeite - 1) / kGrosseSeite;
    const auto ende = (reinterpret_cast<std::uintptr_t>(puffer.data()) + groesse) / kGrosseSeite;
    if (ende > anfang) {
        (void)::madvise(reinterpret_cast<void*>(anfang * kGrosseSeite), (ende - anfang) * kGrosseSeite,
                        MADV_HUGEPAGE);
    }
#endif
    puffer.resize(groesse);
    return puffer;
}

/// A name beside the target that no other running program and no second save uses.
fs::path NameDaneben(const fs::path& ziel, unsigned& laufend) {
    std::error_code fehler;
    for (;;) {
        fs::path name = ziel;
        name += '.' + std::to_string(Prozess()) + '-' + std::to_string(laufend++) + ".neu";
        if (!fs::exists(fs::symlink_status(name, fehler))) return name;
    }
}

/// Writes a file beside its target and renames it.
class Schreiber final : public Dateischreiber {
  public:
    /// @param genannt the target as the user called it, for messages
    Schreiber(const fs::path& genannt, fs::path ziel, fs::path daneben)
        : genannt_(genannt), ziel_(std::move(ziel)), daneben_(std::move(daneben)) {
        strom_ = Oeffne(daneben_, true);
        if (strom_ == nullptr) Wirf(kText, genannt_, errno);
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

    void Schreibe(std::string_view bytes) override {
        if (std::fwrite(bytes.data(), 1, bytes.size(), strom_.get()) != bytes.size())
            Wirf(kText, genannt_, errno);
    }
    void Sichere() override {
        if (!AufPlatte(strom_.get()) || std::fclose(strom_.release()) != 0) Wirf(kText, genannt_, errno);
    }
    void Uebernimm() override {
        std::error_code fehler;
        const fs::file_status alt = fs::status(ziel_, fehler);
        if (fs::exists(alt)) fs::permissions(daneben_, alt.permissions(), fehler);
        fs::rename(daneben_, ziel_, fehler);
        if (fehler) Wirf(kText, genannt_, fehler.value());
        liegtDaneben_ = false;
        OrdnerAufPlatte(ziel_.parent_path());
    }

  private:
    static constexpr const char* kText = "Kann Datei nicht schreiben";
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
    std::string inhalt = Puffer(fehler ? 0 : static_cast<std::size_t>(groesse));
    inhalt.resize(std::fread(inhalt.data(), 1, inhalt.size(), strom.get()));
    if (std::ferror(strom.get()) != 0) Wirf("Kann Datei nicht lesen", datei, errno);
    return inhalt;
}

std::unique_ptr<Dateischreiber> Systemdateien::Beginne(const fs::path& datei) {
    std::error_code fehler;
    const fs::path echt = fs::weakly_canonical(datei, fehler);
    fs::path ziel = fehler ? datei : echt;
    if (fs::is_directory(ziel, fehler))
        throw Fehler("Kann Datei nicht schreiben (ist ein Ordner).", PfadText(datei));
    // Renaming onto a device or a pipe would take it away from the whole system.
    if (fs::exists(ziel, fehler) && !fs::is_regular_file(ziel, fehler))
        throw Fehler("Kann Datei nicht schreiben (keine gewöhnliche Datei).", PfadText(datei));
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
