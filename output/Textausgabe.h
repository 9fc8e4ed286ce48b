// A text file on its way to the disk, in large pieces: whatever its size, it takes the memory of one piece.
#pragma once

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "model/Dateien.h"

namespace zrw {

class Textausgabe {
  public:
    explicit Textausgabe(std::unique_ptr<Dateischreiber> datei) : datei_(std::move(datei)) {
        stueck_.reserve(kStueck + kZugabe);
    }

    /// @throws Fehler where a full piece cannot be written
    void Nimm(std::string_view text) {
        stueck_ += text;
        if (stueck_.size() >= kStueck) Weiter();
    }
    /// Plain decimal integer.
    void Nimm(std::int64_t zahl) {
        std::array<char, 20> ziffern{};  // the lower end of 64 bits with its sign
        const char* ende = std::to_chars(ziffern.data(), ziffern.data() + ziffern.size(), zahl).ptr;
        Nimm(std::string_view(ziffern.data(), static_cast<std::size_t>(ende - ziffern.data())));
    }
    /// Text of the network. A control character would break the line or the label that it stands in, so it
    /// becomes a blank; damaged picture files hold such numbers.
    void NimmNetztext(std::string_view text) {
        for (const char c : text)
            Nimm(static_cast<unsigned char>(c) < 0x20 ? std::string_view(" ") : std::string_view(&c, 1));
    }

    /// Brings all of it onto the disk, still beside the file that it replaces. @throws Fehler
    void Sichere() {
        Weiter();
        datei_->Sichere();
    }
    /// Puts the file in its place, after `Sichere`. @throws Fehler
    void Uebernimm() { datei_->Uebernimm(); }

  private:
    static constexpr std::size_t kStueck = std::size_t{1} << 16U;
    static constexpr std::size_t kZugabe = 512;  // the longest text that comes in one go

    void Weiter() {
        datei_->Schreibe(stueck_);
        stueck_.clear();
    }

    std::unique_ptr<Dateischreiber> datei_;
    std::string stueck_;
};

}  // namespace zrw
