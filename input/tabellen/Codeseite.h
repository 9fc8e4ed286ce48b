// Text of old tables as UTF-8: the DOS code pages 437 and 850, and 1252 for everything else.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace zrw {

class Codeseite {
  public:
    /// Longest form of one byte [bytes of UTF-8].
    static constexpr std::size_t kLaengste = 3;

    /// @param nummer any; an unknown one is read as 1252
    explicit Codeseite(unsigned nummer);

    [[nodiscard]] static bool Bekannt(unsigned nummer);

    void HaengeAn(std::string& ziel, std::string_view bytes) const;
    [[nodiscard]] std::string NachUtf8(std::string_view bytes) const;

  private:
    std::array<std::string, 128> oben_;  ///< characters of the bytes 0x80 to 0xFF
};

}  // namespace zrw
