#include "ui/fenster/Menuebuchstaben.h"

#include <QHash>
#include <functional>
#include <vector>

namespace zrw {
namespace {

/// Where a letter could be marked, the best places first. Umlauts are no keys everywhere, and behind a tab
/// stands the shortcut.
std::vector<qsizetype> Stellen(const QString& text) {
    std::vector<qsizetype> anfaenge;
    std::vector<qsizetype> uebrige;
    for (qsizetype i = 0; i < text.size() && text[i] != u'\t'; ++i) {
        if (text[i].unicode() > 127 || !text[i].isLetterOrNumber()) continue;
        (i == 0 || !text[i - 1].isLetterOrNumber() ? anfaenge : uebrige).push_back(i);
    }
    anfaenge.insert(anfaenge.end(), uebrige.begin(), uebrige.end());
    return anfaenge;
}

}  // namespace

QChar Menuebuchstabe(const QString& text) {
    for (qsizetype i = text.indexOf(u'&'); i >= 0 && i + 1 < text.size(); i = text.indexOf(u'&', i + 2)) {
        if (text[i + 1] != u'&') return text[i + 1].toUpper();
    }
    return {};
}

QStringList MitBuchstaben(const QStringList& texte) {
    constexpr qsizetype kFest = -1;
    QHash<QChar, qsizetype> vergeben;  // letter to the text that has it
    for (const QString& text : texte) {
        if (const QChar fest = Menuebuchstabe(text); !fest.isNull()) vergeben[fest] = kFest;
    }
    std::vector<qsizetype> gewaehlt(static_cast<std::size_t>(texte.size()), kFest);
    // Whoever finds all letters taken asks their owners to take another one.
    QHash<QChar, bool> gefragt;
    const std::function<bool(qsizetype)> suche = [&](qsizetype nummer) {
        for (const bool frei : {true, false}) {
            for (const qsizetype stelle : Stellen(texte[nummer])) {
                const QChar buchstabe = texte[nummer][stelle].toUpper();
                const bool belegt = vergeben.contains(buchstabe);
                if (belegt == frei || gefragt.contains(buchstabe)) continue;
                gefragt[buchstabe] = true;
                if (belegt && (vergeben[buchstabe] == kFest || !suche(vergeben[buchstabe]))) continue;
                vergeben[buchstabe] = nummer;
                gewaehlt[static_cast<std::size_t>(nummer)] = stelle;
                return true;
            }
        }
        return false;
    };
    QStringList ergebnis = texte;
    for (qsizetype i = 0; i < texte.size(); ++i) {
        gefragt.clear();
        if (Menuebuchstabe(texte[i]).isNull()) (void)suche(i);
    }
    for (qsizetype i = 0; i < texte.size(); ++i) {
        const qsizetype stelle = gewaehlt[static_cast<std::size_t>(i)];
        if (stelle != kFest) ergebnis[i].insert(stelle, u'&');
    }
    return ergebnis;
}

}  // namespace zrw
