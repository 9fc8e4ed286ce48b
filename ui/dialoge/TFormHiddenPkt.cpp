#include "ui/dialoge/TFormHiddenPkt.h"

#include <QHBoxLayout>
#include <QListView>
#include <QPushButton>
#include <QStringListModel>
#include <algorithm>

#include "ui/fenster/Nummernordnung.h"

namespace zrw {

/// The list outlives a network: what is of no use in the open one is greyed, not removed.
class TFormHiddenPkt::Nummernmodell final : public QStringListModel {
  public:
    explicit Nummernmodell(TFormHiddenPkt& fenster) : QStringListModel(&fenster), fenster_(fenster) {}

    [[nodiscard]] QVariant data(const QModelIndex& stelle, int rolle) const override {
        if (rolle != Qt::ForegroundRole && rolle != Qt::ToolTipRole)
            return QStringListModel::data(stelle, rolle);
        const QString nummer = QStringListModel::data(stelle, Qt::DisplayRole).toString();
        const QString grund = fenster_.hindernis ? fenster_.hindernis(nummer) : QString();
        if (grund.isEmpty()) return {};
        if (rolle == Qt::ToolTipRole) return grund;
        return fenster_.palette().brush(QPalette::Disabled, QPalette::Text);
    }

  private:
    const TFormHiddenPkt& fenster_;
};

TFormHiddenPkt::TFormHiddenPkt(QWidget* eltern)
    : QDialog(eltern), ListBox1_(new QListView(this)), nummern_(new Nummernmodell(*this)) {
    setObjectName(QStringLiteral("TFormHiddenPkt"));
    setWindowTitle(QStringLiteral("Versteckte Punkte"));
    ListBox1_->setObjectName(QStringLiteral("ListBox1"));
    ListBox1_->setAccessibleName(QStringLiteral("Versteckte Punkte"));
    ListBox1_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    ListBox1_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    ListBox1_->setUniformItemSizes(true);
    ListBox1_->setModel(nummern_);
    auto* anzeigen = new QPushButton(QStringLiteral("Anzeigen"), this);
    anzeigen->setObjectName(QStringLiteral("UnhiddenButton"));
    anzeigen->setToolTip(QStringLiteral("Markierte Punkte wieder zeichnen"));
    auto* schliessen = new QPushButton(QStringLiteral("Schließen"), this);
    schliessen->setObjectName(QStringLiteral("Button2"));

    auto* spalte = new QVBoxLayout(this);
    spalte->addWidget(ListBox1_, 1);
    auto* knoepfe = new QHBoxLayout;
    knoepfe->addStretch();
    knoepfe->addWidget(anzeigen);
    knoepfe->addWidget(schliessen);
    spalte->addLayout(knoepfe);

    connect(anzeigen, &QPushButton::clicked, this, [this] { ZeigeGewaehlte(); });
    connect(schliessen, &QPushButton::clicked, this, &QDialog::close);
}

void TFormHiddenPkt::NetzGeaendert() {
    ListBox1_->viewport()->update();
}

void TFormHiddenPkt::NimmNummer(const QString& nummer) {
    const QStringList alle = nummern_->stringList();
    const int ort =
        static_cast<int>(std::upper_bound(alle.begin(), alle.end(), nummer, NummerVor) - alle.begin());
    // Inserted instead of set anew, so that the rows around it stay selected.
    nummern_->insertRow(ort);
    nummern_->setData(nummern_->index(ort), nummer);
}

void TFormHiddenPkt::NimmNummern(const QStringList& nummern) {
    QStringList alle = nummern_->stringList() + nummern;
    OrdneNummern(alle);
    nummern_->setStringList(alle);
}

void TFormHiddenPkt::SetzeNummern(const QStringList& nummern) {
    nummern_->setStringList({});
    NimmNummern(nummern);
}

void TFormHiddenPkt::EntferneNummer(const QString& nummer) {
    const auto ort = nummern_->stringList().indexOf(nummer);
    if (ort >= 0) nummern_->removeRow(static_cast<int>(ort));
}

QStringList TFormHiddenPkt::Nummern() const {
    return nummern_->stringList();
}

void TFormHiddenPkt::ZeigeGewaehlte() {
    const QStringList alle = nummern_->stringList();
    if (alle.isEmpty()) return;
    QModelIndexList zeilen = ListBox1_->selectionModel()->selectedRows();
    std::sort(zeilen.begin(), zeilen.end());
    QStringList gewaehlte;
    QStringList bleiben;
    auto naechste = zeilen.begin();
    for (int i = 0; i < alle.size(); ++i) {
        const bool gewaehlt = naechste != zeilen.end() && naechste->row() == i;
        if (gewaehlt) ++naechste;
        (gewaehlt ? gewaehlte : bleiben) << alle[i];
    }
    nummern_->setStringList(bleiben);
    if (zeige) {
        for (const QString& nummer : gewaehlte)
            zeige(nummer);
    }
    if (fertig) fertig();
}

}  // namespace zrw
