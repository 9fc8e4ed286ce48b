// A text file on its way to the disk, in large pieces: whatever its size, it takes the memory of one piece.
#pragma once

#include <cassert>
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
    explicit Textausgabe(std::unique_ptr<Dateischreiber> datei)
        : datei_(std::move(datei)), stueck_(kStueck, '\0') {}

    /// @throws Fehler where a full piece cannot be written
    void Nimm(std::string_view text) {
        if (text.size() > stueck_.size() - laenge_) Weiter();
        if (text.size() > stueck_.size()) return datei_->Schreibe(text);
        laenge_ += text.copy(stueck_.data() + laenge_, text.size());
    }
    /// Plain decimal integer.
    void Nimm(std::int64_t zahl) {
        if (stueck_.size() - laenge_ < kLaengsteZahl) Weiter();
        char* anfang = stueck_.data() + laenge_;
        laenge_ += static_cast<std::size_t>(std::to_chars(anfang, anfang + kLaengsteZahl, zahl).ptr - anfang);
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
    void Uebernimm() {
        assert(laenge_ == 0);
        datei_->Uebernimm();
    }

  private:
    static constexpr std::size_t kStueck = std::size_t{1} << 16U;
    static constexpr std::size_t kLaengsteZahl = 20;  // the lower end of 64 bits with its sign

    void Weiter() {
        datei_->Schreibe({stueck_.data(), laenge_});
        laenge_ = 0;
    }

    std::unique_ptr<Dateischreiber> datei_;
    std::string stueck_;      ///< always of the size of a piece
    std::size_t laenge_ = 0;  ///< what of it is taken
};

}  // namespace zrw
