#include "model/GrosserSpeicher.h"

#include <cstdint>
#include <cstdlib>
#include <new>

#ifdef __linux__
#include <sys/mman.h>
#endif

namespace zrw {
namespace {

[[maybe_unused]] constexpr std::size_t kSeite = std::size_t{2} << 20U;  ///< a huge page

void* NimmBytes(std::size_t bytes) {
#ifdef MADV_HUGEPAGE
    // A whole number of pages: whoever comes next shall not lie in the last one.
    if (bytes >= kSeite / 2) return std::aligned_alloc(kSeite, (bytes + kSeite - 1) / kSeite * kSeite);
#endif
    return std::malloc(bytes != 0 ? bytes : 1);
}

}  // namespace

void* NimmSpeicher(std::size_t bytes, [[maybe_unused]] std::size_t genutzt) {
    void* speicher = NimmBytes(bytes);
    if (speicher == nullptr) throw std::bad_alloc();
#ifdef MADV_HUGEPAGE
    // A page of which little is used would cost more memory than it saves time.
    if (bytes >= kSeite / 2) FasseInGrosseSeiten(speicher, (genutzt + kSeite / 2) / kSeite * kSeite);
#endif
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

void GibSpeicher(void* speicher) noexcept {
    std::free(speicher);
}

}  // namespace zrw
