#include "input/Systemaufrufe.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <system_error>
#include <utility>

#include <fcntl.h>
#ifdef _WIN32
#include <io.h>
#include <process.h>
#include <windows.h>
#else
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace zrw::system {

namespace fs = std::filesystem;

#ifdef _WIN32
// The functions of the standard library fail there on names of more than 259 characters, take those of
// network folders for relative ones, and do not open files that another program will rename or remove.
namespace {

/// The kinds of error that users meet.
int AlsErrno(DWORD fehler) {
    static constexpr auto kFehler = std::to_array<std::pair<DWORD, int>>({
        {ERROR_FILE_NOT_FOUND, ENOENT},
        {ERROR_PATH_NOT_FOUND, ENOENT},
        {ERROR_INVALID_DRIVE, ENOENT},
        {ERROR_BAD_NETPATH, ENOENT},
        {ERROR_BAD_NET_NAME, ENOENT},
        {ERROR_BAD_PATHNAME, EINVAL},
        {ERROR_INVALID_NAME, EINVAL},
        {ERROR_ACCESS_DENIED, EACCES},
        {ERROR_SHARING_VIOLATION, EBUSY},
        {ERROR_LOCK_VIOLATION, EBUSY},
        {ERROR_WRITE_PROTECT, EROFS},
        {ERROR_DISK_FULL, ENOSPC},
        {ERROR_HANDLE_DISK_FULL, ENOSPC},
        {ERROR_FILE_EXISTS, EEXIST},
        {ERROR_ALREADY_EXISTS, EEXIST},
        {ERROR_DIRECTORY, ENOTDIR},
        {ERROR_FILENAME_EXCED_RANGE, ENAMETOOLONG},
        {ERROR_TOO_MANY_OPEN_FILES, EMFILE},
        {ERROR_CANT_RESOLVE_FILENAME, ELOOP},
    });
    const auto* zeile =
        std::find_if(kFehler.begin(), kFehler.end(), [&](const auto& z) { return z.first == fehler; });
    return zeile != kFehler.end() ? zeile->second : EIO;
}
int LetzterFehler() {
    return AlsErrno(GetLastError());
}

std::wstring Vollname(const fs::path& p) {
    const DWORD platz = GetFullPathNameW(p.c_str(), 0, nullptr, nullptr);
    std::wstring voll(platz, L'\0');
    voll.resize(platz != 0 ? GetFullPathNameW(p.c_str(), platz, voll.data(), nullptr) : 0);
    return voll.empty() ? p.native() : voll;
}

/// A name that the system takes at any length: it takes long ones only in full, and marked.
std::wstring Rufname(const fs::path& p) {
    constexpr std::size_t kKurz = 240;  // a folder must leave room for the short name of a file
    std::wstring voll = Vollname(p);
    if (voll.size() < kKurz || voll.starts_with(LR"(\\?\)") || voll.starts_with(LR"(\\.\)")) return voll;
    return voll.starts_with(LR"(\\)") ? LR"(\\?\UNC)" + voll.substr(1) : LR"(\\?\)" + voll;
}

class Griff {
  public:
    /// @param rechte 0 to ask about it only, which needs no right to read
    explicit Griff(const fs::path& p, DWORD rechte = 0, DWORD art = OPEN_EXISTING)
        : griff_(CreateFileW(Rufname(p).c_str(), rechte,
                             FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, art,
                             rechte == 0 ? FILE_FLAG_BACKUP_SEMANTICS : FILE_ATTRIBUTE_NORMAL, nullptr)),
          fehler_(griff_ == INVALID_HANDLE_VALUE ? LetzterFehler() : 0) {}
    ~Griff() {
        if (griff_ != INVALID_HANDLE_VALUE) CloseHandle(griff_);
    }
    Griff(const Griff&) = delete;
    Griff& operator=(const Griff&) = delete;

    [[nodiscard]] int Fehler() const { return fehler_; }
    [[nodiscard]] HANDLE Roh() const { return griff_; }
    [[nodiscard]] std::optional<BY_HANDLE_FILE_INFORMATION> Angaben() const {
        BY_HANDLE_FILE_INFORMATION angaben{};
        if (fehler_ != 0 || GetFileInformationByHandle(griff_, &angaben) == 0) return std::nullopt;
        return angaben;
    }
    /// Hands over to a stream.
    [[nodiscard]] Strom AlsStrom(const char* weise, int merkmale) {
        errno = fehler_;
        if (fehler_ != 0) return nullptr;
        const int fd = _open_osfhandle(reinterpret_cast<std::intptr_t>(griff_), merkmale);
        if (fd < 0) return nullptr;
        griff_ = INVALID_HANDLE_VALUE;
        std::FILE* f = _fdopen(fd, weise);
        if (f == nullptr) _close(fd);
        return Strom(f);
    }

  private:
    HANDLE griff_;
    int fehler_;
};

std::uint64_t AusHaelften(DWORD hoch, DWORD tief) {
    return std::uint64_t{hoch} << 32U | tief;
}

Dateistand AlsStand(const BY_HANDLE_FILE_INFORMATION& a) {
    return {AusHaelften(a.nFileSizeHigh, a.nFileSizeLow),
            static_cast<std::int64_t>(
                AusHaelften(a.ftLastWriteTime.dwHighDateTime, a.ftLastWriteTime.dwLowDateTime))};
}

/// Who may do what with a file, where that is not just what its folder says.
void GibRechteWeiter(const std::wstring& von, const std::wstring& an) {
    SetFileAttributesW(an.c_str(), GetFileAttributesW(von.c_str()) & ~DWORD{FILE_ATTRIBUTE_REPARSE_POINT});
    DWORD platz = 0;
    GetFileSecurityW(von.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &platz);
    std::vector<std::byte> rechte(platz);
    if (platz == 0 ||
        GetFileSecurityW(von.c_str(), DACL_SECURITY_INFORMATION, rechte.data(), platz, &platz) == 0)
        return;
    SECURITY_DESCRIPTOR_CONTROL merkmale = 0;
    DWORD fassung = 0;
    if (GetSecurityDescriptorControl(rechte.data(), &merkmale, &fassung) != 0 &&
        (merkmale & SE_DACL_PROTECTED) != 0) {
        SetFileSecurityW(an.c_str(), DACL_SECURITY_INFORMATION, rechte.data());
    }
}

}  // namespace

Befund Untersuche(const fs::path& p) {
    const Griff griff(p);
    if (griff.Fehler() != 0) return {Dateiart::Keine, griff.Fehler()};
    const auto angaben = griff.Angaben();
    // Names like NUL and COM1 are devices in every folder.
    if (GetFileType(griff.Roh()) != FILE_TYPE_DISK || !angaben) return {Dateiart::Andere, 0};
    const bool ordner = (angaben->dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    return {ordner ? Dateiart::Ordner : Dateiart::Gewoehnlich, 0};
}

Strom OeffneZumLesen(const fs::path& p) {
    return Griff(p, GENERIC_READ).AlsStrom("rb", _O_RDONLY | _O_BINARY | _O_NOINHERIT);
}

Strom LegeAn(const fs::path& p) {
    return Griff(p, GENERIC_WRITE, CREATE_NEW).AlsStrom("wb", _O_WRONLY | _O_BINARY | _O_NOINHERIT);
}

std::optional<Dateistand> StandVon(std::FILE* f) {
    BY_HANDLE_FILE_INFORMATION a{};
    if (GetFileInformationByHandle(reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(f))), &a) == 0)
        return std::nullopt;
    return AlsStand(a);
}

std::optional<Dateistand> StandVon(const fs::path& p) {
    const auto angaben = Griff(p).Angaben();
    if (!angaben) return std::nullopt;
    return AlsStand(*angaben);
}

bool AufPlatte(std::FILE* f) {
    return _commit(_fileno(f)) == 0;
}

int VerbotenesSchreiben(const fs::path& p) {
    const DWORD merkmale = GetFileAttributesW(Rufname(p).c_str());
    if (merkmale == INVALID_FILE_ATTRIBUTES) return LetzterFehler();
    if ((merkmale & FILE_ATTRIBUTE_READONLY) != 0) return EACCES;
    // Rights that somebody has set: opening changes nothing.
    const int fehler = Griff(p, GENERIC_WRITE).Fehler();
    return fehler == EBUSY ? 0 : fehler;  // whether it can be replaced shows when it is
}

fs::path Linkziel(const fs::path& p, int& fehler) {
    const DWORD merkmale = GetFileAttributesW(Rufname(p).c_str());
    if (merkmale == INVALID_FILE_ATTRIBUTES || (merkmale & FILE_ATTRIBUTE_REPARSE_POINT) == 0) return p;
    const Griff griff(p);
    fehler = griff.Fehler();
    const DWORD platz = fehler == 0 ? GetFinalPathNameByHandleW(griff.Roh(), nullptr, 0, 0) : 0;
    std::wstring ziel(platz, L'\0');
    ziel.resize(platz != 0 ? GetFinalPathNameByHandleW(griff.Roh(), ziel.data(), platz, 0) : 0);
    return ziel.empty() ? p : fs::path(ziel);
}

int Ersetze(const fs::path& neu, const fs::path& ziel) {
    const std::wstring von = Rufname(neu);
    const std::wstring nach = Rufname(ziel);
    if (GetFileAttributesW(nach.c_str()) != INVALID_FILE_ATTRIBUTES) GibRechteWeiter(nach, von);
    // A virus scanner, for one, looks at new files for a moment and keeps them open meanwhile.
    constexpr int kVersuche = 20;
    constexpr DWORD kPause = 25;  // [ms]
    int fehler = 0;
    for (int i = 0; i < kVersuche; ++i) {
        if (MoveFileExW(von.c_str(), nach.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0)
            return 0;
        fehler = LetzterFehler();
        if (fehler != EACCES && fehler != EBUSY) return fehler;
        Sleep(kPause);
    }
    return Untersuche(ziel).art == Dateiart::Gewoehnlich ? EBUSY : fehler;
}

int Entferne(const fs::path& p) {
    if (DeleteFileW(Rufname(p).c_str()) != 0) return 0;
    const int fehler = LetzterFehler();
    return fehler == ENOENT ? 0 : fehler;
}

int LegeOrdnerAn(const fs::path& p) {
    return CreateDirectoryW(Rufname(p).c_str(), nullptr) != 0 ? 0 : LetzterFehler();
}

int ErstelleOrdner(const fs::path& p) {
    const fs::path voll = Vollname(p);
    int fehler = LegeOrdnerAn(voll);
    if (fehler == 0) return 0;
    if (fehler == EEXIST) return Untersuche(voll).art == Dateiart::Ordner ? 0 : ENOTDIR;
    if (fehler != ENOENT || voll.parent_path() == voll) return fehler;
    fehler = ErstelleOrdner(voll.parent_path());
    return fehler != 0 ? fehler : LegeOrdnerAn(voll);
}

std::vector<fs::path> Eintraege(const fs::path& ordner) {
    std::vector<fs::path> namen;
    WIN32_FIND_DATAW fund{};
    const HANDLE suche = FindFirstFileW((Rufname(ordner.empty() ? "." : ordner) + LR"(\*)").c_str(), &fund);
    if (suche == INVALID_HANDLE_VALUE) return namen;
    do
        namen.emplace_back(fund.cFileName);
    while (FindNextFileW(suche, &fund) != 0);
    FindClose(suche);
    return namen;
}

fs::path VollerName(const fs::path& p) {
    return Vollname(p);
}

bool DieselbeDatei(const fs::path& a, const fs::path& b) {
    const Griff ga(a);  // both open: a number is only as long taken as its file is
    const Griff gb(b);
    const auto x = ga.Angaben();
    const auto y = gb.Angaben();
    return x && y && x->dwVolumeSerialNumber == y->dwVolumeSerialNumber &&
           x->nFileIndexHigh == y->nFileIndexHigh && x->nFileIndexLow == y->nFileIndexLow;
}

int Prozess() {
    return _getpid();
}

#else
Befund Untersuche(const fs::path& p) {
    std::error_code fehler;
    const fs::file_status status = fs::status(p, fehler);
    if (!fs::exists(status)) return {Dateiart::Keine, fehler ? fehler.value() : ENOENT};
    if (fs::is_directory(status)) return {Dateiart::Ordner, 0};
    return {fs::is_regular_file(status) ? Dateiart::Gewoehnlich : Dateiart::Andere, 0};
}

namespace {

Dateistand AlsStand(const struct stat& s) {
    constexpr std::int64_t kNano = 1'000'000'000;
    return {static_cast<std::uintmax_t>(s.st_size),
            std::int64_t{s.st_mtim.tv_sec} * kNano + std::int64_t{s.st_mtim.tv_nsec}};
}

Strom AlsStrom(int fd, const char* weise) {
    if (fd < 0) return nullptr;
    std::FILE* f = ::fdopen(fd, weise);
    if (f == nullptr) ::close(fd);
    return Strom(f);
}

}  // namespace

Strom OeffneZumLesen(const fs::path& p) {
    // Without blocking: the name may have become a pipe since it was looked at.
    return AlsStrom(::open(p.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC), "rb");
}

Strom LegeAn(const fs::path& p) {
    return AlsStrom(::open(p.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666), "wb");
}

std::optional<Dateistand> StandVon(std::FILE* f) {
    struct stat s {};
    if (::fstat(::fileno(f), &s) != 0) return std::nullopt;
    return AlsStand(s);
}

std::optional<Dateistand> StandVon(const fs::path& p) {
    struct stat s {};
    if (::stat(p.c_str(), &s) != 0) return std::nullopt;
    return AlsStand(s);
}

bool AufPlatte(std::FILE* f) {
    return ::fsync(::fileno(f)) == 0;
}

int VerbotenesSchreiben(const fs::path& p) {
    return ::access(p.c_str(), W_OK) == 0 ? 0 : errno;
}

fs::path Linkziel(const fs::path& p, int& fehler) {
    constexpr int kVerweise = 40;  // as many as the system follows
    std::error_code f;
    fs::path ziel = p;
    for (int i = 0; fs::is_symlink(fs::symlink_status(ziel, f)); ++i) {
        if (i == kVerweise) {
            fehler = ELOOP;
            return p;
        }
        ziel = ziel.parent_path() / fs::read_symlink(ziel, f);  // an absolute one stands for itself
    }
    const fs::path echt = fs::weakly_canonical(ziel, f);
    return f ? ziel : echt;
}

int Ersetze(const fs::path& neu, const fs::path& ziel) {
    std::error_code fehler;
    const fs::file_status alt = fs::status(ziel, fehler);
    if (fs::exists(alt)) fs::permissions(neu, alt.permissions(), fehler);
    fs::rename(neu, ziel, fehler);
    if (fehler) return fehler.value();
    const fs::path ordner = ziel.parent_path();
    const int fd = ::open(ordner.empty() ? "." : ordner.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return 0;
    (void)::fsync(fd);  // the file is whole already; some file systems refuse this for folders
    ::close(fd);
    return 0;
}

int Entferne(const fs::path& p) {
    std::error_code fehler;
    fs::remove(p, fehler);
    return fehler.value();
}

int LegeOrdnerAn(const fs::path& p) {
    std::error_code fehler;
    fs::create_directory(p, fehler);
    return fehler.value();
}

int ErstelleOrdner(const fs::path& p) {
    std::error_code fehler;
    fs::create_directories(p, fehler);
    if (fs::is_directory(p)) return 0;
    return fehler ? fehler.value() : ENOTDIR;
}

std::vector<fs::path> Eintraege(const fs::path& ordner) {
    std::vector<fs::path> namen;
    std::error_code fehler;
    for (fs::directory_iterator i(ordner.empty() ? "." : ordner, fehler), ende; !fehler && i != ende;
         i.increment(fehler))
        namen.push_back(i->path().filename());
    return namen;
}

fs::path VollerName(const fs::path& p) {
    std::error_code fehler;
    const fs::path voll = fs::absolute(p, fehler);
    fs::path glatt = voll.lexically_normal();
    // Behind a link to a folder, ".." leads elsewhere than its text says.
    return fs::exists(voll, fehler) && !fs::equivalent(voll, glatt, fehler) ? voll : glatt;
}

bool DieselbeDatei(const fs::path& a, const fs::path& b) {
    std::error_code fehler;
    return fs::equivalent(a, b, fehler);
}

int Prozess() {
    return ::getpid();
}
#endif

}  // namespace zrw::system
