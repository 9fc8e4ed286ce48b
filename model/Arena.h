// Storage for the nodes and figures of one list: never moved, never released one by one, all at once at the
// end.
#pragma once

#include <algorithm>
#include <bit>
#include <cassert>
#include <cstddef>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

#include "model/GrosserSpeicher.h"

namespace zrw {

template <class T>
class Arena {
    static_assert(std::is_trivially_destructible_v<T>, "the arena runs no destructors");

  public:
    template <class... Args>
    [[nodiscard]] T* Neu(Args&&... args) {
        if (frei_ == 0) NeuerBlock(Blocklaenge());
        T* platz = std::construct_at(naechster_, std::forward<Args>(args)...);
        ++naechster_;
        --frei_;
        ++anzahl_;
        return platz;
    }
    [[nodiscard]] std::size_t Anzahl() const { return anzahl_; }
    /// In the order of making.
    [[nodiscard]] T& operator[](std::size_t i) const {
        assert(i < anzahl_);
        const Block& block = bloecke_[static_cast<std::size_t>(std::bit_width(i >> erste_))];
        return block.speicher.get()[i - block.anfang];
    }
    /// Makes room for about so many in one piece, where there is nothing yet.
    void ErwarteKnoten(std::size_t anzahl) {
        if (!bloecke_.empty() || anzahl == 0) return;
        erste_ = std::max(erste_, static_cast<unsigned>(std::bit_width(anzahl - 1)));
        NeuerBlock(anzahl);
    }

  private:
    struct Freigabe {
        void operator()(T* p) const { GibSpeicher(p); }
    };
    struct Block {
        std::unique_ptr<T, Freigabe> speicher;
        std::size_t anfang;  ///< number of its first element
    };

    // The second block is as long as the first, each later one as long as all before it: small networks stay
    // small, large ones need few blocks, and the highest bit of a number tells the block.
    [[nodiscard]] std::size_t Blockanfang() const {
        return bloecke_.empty() ? 0 : std::size_t{1} << (erste_ + bloecke_.size() - 1);
    }
    [[nodiscard]] std::size_t Blocklaenge() const {
        return std::max(Blockanfang(), std::size_t{1} << erste_);
    }
    /// @param erwartet how many of its elements will come for all one knows
    void NeuerBlock(std::size_t erwartet) {
        const std::size_t laenge = Blocklaenge();
        auto* speicher = static_cast<T*>(NimmSpeicher(laenge * sizeof(T), erwartet * sizeof(T)));
        std::unique_ptr<T, Freigabe> besitz(speicher);
        bloecke_.push_back({std::move(besitz), Blockanfang()});
        naechster_ = speicher;
        frei_ = laenge;
    }

    std::vector<Block> bloecke_;
    unsigned erste_ = 6;  ///< length of the first block, as a power of two
    T* naechster_ = nullptr;
    std::size_t frei_ = 0;
    std::size_t anzahl_ = 0;
};

}  // namespace zrw
