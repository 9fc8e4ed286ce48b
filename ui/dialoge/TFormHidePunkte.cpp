#include "ui/dialoge/TFormHidePunkte.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStringListModel>
#include <algorithm>

#include "ui/Nummernmuster.h"

namespace zrw {

TFormHidePunkte::TFormHidePunkte(QWidget* eltern)
    : QDialog(eltern),
      FilterPkt_(new QLineEdit(this)),
      ListBoxPkt_(new QListView(this)),
      nummern_(new QStringListModel(this)) {
    setObjectName(QStringLiteral("TFormHidePunkte"));
    setWindowTitle(QStringLiteral("Punkte verstecken"));
    FilterPkt_->setObjectName(QStringLiteral("FilterPkt"));
    FilterPkt_->setPlaceholderText(QStringLiteral("Nummern filtern"));
    FilterPkt_->setAccessibleName(QStringLiteral("Nummern filtern"));
    FilterPkt_->setToolTip(QStringLiteral("Teil der Nummer; * steht für beliebige Zeichen, ? für eines"));
    FilterPkt_->setClearButtonEnabled(true);
    ListBoxPkt_->setObjectName(QStringLiteral("ListBoxPkt"));
    ListBoxPkt_->setAccessibleName(QStringLiteral("Punktnummern"));
    ListBoxPkt_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    ListBoxPkt_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    ListBoxPkt_->setUniformItemSizes(true);  // a large network is not measured row by row
    ListBoxPkt_->setModel(nummern_);
    auto* verbergen = new QPushButton(QStringLiteral("Verstecken"), this);
    verbergen->setObjectName(QStringLiteral("Button1"));
    verbergen->setToolTip(QStringLiteral("Markierte Punkte nicht mehr zeichnen"));
    auto* schliessen = new QPushButton(QStringLiteral("Schließen"), this);
    schliessen->setObjectName(QStringLiteral("Button2"));
    // Enter in the filter must not hide anything.
    for (QPushButton* knopf : {verbergen, schliessen})
        knopf->setAutoDefault(false);

    auto* spalte = new QVBoxLayout(this);
    spalte->addWidget(FilterPkt_);
    spalte->addWidget(ListBoxPkt_, 1);
    auto* knoepfe = new QHBoxLayout;
    knoepfe->addStretch();
    knoepfe->addWidget(verbergen);
    knoepfe->addWidget(schliessen);
    spalte->addLayout(knoepfe);

    connect(FilterPkt_, &QLineEdit::textChanged, this, [this](const QString& teil) { FiltereNummern(teil); });
    connect(verbergen, &QPushButton::clicked, this, [this] { VersteckeGewaehlte(); });
    connect(schliessen, &QPushButton::clicked, this, &QDialog::close);
}

void TFormHidePunkte::FuelleListe(const QStringList& nummern) {
    const QSignalBlocker still(FilterPkt_);
    FilterPkt_->clear();
    nummern_->setStringList(nummern);  // a reset, which forgets selected and filtered rows
}

void TFormHidePunkte::FiltereNummern(const QString& teil) {
    const Nummernmuster muster(teil);
    const QStringList alle = nummern_->stringList();
    for (int zeile = 0; zeile < alle.size(); ++zeile) {
        ListBoxPkt_->setRowHidden(zeile, !muster.Passt(alle[zeile]));
        if (muster.IstNummer(alle[zeile])) ListBoxPkt_->scrollTo(nummern_->index(zeile));
    }
}

QStringList TFormHidePunkte::Gewaehlte() const {
    QModelIndexList zeilen = ListBoxPkt_->selectionModel()->selectedRows();
    std::sort(zeilen.begin(), zeilen.end());
    QStringList texte;
    for (const QModelIndex& zeile : zeilen) {
        if (!ListBoxPkt_->isRowHidden(zeile.row())) texte << zeile.data().toString();
    }
    return texte;
}

void TFormHidePunkte::VersteckeGewaehlte() {
    if (nummern_->rowCount() > 0 && verstecken) verstecken(Gewaehlte());
}

}  // namespace zrw
