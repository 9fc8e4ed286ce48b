// Files of the operating system: bounded reading, atomic replacing, names without regard to case.
#pragma once

#include "model/Dateien.h"

namespace zrw {

class Systemdateien final : public Dateien {
  public:
    [[nodiscard]] std::string LiesDatei(const std::filesystem::path& datei,
                                        std::size_t grenze) const override;
    [[nodiscard]] std::string LiesAnfang(const std::filesystem::path& datei,
                                         std::size_t anzahl) const override;
    [[nodiscard]] std::optional<Dateistand> Stand(const std::filesystem::path& datei) const override;
    /// Writes a file beside, flushes it to the disk and renames it. A symbolic link keeps pointing to its
    /// target, which is replaced, or made where it is missing; an existing file keeps its access rights, and
    /// is refused where they forbid writing.
    [[nodiscard]] std::unique_ptr<Dateischreiber> BeginneDatei(const std::filesystem::path& datei) override;
    void ErstelleOrdner(const std::filesystem::path& ordner) override;
    void EntferneDatei(const std::filesystem::path& datei) override;
    [[nodiscard]] std::optional<std::filesystem::path> FindeDatei(const std::filesystem::path& ordner,
                                                                  const std::string& name) const override;

  private:
    unsigned laufend_ = 0;  ///< sets the files beside of one program run apart
};

/// Makes a folder where the one that it belongs to exists; whether there is one then shows by itself.
void LegeOrdnerAn(const std::filesystem::path& ordner);
/// From the root on, without "." and "..", whether there is such a file or not.
[[nodiscard]] std::filesystem::path VollerName(const std::filesystem::path& datei);
/// Whether both names lead to the same file, which exists.
[[nodiscard]] bool DieselbeDatei(const std::filesystem::path& a, const std::filesystem::path& b);

}  // namespace zrw
