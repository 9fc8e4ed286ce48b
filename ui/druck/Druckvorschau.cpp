#include "ui/druck/Druckvorschau.h"

#include <QDialogButtonBox>
#include <QGraphicsView>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QScreen>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

namespace zrw {

Druckvorschau::Druckvorschau(QPrinter& drucker, const QImage& uebersicht, QWidget* eltern)
    : QDialog(eltern), blaetter_(new QPrintPreviewWidget(&drucker, this)), blatt_(new QLabel(this)) {
    setObjectName(QStringLiteral("Druckvorschau"));
    setWindowTitle(QStringLiteral("Druckvorschau"));
    connect(blaetter_, &QPrintPreviewWidget::paintRequested, this, [this](QPrinter* geraet) {
        if (male) male(*geraet);
    });
    for (QWidget* w : blaetter_->findChildren<QGraphicsView*>())
        w->setAccessibleName(QStringLiteral("Blätter"));
    auto* ueberblick = new QLabel(this);
    ueberblick->setObjectName(QStringLiteral("Uebersicht"));
    ueberblick->setPixmap(QPixmap::fromImage(uebersicht));
    ueberblick->setAlignment(Qt::AlignTop);

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

    auto* knoepfe = new QDialogButtonBox(this);
    knoepfe->addButton(QStringLiteral("Drucken …"), QDialogButtonBox::AcceptRole);
    knoepfe->addButton(QStringLiteral("Schließen"), QDialogButtonBox::RejectRole);
    connect(knoepfe, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* mitte = new QHBoxLayout;
    mitte->addWidget(ueberblick);
    mitte->addWidget(blaetter_, 1);
    auto* alles = new QVBoxLayout(this);
    alles->addLayout(reihe);
    alles->addLayout(mitte, 1);
    alles->addWidget(knoepfe);
    constexpr QSize kGroesse(1000, 700);
    constexpr QSize kRahmen(20, 60);  // of the window, whatever draws it
    resize(kGroesse.boundedTo(screen()->availableGeometry().size() - kRahmen));
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
