#include "ui/seitenleiste/Zeichenseite.h"

#include <QHeaderView>
#include <QLocale>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace zrw {
namespace {

constexpr QSize kMustergroesse{64, 26};

/// Until what goes on has come to rest [ms].
constexpr int kZeichenpause = 200;

}  // namespace

Zeichenseite::Zeichenseite(const Programm& programm, const Plan& plan, std::function<bool()> glatt,
                           QWidget* eltern)
    : QWidget(eltern),
      programm_(programm),
      plan_(plan),
      glatt_(std::move(glatt)),
      baum_(new QTreeWidget(this)) {
    baum_->setObjectName(QStringLiteral("ZeichenListe"));
    baum_->setAccessibleName(QStringLiteral("Linien und Symbole"));
    baum_->setColumnCount(2);
    baum_->setHeaderLabels({QStringLiteral("Bedeutung"), QStringLiteral("Anzahl")});
    baum_->header()->setStretchLastSection(false);
    baum_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    baum_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    baum_->setIconSize(kMustergroesse);
    baum_->setIndentation(0);
    baum_->setRootIsDecorated(false);
    baum_->setItemsExpandable(false);
    auto* spalte = new QVBoxLayout(this);
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->addWidget(baum_);
    ruhe_.setSingleShot(true);
    connect(&ruhe_, &QTimer::timeout, this, [this] {
        if (isVisible()) ZaehleNeu();
    });
}

void Zeichenseite::NetzGezeichnet() {
    if (isVisible()) ruhe_.start(kZeichenpause);
}

void Zeichenseite::showEvent(QShowEvent* ereignis) {
    ZaehleNeu();
    QWidget::showEvent(ereignis);
}

void Zeichenseite::ZaehleNeu() {
    std::vector<Bildzeile> zeilen;
    if (plan_.Offen())
        zeilen = BaueBildzeilen(*plan_.Daten(), programm_, kMustergroesse, devicePixelRatioF(), glatt_());
    // What the user has scrolled to stays there.
    if (zeilen == zeilen_) return;
    zeilen_ = std::move(zeilen);
    ZeigeZeilen();
}

void Zeichenseite::ZeigeZeilen() {
    baum_->clear();
    QTreeWidgetItem* gruppe = nullptr;
    for (const Bildzeile& z : zeilen_) {
        if (gruppe == nullptr || gruppe->text(0) != z.gruppe) {
            gruppe = new QTreeWidgetItem(baum_, {z.gruppe});
            QFont fett = font();
            fett.setBold(true);
            gruppe->setFont(0, fett);
            gruppe->setFirstColumnSpanned(true);
        }
        auto* zeile =
            new QTreeWidgetItem(gruppe, {z.text, QLocale().toString(static_cast<qulonglong>(z.anzahl))});
        if (!z.bild.isNull()) zeile->setIcon(0, QIcon(QPixmap::fromImage(z.bild)));
        zeile->setToolTip(0, z.text);
        zeile->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    }
    baum_->expandAll();
    baum_->scrollToTop();
}

}  // namespace zrw
