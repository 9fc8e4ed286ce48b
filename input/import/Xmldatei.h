// A foreign file as XML, bounded: size, memory, entities and depth. Elements are told by their names without
// a namespace.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <pugixml.hpp>
#include <string>
#include <string_view>

#include "model/Dateien.h"

namespace zrw::fremd {

/// Largest file that is read [bytes].
inline constexpr std::size_t kGroessteXmlDatei = std::size_t{512} << 20U;
/// As much of a file as it takes to tell what it is [bytes].
inline constexpr std::size_t kAnfang = std::size_t{64} << 10U;

/// Name of the root element, from the first part of a file; empty where it is no XML. Never throws.
[[nodiscard]] std::string Wurzelname(std::string anfang);

/// Name of an element without its namespace.
[[nodiscard]] std::string_view Elementname(pugi::xml_node knoten);
/// Text of an element or attribute without the white space around it.
[[nodiscard]] std::string_view Inhalt(pugi::xml_node knoten);
[[nodiscard]] std::string_view Inhalt(pugi::xml_attribute merkmal);

class Xmldatei {
  public:
    /// @param dateien must outlive it: lines are counted in the file when a message needs one
    /// @throws Fehler with its line where the file cannot be read, is no well-formed XML, too large, in an
    /// unknown encoding or defines entities of its own
    Xmldatei(const std::filesystem::path& datei, const Dateien& dateien);

    [[nodiscard]] pugi::xml_node Wurzel() const { return baum_.document_element(); }
    /// Place of an element in the file, small enough to be kept by the hundred thousand.
    [[nodiscard]] static std::uint32_t Stelle(pugi::xml_node knoten);
    /// Line of such a place.
    [[nodiscard]] std::int64_t Zeile(std::size_t stelle) const;
    [[nodiscard]] const std::string& Name() const { return name_; }
    /// Elements that nobody reads may hold anything. @throws Fehler where they nest deeper than files do
    void PruefeTiefe(pugi::xml_node knoten) const;
    [[nodiscard]] std::size_t Groesse() const { return text_.size(); }
    /// @throws Fehler with the line of the element, always
    [[noreturn]] void WirfFehler(const std::string& text, pugi::xml_node knoten) const;

  private:
    const Dateien& dateien_;
    std::filesystem::path pfad_;
    std::string name_;              ///< for messages, UTF-8
    std::string text_;              ///< UTF-8, cut to pieces by the tree that points into it
    mutable std::string original_;  ///< for the lines; empty until somebody asks
    pugi::xml_document baum_;
};

/// The child of this name, without regard to its namespace; null where there is none.
[[nodiscard]] pugi::xml_node Kind(pugi::xml_node knoten, std::string_view name);

}  // namespace zrw::fremd
