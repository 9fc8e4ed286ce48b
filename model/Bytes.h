// Little-endian put and get on a byte buffer: every binary format goes through these two classes, so that no
// struct is ever dumped and no read leaves its buffer.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace zrw {

/// Appends values to a growing buffer.
class ByteSchreiber {
  public:
    void U8(std::uint8_t v) { puffer_.push_back(static_cast<char>(v)); }
    void U16(std::uint16_t v) { Setze(v, 2); }
    void U32(std::uint32_t v) { Setze(v, 4); }
    void I32(std::int32_t v) { Setze(static_cast<std::uint32_t>(v), 4); }
    void I64(std::int64_t v) { Setze(static_cast<std::uint64_t>(v), 8); }
    void F64(double v) { Setze(std::bit_cast<std::uint64_t>(v), 8); }
    /// The text and then zeros up to `breite` bytes; a longer text is cut.
    void Text(std::string_view text, std::size_t breite) {
        const std::string_view gekuerzt = text.substr(0, breite);
        puffer_.append(gekuerzt);
        puffer_.append(breite - gekuerzt.size(), '\0');
    }
    void Reserviere(std::size_t bytes) { puffer_.reserve(bytes); }

    [[nodiscard]] std::string_view Inhalt() const { return puffer_; }

  private:
    void Setze(std::uint64_t v, unsigned bytes) {
        char b[8];
        for (unsigned i = 0; i < bytes; ++i)
            b[i] = static_cast<char>((v >> (8U * i)) & 0xFFU);
        puffer_.append(b, bytes);
    }
    std::string puffer_;
};

/// Reads values from a buffer. Reading past the end yields zeros and clears `Gut()`.
class ByteLeser {
  public:
    explicit ByteLeser(std::string_view inhalt) : inhalt_(inhalt) {}

    [[nodiscard]] std::uint8_t U8() { return static_cast<std::uint8_t>(Hole(1)); }
    [[nodiscard]] std::uint16_t U16() { return static_cast<std::uint16_t>(Hole(2)); }
    [[nodiscard]] std::uint32_t U32() { return static_cast<std::uint32_t>(Hole(4)); }
    [[nodiscard]] std::int32_t I32() { return static_cast<std::int32_t>(U32()); }
    [[nodiscard]] std::int64_t I64() { return static_cast<std::int64_t>(Hole(8)); }
    [[nodiscard]] double F64() { return std::bit_cast<double>(Hole(8)); }
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
    [[nodiscard]] std::uint64_t Hole(unsigned bytes) {
        if (bytes > Rest()) {
            Ende();
            return 0;
        }
        std::uint64_t v = 0;
        for (unsigned i = 0; i < bytes; ++i) {
            v |= static_cast<std::uint64_t>(static_cast<unsigned char>(inhalt_[stelle_ + i])) << (8U * i);
        }
        stelle_ += bytes;
        return v;
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
