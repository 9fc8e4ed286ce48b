#include "output/Uhr.h"

#include <array>
#include <cstdio>
#include <ctime>

namespace zrw {

std::string Systemuhr::DatumZeit() const {
    const std::time_t jetzt = std::time(nullptr);
    std::tm t{};
#ifdef _WIN32
    localtime_s(&t, &jetzt);
#else
    localtime_r(&jetzt, &t);
#endif
    std::array<char, 80> text{};
    std::snprintf(text.data(), text.size(), "%02d.%02d.%04d %02d:%02d:%02d", t.tm_mday, t.tm_mon + 1,
                  t.tm_year + 1900, t.tm_hour, t.tm_min, t.tm_sec);
    return text.data();
}

}  // namespace zrw
