#include "ui/ergebnisse/Festspaltentafel.h"

#include <QAction>
#include <QHeaderView>
#include <QScrollBar>
#include <utility>

namespace zrw {
namespace {

/// Part of the table that may stay.
constexpr double kMeistens = 0.6;

}  // namespace

Festspaltentafel::Festspaltentafel(QWidget* eltern) : QTableView(eltern), feste_(new QTableView(this)) {
    feste_->setObjectName(QStringLiteral("FesteSpalten"));
    feste_->setFocusPolicy(Qt::NoFocus);
    feste_->setFrameShape(QFrame::NoFrame);
    feste_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    feste_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    feste_->setEditTriggers(NoEditTriggers);
    feste_->hide();
    setHorizontalScrollMode(ScrollPerPixel);
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] { LegeDarueber(); });
    connect(verticalScrollBar(), &QScrollBar::valueChanged, feste_->verticalScrollBar(),
            &QScrollBar::setValue);
    connect(feste_->verticalScrollBar(), &QScrollBar::valueChanged, verticalScrollBar(),
            &QScrollBar::setValue);
    connect(feste_, &QTableView::pressed, this, [this] { setFocus(Qt::MouseFocusReason); });
    connect(feste_, &QTableView::doubleClicked, this, &QTableView::doubleClicked);
    VerbindeKoepfe();
}

/// Both headings do the same.
void Festspaltentafel::VerbindeKoepfe() {
    QHeaderView* kopf = horizontalHeader();
    QHeaderView* fester = feste_->horizontalHeader();
    fester->setSectionsClickable(true);
    fester->setHighlightSections(true);
    fester->setSortIndicatorShown(true);
    connect(kopf, &QHeaderView::sectionResized, this, [this](int spalte, int /*vorher*/, int weite) {
        if (spalte >= anzahl_) return;
        if (weite > 0) feste_->setColumnWidth(spalte, weite);
        LegeDarueber();
    });
    connect(fester, &QHeaderView::sectionResized, this, [this](int spalte, int /*vorher*/, int weite) {
        if (weite > 0 && !feste_->isColumnHidden(spalte)) setColumnWidth(spalte, weite);
    });
    connect(kopf, &QHeaderView::sortIndicatorChanged, fester, &QHeaderView::setSortIndicator);
    connect(fester, &QHeaderView::sectionClicked, this, [kopf](int spalte) {
        const bool auf =
            kopf->sortIndicatorSection() != spalte || kopf->sortIndicatorOrder() == Qt::DescendingOrder;
        kopf->setSortIndicator(spalte, auf ? Qt::AscendingOrder : Qt::DescendingOrder);
    });
}

void Festspaltentafel::setModel(QAbstractItemModel* modell) {
    QTableView::setModel(modell);
    feste_->setModel(modell);
    feste_->setSelectionModel(selectionModel());
    feste_->setSelectionBehavior(selectionBehavior());
    feste_->setAlternatingRowColors(alternatingRowColors());
    feste_->setWordWrap(wordWrap());
    feste_->verticalHeader()->setDefaultSectionSize(verticalHeader()->defaultSectionSize());
    feste_->verticalHeader()->hide();
    feste_->setAccessibleName(accessibleName() + QStringLiteral(", feste Spalten"));
    feste_->setContextMenuPolicy(contextMenuPolicy());
    feste_->addActions(actions());
    // Sorting begins with new columns, too.
    connect(modell, &QAbstractItemModel::modelReset, this, [this] { SetzeFeste(anzahl_); });
}

void Festspaltentafel::SetzeFeste(int anzahl) {
    anzahl_ = anzahl;
    if (model() == nullptr) return;
    for (int s = 0; s < model()->columnCount(); ++s) {
        if (s < anzahl_) feste_->setColumnWidth(s, columnWidth(s));
    }
    LegeDarueber();
}

std::pair<int, int> Festspaltentafel::Platz() const {
    int weite = 0;
    int spalten = 0;
    const int alle = model() != nullptr ? std::min(anzahl_, model()->columnCount()) : 0;
    for (; spalten < alle; ++spalten) {
        const int mit = weite + columnWidth(spalten);
        if (mit > kMeistens * viewport()->width()) break;
        weite = mit;
    }
    return {spalten, weite};
}

void Festspaltentafel::LegeDarueber() {
    const auto [spalten, weite] = Platz();
    const bool noetig = spalten > 0 && horizontalScrollBar()->value() > 0;
    feste_->setVisible(noetig);
    if (!noetig) return;
    for (int s = 0; s < model()->columnCount(); ++s)
        feste_->setColumnHidden(s, s >= spalten);
    feste_->horizontalHeader()->setFixedHeight(horizontalHeader()->height());
    const QRect sichtbar = viewport()->geometry();
    const int kopf = horizontalHeader()->height();
    feste_->setGeometry(sichtbar.left(), sichtbar.top() - kopf, weite, sichtbar.height() + kopf);
    feste_->verticalScrollBar()->setValue(verticalScrollBar()->value());
    feste_->raise();
}

void Festspaltentafel::updateGeometries() {
    QTableView::updateGeometries();
    if (feste_ != nullptr) LegeDarueber();
}

/// What lies under the columns that stay cannot be seen.
void Festspaltentafel::scrollTo(const QModelIndex& stelle, ScrollHint wie) {
    QTableView::scrollTo(stelle, wie);
    const auto [spalten, weite] = Platz();
    if (stelle.column() < spalten) return;
    const int fehlt = weite - columnViewportPosition(stelle.column());
    if (fehlt > 0) horizontalScrollBar()->setValue(horizontalScrollBar()->value() - fehlt);
}

}  // namespace zrw
