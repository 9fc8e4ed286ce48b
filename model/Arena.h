// Storage for the nodes and figures of one list: never moved, never released one by one, all at once at the
// end.
#pragma once

#include <cstddef>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

namespace zrw {

template <class T>
class Arena {
    static_assert(std::is_trivially_destructible_v<T>, "the arena runs no destructors");

  public:
    template <class... Args>
    [[nodiscard]] T* Neu(Args&&... args) {
        if (frei_ == 0) NeuerBlock();
        T* platz = std::construct_at(naechster_, std::forward<Args>(args)...);
        ++naechster_;
        --frei_;
        ++anzahl_;
        return platz;
    }
    [[nodiscard]] std::size_t Anzahl() const { return anzahl_; }
    /// In the order of making.
    [[nodiscard]] T& operator[](std::size_t i) const {
        if (i < kErster) return bloecke_.front().get()[i];
        return bloecke_[(i - kErster) / kWeiterer + 1].get()[(i - kErster) % kWeiterer];
    }

  private:
    // Small networks stay small, large ones need few blocks.
    static constexpr std::size_t kErster = 64;
    static constexpr std::size_t kWeiterer = 4096;

    void NeuerBlock() {
        const std::size_t anzahl = bloecke_.empty() ? kErster : kWeiterer;
        bloecke_.push_back({std::allocator<T>().allocate(anzahl), Freigabe{anzahl}});
        naechster_ = bloecke_.back().get();
        frei_ = anzahl;
    }
    struct Freigabe {
        std::size_t anzahl;
        void operator()(T* p) const { std::allocator<T>().deallocate(p, anzahl); }
    };
    std::vector<std::unique_ptr<T, Freigabe>> bloecke_;
    T* naechster_ = nullptr;
    std::size_t frei_ = 0;
    std::size_t anzahl_ = 0;
};

}  // namespace zrw
