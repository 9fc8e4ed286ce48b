#include "ui/seitenleiste/Seitenleiste.h"

#include <QTabBar>
#include <QTabWidget>
#include <algorithm>

namespace zrw {
namespace {

const QString kLage = QStringLiteral("Seitenleiste/Lage");
const QString kSeite = QStringLiteral("Seitenleiste/Seite");

/// Where nobody has made it wider [px].
constexpr int kWeite = 340;

}  // namespace

Bildfach::Bildfach(QWidget* eltern) : QMainWindow(eltern) {
    setWindowFlags(Qt::Widget);  // as an argument it would be a window all the same
    setObjectName(QStringLiteral("BildFach"));
    setContextMenuPolicy(Qt::NoContextMenu);
}

Seitenleiste::Seitenleiste(Bildfach& fach)
    : QDockWidget(QStringLiteral("Seitenleiste"), &fach), fach_(fach), reiter_(new QTabWidget(this)) {
    setObjectName(QStringLiteral("SeitenLeiste"));
    setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    reiter_->setObjectName(QStringLiteral("SeitenReiter"));
    reiter_->tabBar()->setAccessibleName(QStringLiteral("Seiten der Seitenleiste"));
    setWidget(reiter_);
    connect(reiter_, &QTabWidget::currentChanged, this, [this] { GibWeite(); });
    fach.addDockWidget(Qt::RightDockWidgetArea, this);
    hide();
}

void Seitenleiste::NimmSeite(QWidget& seite, const QString& titel, int weite) {
    if (weite > 0) weiten_.insert(&seite, weite);
    reiter_->addTab(&seite, titel);
}

/// Once, and never more than half: afterwards it is the user's.
void Seitenleiste::GibWeite() {
    if (!isVisible()) return;
    const int weite = std::min(weiten_.take(reiter_->currentWidget()), fach_.width() / 2);
    if (weite > width() && !isFloating()) fach_.resizeDocks({this}, {weite}, Qt::Horizontal);
}

void Seitenleiste::ZeigeSeite(QWidget& seite) {
    reiter_->setCurrentWidget(&seite);
    show();
    raise();
}

void Seitenleiste::LadeStand(const Sitzung& sitzung) {
    if (!fach_.restoreState(sitzung.Stand(kLage))) fach_.resizeDocks({this}, {kWeite}, Qt::Horizontal);
    reiter_->setCurrentIndex(sitzung.Stand(kSeite).toInt());
}

void Seitenleiste::MerkeStand(Sitzung& sitzung) const {
    sitzung.MerkeStand(kLage, fach_.saveState());
    sitzung.MerkeStand(kSeite, QByteArray::number(reiter_->currentIndex()));
}

}  // namespace zrw
