// The rows of model/Zeichenzeilen.h with a picture of each example, as the plan shows it.
#pragma once

#include <QImage>
#include <QString>
#include <vector>

#include "model/Netz.h"
#include "ui/Programm.h"

namespace zrw {

struct Bildzeile {
    QString gruppe;  ///< heading; rows of one stand together
    QImage bild;     ///< none for what is only counted
    QString text;
    std::size_t anzahl = 0;
    friend bool operator==(const Bildzeile&, const Bildzeile&) = default;
};

/// Everything in the network counts, hidden or not.
/// @param groesse of the pictures [px] @param dichte pixels of the screen for each of them
[[nodiscard]] std::vector<Bildzeile> BaueBildzeilen(const Netz& netz, const Programm& programm, QSize groesse,
                                                    double dichte, bool glatt);

}  // namespace zrw
