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

int Umbruchleiste::OrdneReihen(const QRect& flaeche, bool setzen) const {
    const QRect innen = flaeche.marginsRemoved(contentsMargins());
    std::vector<QLayoutItem*> reihe;
    int x = innen.x();
    int y = innen.y();
    int hoehe = 0;
    const auto schliesse = [&] {
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
        reihe.clear();
    };
    for (const auto& stueck : stuecke_) {
        if (stueck->isEmpty()) continue;
        const QSize groesse = stueck->sizeHint();
        if (!reihe.empty() && x + groesse.width() > innen.x() + innen.width()) {
            schliesse();
            y += hoehe + reihenabstand_;
            x = innen.x();
            hoehe = 0;
        }
        reihe.push_back(stueck.get());
        x += groesse.width() + abstand_;
        hoehe = std::max(hoehe, groesse.height());
    }
    schliesse();
    return y + hoehe - innen.y() + contentsMargins().top() + contentsMargins().bottom();
}

}  // namespace zrw
