// Searches for places of point numbers while the user sees how far it is, and may stop it.
#pragma once

#include <QProgressDialog>
#include <algorithm>
#include <cstddef>
#include <optional>

#include "output/beschriftung/Beschriftung.h"
#include "ui/fenster/Sanduhr.h"

namespace zrw {

/// From so many on it takes long enough to show how far it is.
inline constexpr std::size_t kVieleNummern = 2000;

/// @param suche gets a `Fortschritt` @return what that one returns
template <class Suche>
auto SucheMitFortschritt(std::size_t nummern, QWidget* fenster, const Suche& suche) {
    if (nummern < kVieleNummern) {
        const Sanduhr sanduhr;
        return suche(Fortschritt());
    }
    constexpr int kGanz = 1000;
    QProgressDialog fortschritt(QStringLiteral("Punktnummern werden geordnet …"), QStringLiteral("Abbrechen"),
                                0, kGanz, fenster);
    fortschritt.setObjectName(QStringLiteral("OrdnungsFortschritt"));
    fortschritt.setWindowTitle(QStringLiteral("Punktnummern ordnen"));
    fortschritt.setWindowModality(Qt::WindowModal);
    fortschritt.setMinimumDuration(0);
    return suche(Fortschritt([&](int promille) {
        fortschritt.setValue(std::min(promille, kGanz - 1));
        return !fortschritt.wasCanceled();
    }));
}

}  // namespace zrw
