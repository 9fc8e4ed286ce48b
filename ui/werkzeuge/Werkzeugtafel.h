// The tool modes of the window, a row each: button, hint, icon and the class behind it.
#pragma once

#include <array>
#include <memory>
#include <string_view>

#include "ui/werkzeuge/BildVerschieben.h"
#include "ui/werkzeuge/Werkzeug.h"

namespace zrw {

struct Werkzeugzeile {
    std::string_view komponente;  ///< object name of the button
    std::string_view hinweis;     ///< hint, UTF-8
    std::string_view bild;        ///< file name of the icon
    std::unique_ptr<Werkzeug> (*neu)(Werkzeugumgebung&);
};

template <class W>
std::unique_ptr<Werkzeug> NeuesWerkzeug(Werkzeugumgebung& umgebung) {
    return std::make_unique<W>(umgebung);
}

inline constexpr std::array<Werkzeugzeile, 1> kWerkzeuge{{
    {"PanButton", "Bild verschieben", "verschieben", &NeuesWerkzeug<BildVerschieben>},
}};

}  // namespace zrw
