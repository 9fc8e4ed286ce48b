#include "ui/Nummernmuster.h"

#include <algorithm>
#include <array>

namespace zrw {

Nummernmuster::Nummernmuster(const QString& eingabe) : eingabe_(eingabe) {
    if (!eingabe.contains(QLatin1Char('*')) && !eingabe.contains(QLatin1Char('?'))) return;
    // Not Qt's own wildcards: numbers may hold the brackets and slashes that mean something there.
    QStringList teile;
    for (const QString& teil : eingabe.split(QLatin1Char('*')))
        teile << QRegularExpression::escape(teil).replace(QStringLiteral("\\?"), QStringLiteral("."));
    // Each part where it comes first, for good (atomic groups): many stars would try all ways otherwise.
    QString muster = teile.front();
    for (qsizetype i = 1; i + 1 < teile.size(); ++i)
        muster += QStringLiteral("(?>.*?") + teile[i] + QLatin1Char(')');
    if (teile.size() > 1) muster += QStringLiteral(".*") + teile.back();
    muster_ = QRegularExpression(QRegularExpression::anchoredPattern(muster),
                                 QRegularExpression::CaseInsensitiveOption);
}

bool Nummernmuster::Passt(const QString& nummer) const {
    // A number that holds a star is found by it, too.
    return nummer.contains(eingabe_, Qt::CaseInsensitive) ||
           (!muster_.pattern().isEmpty() && muster_.match(nummer).hasMatch());
}

bool Nummernmuster::IstNummer(const QString& nummer) const {
    return nummer.compare(eingabe_, Qt::CaseInsensitive) == 0;
}

QStringList Nummernmuster::Treffer(const QStringList& nummern, qsizetype hoechstens) const {
    std::array<QStringList, 3> gruppen;
    for (const QString& nummer : nummern) {
        if (!Passt(nummer)) continue;
        const std::size_t gruppe = IstNummer(nummer)                                  ? 0
                                   : nummer.startsWith(eingabe_, Qt::CaseInsensitive) ? 1
                                                                                      : 2;
        if (gruppen[gruppe].size() < hoechstens) gruppen[gruppe] << nummer;
    }
    return (gruppen[0] + gruppen[1] + gruppen[2]).mid(0, hoechstens);
}

}  // namespace zrw
