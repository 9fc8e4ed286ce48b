#include "ui/fenster/Umbruchleiste.h"

#include <QWidget>
#include <algorithm>

namespace zrw {
namespace {

/// Separators and containers fill the height of their row, buttons and fields keep their own.
bool WaechstMit(QLayoutItem& stueck) {
    const QWidget* w = stueck.widget();
    return w == nullptr || (w->sizePolicy().verticalPolicy() & QSizePolicy::GrowFlag) != 0;
}

}  // namespace

Umbruchleiste::Umbruchleiste(QWidget* eltern, int abstand, int reihenabstand)
    : QLayout(eltern), abstand_(abstand), reihenabstand_(reihenabstand) {}

void Umbruchleiste::addItem(QLayoutItem* stueck) {
    stuecke_.emplace_back(stueck);
    invalidate();
}

QLayoutItem* Umbruchleiste::itemAt(int i) const {
    return i >= 0 && i < count() ? stuecke_[static_cast<std::size_t>(i)].get() : nullptr;
}

QLayoutItem* Umbruchleiste::takeAt(int i) {
    if (i < 0 || i >= count()) return nullptr;
    const auto platz = stuecke_.begin() + i;
    QLayoutItem* stueck = platz->release();
    stuecke_.erase(platz);
    invalidate();
    return stueck;
}

int Umbruchleiste::heightForWidth(int weite) const {
    return OrdneReihen({0, 0, weite, 0}, false);
}

QSize Umbruchleiste::sizeHint() const {
    QSize reihe(0, 0);
    for (const auto& stueck : stuecke_) {
        if (stueck->isEmpty()) continue;
        const QSize groesse = stueck->sizeHint();
        reihe = {reihe.width() + (reihe.width() > 0 ? abstand_ : 0) + groesse.width(),
                 std::max(reihe.height(), groesse.height())};
    }
    return MitRand(reihe);
}

QSize Umbruchleiste::minimumSize() const {
    QSize groesste(0, 0);
    for (const auto& stueck : stuecke_) {
        if (!stueck->isEmpty()) groesste = groesste.expandedTo(stueck->minimumSize());
    }
    return MitRand(groesste);
}

void Umbruchleiste::setGeometry(const QRect& flaeche) {
    QLayout::setGeometry(flaeche);
    (void)OrdneReihen(flaeche, true);
}

QSize Umbruchleiste::MitRand(QSize innen) const {
    return innen.grownBy(contentsMargins());
}

/// What stands in each row.
std::vector<std::vector<QLayoutItem*>> Umbruchleiste::InReihen(int weite) const {
    std::vector<std::vector<QLayoutItem*>> reihen;
    int x = 0;
    for (const auto& stueck : stuecke_) {
        if (stueck->isEmpty()) continue;
        const int breite = stueck->sizeHint().width();
        if (reihen.empty() || x + breite > weite) {
            reihen.emplace_back();
            x = 0;
        }
        reihen.back().push_back(stueck.get());
        x += breite + abstand_;
    }
    if (reihen.size() < 2 || reihen.back().size() != 1) return reihen;
    // A small widget does not stand alone below the others: its neighbour comes along.
    constexpr int kKlein = 4;  ///< so many of them would fill a row
    auto& vorige = reihen[reihen.size() - 2];
    const int beide =
        vorige.back()->sizeHint().width() + abstand_ + reihen.back().front()->sizeHint().width();
    if (vorige.size() < 2 || beide > weite || reihen.back().front()->sizeHint().width() * kKlein > weite)
        return reihen;
    reihen.back().insert(reihen.back().begin(), vorige.back());
    vorige.pop_back();
    return reihen;
}

int Umbruchleiste::OrdneReihen(const QRect& flaeche, bool setzen) const {
    const QRect innen = flaeche.marginsRemoved(contentsMargins());
    int y = innen.y();
    int unten = y;
    for (const auto& reihe : InReihen(innen.width())) {
        int hoehe = 0;
        for (const QLayoutItem* stueck : reihe)
            hoehe = std::max(hoehe, stueck->sizeHint().height());
        int links = innen.x();
        for (QLayoutItem* stueck : reihe) {
            // A widget wider than the window is cut to it rather than lost beyond its border.
            QSize groesse = stueck->sizeHint();
            groesse.setWidth(
                std::min(groesse.width(), std::max(innen.width(), stueck->minimumSize().width())));
            if (WaechstMit(*stueck)) groesse.setHeight(hoehe);
            if (setzen) stueck->setGeometry({{links, y + (hoehe - groesse.height()) / 2}, groesse});
            links += groesse.width() + abstand_;
        }
        unten = y + hoehe;
        y = unten + reihenabstand_;
    }
    return unten - innen.y() + contentsMargins().top() + contentsMargins().bottom();
}

}  // namespace zrw
