#include "ui/druck/Druckvorschau.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGraphicsView>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPushButton>
#include <QScreen>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "output/Papier.h"
#include "ui/Umwandlung.h"
#include "ui/druck/Blattbild.h"

namespace zrw {

Druckvorschau::Druckvorschau(QPrinter& drucker, Vorschauplan& plan, QWidget* eltern)
    : QDialog(eltern),
      drucker_(drucker),
      plan_(plan),
      blaetter_(new QPrintPreviewWidget(&drucker, this)),
      blatt_(new QLabel(this)),
      uebersicht_(new Blattbild(this)),
      massstab_(new QLineEdit(plan.Massstab(), this)),
      papier_(new QComboBox(this)),
      quer_(new QCheckBox(QStringLiteral("Querformat"), this)) {
    setObjectName(QStringLiteral("Druckvorschau"));
    setWindowTitle(QStringLiteral("Druckvorschau"));
    connect(blaetter_, &QPrintPreviewWidget::paintRequested, this, [this](QPrinter* geraet) {
        if (male) male(*geraet);
    });
    for (QWidget* w : blaetter_->findChildren<QGraphicsView*>())
        w->setAccessibleName(QStringLiteral("Blätter"));
    uebersicht_->setObjectName(QStringLiteral("Uebersicht"));
    uebersicht_->ZeigeUebersicht(plan_.Uebersicht(), plan_.Blaetter());
    uebersicht_->geklickt = [this](QPoint ort) {
        plan_.SchalteBlatt(ort);
        ZeigePlan();
    };
    uebersicht_->gezogen = [this](QPoint weg) {
        plan_.VerschiebeBlaetter(weg);
        ZeigePlan();
    };

    auto* knoepfe = new QDialogButtonBox(this);
    auto* drucken = knoepfe->addButton(QStringLiteral("Drucken …"), QDialogButtonBox::AcceptRole);
    auto* schliessen = knoepfe->addButton(QStringLiteral("Schließen"), QDialogButtonBox::RejectRole);
    for (QPushButton* k : {drucken, schliessen})
        k->setAutoDefault(false);  // Enter ends the input of the scale
    connect(knoepfe, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* mitte = new QHBoxLayout;
    mitte->addWidget(uebersicht_);
    mitte->addWidget(blaetter_, 1);
    auto* alles = new QVBoxLayout(this);
    alles->addLayout(BaueKnopfreihe());
    alles->addLayout(BaueBlattreihe());
    alles->addLayout(mitte, 1);
    alles->addWidget(knoepfe);
    constexpr QSize kGroesse(1000, 700);
    constexpr QSize kRahmen(20, 60);  // of the window, whatever draws it
    resize(kGroesse.boundedTo(screen()->availableGeometry().size() - kRahmen));
}

QBoxLayout* Druckvorschau::BaueKnopfreihe() {
    auto* reihe = new QHBoxLayout;
    const auto knopf = [&](const QString& text, auto tun) {
        auto* k = new QToolButton(this);
        k->setText(text);
        connect(k, &QToolButton::clicked, this, tun);
        reihe->addWidget(k);
    };
    knopf(QStringLiteral("Voriges Blatt"), [this] { ZeigeBlatt(-1); });
    knopf(QStringLiteral("Nächstes Blatt"), [this] { ZeigeBlatt(1); });
    knopf(QStringLiteral("Alle Blätter"), [this] { blaetter_->setAllPagesViewMode(); });
    knopf(QStringLiteral("Ganzes Blatt"), [this] {
        blaetter_->setSinglePageViewMode();
        blaetter_->fitInView();
    });
    knopf(QStringLiteral("Größer"), [this] { blaetter_->zoomIn(); });
    knopf(QStringLiteral("Kleiner"), [this] { blaetter_->zoomOut(); });
    blatt_->setObjectName(QStringLiteral("Blatt"));
    reihe->addWidget(blatt_);
    reihe->addStretch();
    connect(blaetter_, &QPrintPreviewWidget::previewChanged, this, [this] { NenneBlatt(); });
    return reihe;
}

/// Scale, paper and how it lies. Paper without a name of ours shows none.
QBoxLayout* Druckvorschau::BaueBlattreihe() {
    massstab_->setObjectName(QStringLiteral("VorschauMassstab"));
    massstab_->setAccessibleName(QStringLiteral("Druckmaßstab"));
    massstab_->setToolTip(QStringLiteral("Druckmaßstab"));
    constexpr int kFeldbreite = 90;
    massstab_->setMaximumWidth(kFeldbreite);
    connect(massstab_, &QLineEdit::editingFinished, this, [this] {
        if (massstab_->text() == plan_.Massstab()) return;
        plan_.SetzeMassstab(massstab_->text());
        massstab_->setText(plan_.Massstab());
        ZeigePlan();
    });
    papier_->setObjectName(QStringLiteral("VorschauPapier"));
    papier_->setAccessibleName(QStringLiteral("Papier"));
    papier_->setToolTip(QStringLiteral("Größe des Papiers"));
    const QSizeF jetzt = drucker_.pageLayout().pageSize().size(QPageSize::Millimeter);
    int stelle = -1;
    for (const Papierformat& f : kPapierformate) {
        papier_->addItem(AusUtf8(f.name));
        const bool gleich = std::abs(f.hochkant.weite - jetzt.width()) < 1.0 &&
                            std::abs(f.hochkant.hoehe - jetzt.height()) < 1.0;
        if (gleich) stelle = papier_->count() - 1;
    }
    papier_->setCurrentIndex(stelle);
    quer_->setObjectName(QStringLiteral("VorschauQuer"));
    quer_->setToolTip(QStringLiteral("Das Papier liegt auf der langen Seite"));
    quer_->setChecked(drucker_.pageLayout().orientation() == QPageLayout::Landscape);
    connect(papier_, &QComboBox::activated, this, [this] { WechslePapier(); });
    connect(quer_, &QCheckBox::toggled, this, [this] { WechslePapier(); });
    auto* reihe = new QHBoxLayout;
    auto* schild = new QLabel(QStringLiteral("Maßstab 1:"), this);
    schild->setBuddy(massstab_);
    reihe->addWidget(schild);
    reihe->addWidget(massstab_);
    reihe->addWidget(papier_);
    reihe->addWidget(quer_);
    reihe->addStretch();
    return reihe;
}

void Druckvorschau::WechslePapier() {
    if (papier_->currentIndex() >= 0) {
        const Papier p = kPapierformate[static_cast<std::size_t>(papier_->currentIndex())].hochkant;
        drucker_.setPageSize(QPageSize(QSizeF(p.weite, p.hoehe), QPageSize::Millimeter));
    }
    drucker_.setPageOrientation(quer_->isChecked() ? QPageLayout::Landscape : QPageLayout::Portrait);
    plan_.NimmPapier();
    ZeigePlan();
}

/// After a change: everything is drawn anew.
void Druckvorschau::ZeigePlan() {
    uebersicht_->ZeigeUebersicht(plan_.Uebersicht(), plan_.Blaetter());
    blaetter_->updatePreview();
    NenneBlatt();
}

/// Which sheet is shown; while all are, how many there are.
void Druckvorschau::NenneBlatt() {
    const int anzahl = blaetter_->pageCount();
    if (blaetter_->viewMode() == QPrintPreviewWidget::AllPagesView) {
        blatt_->setText(anzahl == 1 ? QStringLiteral("1 Blatt") : QStringLiteral("%1 Blätter").arg(anzahl));
    } else {
        blatt_->setText(QStringLiteral("Blatt %1 von %2").arg(blaetter_->currentPage()).arg(anzahl));
    }
}

void Druckvorschau::ZeigeBlatt(int schritt) {
    blaetter_->setSinglePageViewMode();
    blaetter_->setCurrentPage(
        std::clamp(blaetter_->currentPage() + schritt, 1, std::max(blaetter_->pageCount(), 1)));
}

}  // namespace zrw
