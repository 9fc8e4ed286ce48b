#include "model/GrosserSpeicher.h"

#include <cstdint>
#include <new>

#ifdef __linux__
#include <sys/mman.h>
#endif

namespace zrw {
namespace {

constexpr std::size_t kSeite = std::size_t{2} << 20U;  ///< a large page
constexpr std::align_val_t kGrenze{kSeite};

bool Gross(std::size_t bytes) {
    return bytes >= kSeite / 2;
}

}  // namespace

void* NimmSpeicher(std::size_t bytes, std::size_t genutzt) {
    if (!Gross(bytes)) return ::operator new(bytes);
    // A whole number of pages: whoever comes next shall not lie in the last one.
    const std::size_t ganz = (bytes + kSeite - 1) / kSeite * kSeite;
    void* speicher = ::operator new(ganz, kGrenze);
    // A page of which little is used would cost more memory than it saves time.
    FasseInGrosseSeiten(speicher, (genutzt + kSeite / 2) / kSeite * kSeite);
    return speicher;
}

void FasseInGrosseSeiten([[maybe_unused]] void* speicher, [[maybe_unused]] std::size_t bytes) {
#ifdef MADV_HUGEPAGE
    const auto ort = reinterpret_cast<std::uintptr_t>(speicher);
    const std::uintptr_t anfang = (ort + kSeite - 1) / kSeite * kSeite;
    const std::uintptr_t ende = (ort + bytes) / kSeite * kSeite;
    if (ende > anfang)
        (void)::madvise(static_cast<std::byte*>(speicher) + (anfang - ort), ende - anfang, MADV_HUGEPAGE);
#endif
}

void GibSpeicher(void* speicher, std::size_t bytes) noexcept {
    Gross(bytes) ? ::operator delete(speicher, kGrenze) : ::operator delete(speicher);
}

}  // namespace zrw
