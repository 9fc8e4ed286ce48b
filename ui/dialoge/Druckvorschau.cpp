#include "ui/dialoge/Druckvorschau.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

namespace zrw {

Druckvorschau::Druckvorschau(QPrinter& drucker, const QImage& uebersicht, QWidget* eltern)
    : QDialog(eltern), blaetter_(new QPrintPreviewWidget(&drucker, this)) {
    setObjectName(QStringLiteral("Druckvorschau"));
    setWindowTitle(QStringLiteral("Druckvorschau"));
    connect(blaetter_, &QPrintPreviewWidget::paintRequested, this, [this](QPrinter* geraet) {
        if (male) male(*geraet);
    });
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
    reihe->addStretch();

    auto* knoepfe = new QDialogButtonBox(this);
    knoepfe->addButton(QStringLiteral("Drucken …"), QDialogButtonBox::AcceptRole);
    knoepfe->addButton(QStringLiteral("Schließen"), QDialogButtonBox::RejectRole);
    connect(knoepfe, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* rechts = new QVBoxLayout;
    rechts->addLayout(reihe);
    rechts->addWidget(blaetter_, 1);
    rechts->addWidget(knoepfe);
    auto* alles = new QHBoxLayout(this);
    alles->addWidget(ueberblick);
    alles->addLayout(rechts, 1);
    resize(1000, 700);
}

void Druckvorschau::ZeigeBlatt(int schritt) {
    blaetter_->setSinglePageViewMode();
    blaetter_->setCurrentPage(
        std::clamp(blaetter_->currentPage() + schritt, 1, std::max(blaetter_->pageCount(), 1)));
}

}  // namespace zrw
