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
    void NimmText(std::string_view text) {
        if (text.size() > stueck_.size() - laenge_) SchreibeStueck();
        if (text.size() > stueck_.size()) return datei_->SchreibeBytes(text);
        laenge_ += text.copy(stueck_.data() + laenge_, text.size());
    }
    /// Plain decimal integer.
    void NimmZahl(std::int64_t zahl) {
        if (stueck_.size() - laenge_ < kLaengsteZahl) SchreibeStueck();
        char* anfang = stueck_.data() + laenge_;
        laenge_ += static_cast<std::size_t>(std::to_chars(anfang, anfang + kLaengsteZahl, zahl).ptr - anfang);
    }
    /// Text of the network. A control character would break the line or the label that it stands in, so it
    /// becomes a blank; damaged picture files hold such numbers.
    void NimmNetztext(std::string_view text) {
        for (const char c : text)
            NimmText(static_cast<unsigned char>(c) < 0x20 ? std::string_view(" ") : std::string_view(&c, 1));
    }

    /// Brings all of it onto the disk, still beside the file that it replaces. @throws Fehler
    void SichereDatei() {
        SchreibeStueck();
        datei_->SichereDatei();
    }
    /// Puts the file in its place, after `SichereDatei`. @throws Fehler
    void ErsetzeZiel() {
        assert(laenge_ == 0);
        datei_->ErsetzeZiel();
    }

  private:
    static constexpr std::size_t kStueck = std::size_t{1} << 16U;
    static constexpr std::size_t kLaengsteZahl = 20;  // the lower end of 64 bits with its sign

    void SchreibeStueck() {
        datei_->SchreibeBytes({stueck_.data(), laenge_});
        laenge_ = 0;
    }

    std::unique_ptr<Dateischreiber> datei_;
    std::string stueck_;      ///< always of the size of a piece
    std::size_t laenge_ = 0;  ///< what of it is taken
};

}  // namespace zrw
