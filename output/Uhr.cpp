#include "output/Uhr.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <ctime>
#endif

#include <array>
#include <cstdio>

namespace zrw {
namespace {

#ifdef _WIN32
/// Day, month, year, hour, minute, second. The C library would go by a variable TZ that programs from
/// elsewhere set, and does not understand what they write into it.
std::array<int, 6> Teile() {
    SYSTEMTIME t{};
    GetLocalTime(&t);
    return {t.wDay, t.wMonth, t.wYear, t.wHour, t.wMinute, t.wSecond};
}
#else
/// Day, month, year, hour, minute, second.
std::array<int, 6> Teile() {
    const std::time_t jetzt = std::time(nullptr);
    std::tm t{};
    localtime_r(&jetzt, &t);
    return {t.tm_mday, t.tm_mon + 1, t.tm_year + 1900, t.tm_hour, t.tm_min, t.tm_sec};
}
#endif

}  // namespace

std::string Systemuhr::DatumZeit() const {
    const auto [tag, monat, jahr, stunde, minute, sekunde] = Teile();
    std::array<char, 80> text{};
    std::snprintf(text.data(), text.size(), "%02d.%02d.%04d %02d:%02d:%02d", tag, monat, jahr, stunde, minute,
                  sekunde);
    return text.data();
}

}  // namespace zrw
