// Reads one Paradox table (.DB) of versions 3 to 7 from memory: bounded, in the order of its block chain. Not
// in here: where tables are found (UnitZRWData.h), and indexes, which a reader does not need.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "input/tabellen/Codeseite.h"
#include "input/tabellen/Paradox.h"

namespace zrw::paradox {

class Leser {
  public:
    /// Checks header and field table. @param inhalt whole file, must outlive the reader
    /// @param datei name for messages, UTF-8
    /// @throws Fehler naming what is wrong: not a table, version, encrypted, damaged
    Leser(std::string_view inhalt, std::string datei);

    /// In the order of the table. A name may occur twice.
    [[nodiscard]] const std::vector<Feld>& Felder() const { return felder_; }
    /// As the header says, never more than the file has room for; `FuerJedeZeile` checks it against the
    /// chain.
    [[nodiscard]] std::size_t Zeilen() const { return zeilen_; }
    /// What makes the content doubtful though it can be read, UTF-8; empty for a sound table.
    [[nodiscard]] const std::string& Warnung() const { return warnung_; }

    /// Calls `tun` with one value per field, for every record. Views hold until the next call.
    /// @throws Fehler where the chain is damaged; `tun` then has seen the rows before the damage, never more
    /// than `Zeilen()`
    void FuerJedeZeile(const std::function<void(std::span<const Wert>)>& tun) const;

  private:
    /// Where a field lies in the record.
    struct Platz {
        Feldtyp typ;
        std::uint16_t stelle;
        std::uint8_t breite;
    };
    /// The records of one block.
    struct Saetze {
        std::string_view bytes;
        std::size_t naechster;  ///< block number, 0: none
    };

    [[nodiscard]] std::uint8_t U8(std::size_t stelle) const;
    [[nodiscard]] std::uint16_t U16(std::size_t stelle) const;
    [[nodiscard]] std::uint32_t U32(std::size_t stelle) const;
    void PruefeKopf();
    void LiesFelder();
    /// @param variabel where the part of variable length begins
    void LiesFeldarten(std::size_t variabel);
    [[nodiscard]] std::size_t LiesNamen(std::size_t stelle);
    void WaehleCodeseite(std::size_t sortiername);
    void WarneVor(const std::string& text);
    [[nodiscard]] Saetze Block(std::size_t nummer) const;
    void LiesSatz(const char* satz, std::vector<Wert>& zeile, std::string& puffer) const;
    [[nodiscard]] Wert LiesText(std::string_view bytes, std::string& puffer) const;
    [[noreturn]] void WirfFehler(const std::string& text) const;
    [[noreturn]] void Beschaedigt(const std::string& was) const;

    std::string_view inhalt_;
    std::string datei_;
    std::string warnung_;
    std::vector<Feld> felder_;
    std::vector<Platz> plaetze_;
    Codeseite codeseite_{1252};
    std::size_t version_ = 0;
    std::size_t kopf_ = 0;     ///< [bytes]
    std::size_t block_ = 0;    ///< [bytes]
    std::size_t bloecke_ = 0;  ///< in the file, as the header says
    std::size_t satz_ = 0;     ///< [bytes]
    std::size_t zeilen_ = 0;
};

}  // namespace zrw::paradox
