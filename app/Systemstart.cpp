#include "app/Systemstart.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <shellapi.h>

#include <cstdio>
#include <cstdlib>

#include "model/Cp1252.h"

namespace zrw {
namespace {

UINT vorher = 0;  ///< the code page that the console had

bool FuehrtNirgendwohin(DWORD strom) {
    const HANDLE griff = GetStdHandle(strom);
    return griff == nullptr || griff == INVALID_HANDLE_VALUE || GetFileType(griff) == FILE_TYPE_UNKNOWN;
}

}  // namespace

std::vector<std::string> Aufrufworte(int /*argc*/, char** /*argv*/) {
    // What `main` gets lacks every character outside the code page of the system.
    int anzahl = 0;
    wchar_t** breite = CommandLineToArgvW(GetCommandLineW(), &anzahl);
    std::vector<std::string> worte;
    for (int i = 1; i < anzahl; ++i)
        worte.push_back(BreitNachUtf8(breite[i]));
    LocalFree(breite);
    return worte;
}

void VerbindeKonsole() {
    const bool ausgabe = FuehrtNirgendwohin(STD_OUTPUT_HANDLE);
    const bool meldungen = FuehrtNirgendwohin(STD_ERROR_HANDLE);
    if ((ausgabe || meldungen) && AttachConsole(ATTACH_PARENT_PROCESS) != 0) {
        if (ausgabe) (void)std::freopen("CONOUT$", "w", stdout);
        if (meldungen) (void)std::freopen("CONOUT$", "w", stderr);
    }
    vorher = GetConsoleOutputCP();
    if (vorher == 0) return;  // there is none
    SetConsoleOutputCP(CP_UTF8);
    std::atexit([] {
        (void)std::fflush(nullptr);
        SetConsoleOutputCP(vorher);
    });
    // Byte by byte, as streams go to a console otherwise, half a character is shown as two; as text they
    // would be converted once more.
    constexpr std::size_t kZeile = 4096;
    for (std::FILE* strom : {stdout, stderr}) {
        if (_isatty(_fileno(strom)) == 0) continue;
        (void)_setmode(_fileno(strom), _O_BINARY);
        (void)std::setvbuf(strom, nullptr, _IOFBF, kZeile);
    }
}

}  // namespace zrw

#else
#include <QString>

#include "ui/Umwandlung.h"

namespace zrw {

std::vector<std::string> Aufrufworte(int argc, char** argv) {
    std::vector<std::string> worte;
    for (int i = 1; i < argc; ++i)
        worte.push_back(NachUtf8(QString::fromLocal8Bit(argv[i])));
    return worte;
}

void VerbindeKonsole() {}

}  // namespace zrw
#endif
