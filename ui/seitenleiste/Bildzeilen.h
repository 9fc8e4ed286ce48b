// Which line styles, marks, symbols and colours a network has, in words, with how often and how they look.
#pragma once

#include <QImage>
#include <QString>
#include <vector>

#include "model/Netz.h"
#include "ui/Programm.h"

namespace zrw {

struct Zeichenzeile {
    QString gruppe;  ///< heading; rows of one stand together
    QImage bild;     ///< as the plan shows it
    QString text;
    std::size_t anzahl = 0;
    friend bool operator==(const Zeichenzeile&, const Zeichenzeile&) = default;
};

/// Everything in the network counts, hidden or not.
/// @param groesse of the pictures [px] @param dichte pixels of the screen for each of them
[[nodiscard]] std::vector<Zeichenzeile> BaueZeichenzeilen(const Netz& netz, const Programm& programm,
                                                          QSize groesse, double dichte, bool glatt);

}  // namespace zrw
