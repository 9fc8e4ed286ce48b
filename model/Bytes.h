// Little-endian put and get on a byte buffer: every binary format goes through these two classes, so that no
// struct is ever dumped and no read leaves its buffer.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace zrw {

/// The bytes of a value from this machine's order into little-endian, or back.
template <class T>
[[nodiscard]] T KleinesEndeZuerst(T v) {
    if constexpr (std::endian::native == std::endian::little || sizeof(T) == 1) return v;
    auto bytes = std::bit_cast<std::array<char, sizeof(T)>>(v);
    std::reverse(bytes.begin(), bytes.end());
    return std::bit_cast<T>(bytes);
}

/// Appends values to a growing buffer.
class ByteSchreiber {
  public:
    void U8(std::uint8_t v) { SetzeZahl(v); }
    void U16(std::uint16_t v) { SetzeZahl(v); }
    void U32(std::uint32_t v) { SetzeZahl(v); }
    void I32(std::int32_t v) { SetzeZahl(v); }
    void I64(std::int64_t v) { SetzeZahl(v); }
    void F64(double v) { SetzeZahl(std::bit_cast<std::uint64_t>(v)); }
    /// The text and then zeros up to `breite` bytes; a longer text is cut.
    void Text(std::string_view text, std::size_t breite) {
        const std::string_view gekuerzt = text.substr(0, breite);
        char* platz = Platz(breite);
        std::fill(std::copy(gekuerzt.begin(), gekuerzt.end(), platz), platz + breite, '\0');
    }
    void ReserviereBytes(std::size_t bytes) {
        if (puffer_.size() < bytes) puffer_.resize(bytes);
    }

    [[nodiscard]] std::string_view Inhalt() const { return {puffer_.data(), laenge_}; }

  private:
    template <class T>
    void SetzeZahl(T v) {
        v = KleinesEndeZuerst(v);
        std::memcpy(Platz(sizeof v), &v, sizeof v);
    }
    /// Room for so many bytes behind what is there; it counts from now on.
    [[nodiscard]] char* Platz(std::size_t bytes) {
        if (puffer_.size() - laenge_ < bytes) VergroesserePuffer(bytes);
        char* platz = puffer_.data() + laenge_;
        laenge_ += bytes;
        return platz;
    }
    /// Not in line: it is rare, and `Platz` stays short enough to be.
    void VergroesserePuffer(std::size_t bytes);

    std::string puffer_;  ///< appending to a text would cost more than the bytes
    std::size_t laenge_ = 0;
};

/// Reads values from a buffer. Reading past the end yields zeros and clears `Gut()`.
class ByteLeser {
  public:
    explicit ByteLeser(std::string_view inhalt) : inhalt_(inhalt) {}

    [[nodiscard]] std::uint8_t U8() { return HoleZahl<std::uint8_t>(); }
    [[nodiscard]] std::uint16_t U16() { return HoleZahl<std::uint16_t>(); }
    [[nodiscard]] std::uint32_t U32() { return HoleZahl<std::uint32_t>(); }
    [[nodiscard]] std::int32_t I32() { return HoleZahl<std::int32_t>(); }
    [[nodiscard]] std::int64_t I64() { return HoleZahl<std::int64_t>(); }
    [[nodiscard]] double F64() { return std::bit_cast<double>(HoleZahl<std::uint64_t>()); }
    [[nodiscard]] bool Bool() { return U8() != 0; }
    [[nodiscard]] std::string_view Text(std::size_t breite) {
        if (breite > Rest()) {
            Ende();
            return {};
        }
        const std::string_view t = inhalt_.substr(stelle_, breite);
        stelle_ += breite;
        return t;
    }

    [[nodiscard]] std::size_t Rest() const { return inhalt_.size() - stelle_; }
    [[nodiscard]] bool Gut() const { return gut_; }

  private:
    template <class T>
    [[nodiscard]] T HoleZahl() {
        T v{};
        if (sizeof v > Rest()) {
            Ende();
            return v;
        }
        std::memcpy(&v, inhalt_.data() + stelle_, sizeof v);
        stelle_ += sizeof v;
        return KleinesEndeZuerst(v);
    }
    void Ende() {
        gut_ = false;
        stelle_ = inhalt_.size();
    }

    std::string_view inhalt_;
    std::size_t stelle_ = 0;
    bool gut_ = true;
};

}  // namespace zrw
