// The one order of point numbers in sorted lists: without regard to case, equal ones by their characters.
#pragma once

#include <QString>
#include <QStringList>
#include <algorithm>

namespace zrw {

[[nodiscard]] inline bool NummerVor(const QString& a, const QString& b) {
    const int ordnung = a.compare(b, Qt::CaseInsensitive);
    return ordnung != 0 ? ordnung < 0 : a < b;
}

inline void OrdneNummern(QStringList& nummern) {
    std::stable_sort(nummern.begin(), nummern.end(), NummerVor);
}

}  // namespace zrw
