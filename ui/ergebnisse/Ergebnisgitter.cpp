#include "ui/ergebnisse/Ergebnisgitter.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTabBar>
#include <QVBoxLayout>

#include "ui/Symbol.h"
#include "ui/Umwandlung.h"
#include "ui/ergebnisse/Festspaltentafel.h"

namespace zrw {
namespace {

/// Widths by field: two columns of a table may have one title.
QString Spaltenschluessel(int reiter) {
    return QStringLiteral("Ergebnisse/Feldbreiten%1").arg(reiter);
}

template <class Zahl>
QString Zeilentext(Zahl zeilen) {
    return zeilen == 1 ? QStringLiteral("1 Zeile") : QStringLiteral("%1 Zeilen").arg(zeilen);
}

}  // namespace

Ergebnisgitter::Ergebnisgitter(Sitzung& sitzung, QWidget* eltern)
    : QWidget(eltern),
      sitzung_(sitzung),
      gitter_(new Festspaltentafel(this)),
      hinweis_(new QLabel(this)),
      reiter_(new QTabBar(this)) {
    BaueGitter();
    hinweis_->setObjectName(QStringLiteral("ErgebnisHinweis"));
    hinweis_->setWordWrap(true);
    reiter_->setAccessibleName(QStringLiteral("Ergebnistabelle"));
    reiter_->setShape(QTabBar::RoundedSouth);
    reiter_->setExpanding(false);
    for (const Ergebnisreiter& r : kErgebnisreiter)
        reiter_->addTab(AusUtf8(r.titel));
    connect(reiter_, &QTabBar::currentChanged, this, [this] {
        if (reiterGewechselt) reiterGewechselt();
        gitter_->horizontalScrollBar()->setValue(0);
    });
    const int bild = fontMetrics().height();
    reiter_->setIconSize({bild, bild});
    auto* spalte = new QVBoxLayout(this);
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->setSpacing(0);
    spalte->addWidget(gitter_, 1);
    spalte->addWidget(reiter_);
    spalte->addWidget(hinweis_);
}

void Ergebnisgitter::SetzeNamen(const QString& gitter, const QString& reiter) {
    gitter_->setObjectName(gitter);
    reiter_->setObjectName(reiter);
}

void Ergebnisgitter::BaueGitter() {
    gitter_->setAccessibleName(QStringLiteral("Ergebnisse der Ausgleichung"));
    gitter_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    gitter_->setSelectionBehavior(QAbstractItemView::SelectRows);
    gitter_->setAlternatingRowColors(true);
    gitter_->setWordWrap(false);
    gitter_->setSortingEnabled(true);
    gitter_->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    gitter_->verticalHeader()->setDefaultSectionSize(gitter_->fontMetrics().height() + 6);
    gitter_->verticalHeader()->hide();
    gitter_->setContextMenuPolicy(Qt::ActionsContextMenu);
    gitter_->installEventFilter(this);
    auto* kopieren = new QAction(QStringLiteral("Kopieren\tStrg+C"), gitter_);
    connect(kopieren, &QAction::triggered, this, [this] { KopiereZeilen(false); });
    auto* alles = new QAction(QStringLiteral("Alles mit Überschriften kopieren"), gitter_);
    connect(alles, &QAction::triggered, this, [this] { KopiereZeilen(true); });
    auto* zeigen = new QAction(QStringLiteral("Punkt im Bild zeigen"), gitter_);
    connect(zeigen, &QAction::triggered, this, [this] { ZeigeEndpunkt(gitter_->currentIndex().row()); });
    gitter_->addActions({kopieren, alles, zeigen});
    gitter_->setModel(&modell_);
    connect(gitter_, &QTableView::doubleClicked, this,
            [this](const QModelIndex& stelle) { ZeigeEndpunkt(stelle.row()); });
    connect(gitter_->horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int spalte, int /*vorher*/, int weite) { MerkeBreite(spalte, weite); });
}

/// The grid's own copying takes a single cell.
bool Ergebnisgitter::eventFilter(QObject* empfaenger, QEvent* ereignis) {
    const bool taste = empfaenger == gitter_ && ereignis->type() == QEvent::KeyPress;
    if (!taste || !static_cast<QKeyEvent*>(ereignis)->matches(QKeySequence::Copy))
        return QWidget::eventFilter(empfaenger, ereignis);
    KopiereZeilen(false);
    return true;
}

const Ergebnisreiter& Ergebnisgitter::Reiter() const {
    return kErgebnisreiter[static_cast<std::size_t>(reiter_->currentIndex())];
}

/// Fits the columns to their content, but for those that the user has given a width.
void Ergebnisgitter::StelleSpaltenEin() {
    const QStringList breiten =
        QString::fromUtf8(sitzung_.Stand(Spaltenschluessel(reiter_->currentIndex()))).split(u';');
    stelltEin_ = true;
    gitter_->resizeColumnsToContents();
    for (int s = 0; s < modell_.columnCount(); ++s) {
        const QString anfang = modell_.Feldname(s) + QLatin1Char('=');
        for (const QString& b : breiten) {
            if (const int weite = b.mid(anfang.size()).toInt(); b.startsWith(anfang) && weite > 0)
                gitter_->setColumnWidth(s, weite);
        }
    }
    stelltEin_ = false;
    gitter_->SetzeFeste(modell_.Kopfspalten());
}

void Ergebnisgitter::MerkeBreite(int spalte, int weite) {
    if (stelltEin_ || spalte >= modell_.columnCount()) return;
    const QString anfang = modell_.Feldname(spalte) + QLatin1Char('=');
    QStringList breiten = QString::fromUtf8(sitzung_.Stand(Spaltenschluessel(reiter_->currentIndex())))
                              .split(u';', Qt::SkipEmptyParts);
    breiten.removeIf([&](const QString& b) { return b.startsWith(anfang); });
    breiten << anfang + QString::number(weite);
    sitzung_.MerkeStand(Spaltenschluessel(reiter_->currentIndex()), breiten.join(u';').toUtf8());
}

void Ergebnisgitter::FuelleGitter(Antwort antwort, const QString& zusatz) {
    const std::size_t zeilen = antwort.zeilen.size();
    gitter_->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);  // as the query orders them
    stelltEin_ = true;
    modell_.SetzeTabelle(Beschreibung(Reiter().tabelle), std::move(antwort));
    stelltEin_ = false;
    StelleSpaltenEin();
    const QString anzahl =
        zeilen == 0 ? QStringLiteral("Keine Ergebnisse in dieser Tabelle") : Zeilentext(zeilen);
    hinweis_->setText(zusatz.isEmpty() ? anzahl : anzahl + QStringLiteral(". ") + zusatz);
}

void Ergebnisgitter::ZeigeZeilenzahlen(std::span<const std::optional<TDM::Zeilenzahl>> zahlen) {
    for (int i = 0; i < reiter_->count(); ++i) {
        const auto stelle = static_cast<std::size_t>(i);
        const auto zahl = stelle < zahlen.size() ? zahlen[stelle] : std::nullopt;
        const bool leer = zahl && zahl->zeilen == 0;
        const bool markiert = zahl && zahl->markiert > 0;
        QString text = !zahl ? QString() : leer ? QStringLiteral("keine Zeilen") : Zeilentext(zahl->zeilen);
        if (markiert) text += QStringLiteral(", davon %1 als grob falsch bezeichnet").arg(zahl->markiert);
        reiter_->setTabTextColor(i, leer ? palette().color(QPalette::Disabled, QPalette::Text) : QColor());
        reiter_->setTabIcon(i, markiert ? Symbol("auffaellig") : QIcon());
        reiter_->setTabToolTip(i, text);
        reiter_->setAccessibleTabName(
            i, text.isEmpty() ? QString() : reiter_->tabText(i) + QStringLiteral(", ") + text);
    }
}

void Ergebnisgitter::WaehleReiter(int reiter) {
    const QSignalBlocker still(reiter_);
    reiter_->setCurrentIndex(reiter);
}

void Ergebnisgitter::LeereGitter(const QString& grund) {
    stelltEin_ = true;
    modell_.LeereTabelle();
    stelltEin_ = false;
    hinweis_->setText(grund);
}

void Ergebnisgitter::KopiereZeilen(bool alles) const {
    QStringList zeilen;
    const int spalten = modell_.columnCount();
    if (alles) {
        QStringList titel;
        for (int s = 0; s < spalten; ++s)
            titel << modell_.headerData(s, Qt::Horizontal, Qt::DisplayRole).toString();
        zeilen << titel.join(QLatin1Char('\t'));
    }
    for (int z = 0; z < modell_.rowCount(); ++z) {
        if (!alles && !gitter_->selectionModel()->isRowSelected(z)) continue;
        QStringList texte;
        for (int s = 0; s < spalten; ++s)
            texte << modell_.data(modell_.index(z, s), Qt::DisplayRole).toString();
        zeilen << texte.join(QLatin1Char('\t'));
    }
    if (zeilen.isEmpty()) return;
    QGuiApplication::clipboard()->setText(zeilen.join(QLatin1Char('\n')));
    if (kopiert) kopiert(zeilen.size() - (alles ? 1 : 0));
}

/// The end of the row that is not the listed point; for rows of one point, that point.
void Ergebnisgitter::ZeigeEndpunkt(int zeile) const {
    QString ziel = modell_.Text(zeile, "PKT");
    for (const auto& [von, nach] : {std::pair{"P1", "P2"}, {"PS", "PZ"}, {"PA", "PE"}}) {
        const QString ende = modell_.Text(zeile, nach);
        if (!ende.isEmpty()) ziel = ende == nummer_ ? modell_.Text(zeile, von) : ende;
    }
    if (!ziel.isEmpty() && zeigePunkt) zeigePunkt(ziel);
}

}  // namespace zrw
