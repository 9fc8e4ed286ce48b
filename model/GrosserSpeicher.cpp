#include "model/GrosserSpeicher.h"

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
#ifdef MADV_HUGEPAGE
    // A page of which little is used would cost more memory than it saves time.
    const std::size_t seiten = (genutzt + kSeite / 2) / kSeite;
    if (seiten > 0) (void)::madvise(speicher, seiten * kSeite, MADV_HUGEPAGE);
#else
    (void)genutzt;
#endif
    return speicher;
}

void GibSpeicher(void* speicher, std::size_t bytes) noexcept {
    Gross(bytes) ? ::operator delete(speicher, kGrenze) : ::operator delete(speicher);
}

}  // namespace zrw
