// Memory for what grows large: in huge pages where the system has them. Page faults of four kilobytes each
// take a multiple of the time that filling the memory takes.
#pragma once

#include <cstddef>

namespace zrw {

/// Memory for any type. @throws std::bad_alloc @param genutzt how many of the bytes are expected to be
/// written; the rest costs nothing before it is
[[nodiscard]] void* NimmSpeicher(std::size_t bytes, std::size_t genutzt);
/// Asks for huge pages behind memory that is already there, as far as it covers whole ones.
void FasseInGrosseSeiten(void* speicher, std::size_t bytes);
void GibSpeicher(void* speicher) noexcept;

/// The same for the containers of the standard library.
template <class T>
struct Grossverteiler {
    using value_type = T;

    Grossverteiler() = default;
    template <class U>
    Grossverteiler(const Grossverteiler<U>& /*anderer*/) {}  // NOLINT(google-explicit-constructor)

    [[nodiscard]] T* allocate(std::size_t anzahl) {
        return static_cast<T*>(NimmSpeicher(anzahl * sizeof(T), anzahl * sizeof(T)));
    }
    void deallocate(T* speicher, std::size_t /*anzahl*/) noexcept { GibSpeicher(speicher); }
    friend bool operator==(Grossverteiler, Grossverteiler) { return true; }
};

}  // namespace zrw
