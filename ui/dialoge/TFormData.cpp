#include "ui/dialoge/TFormData.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QTabBar>
#include <QTableView>
#include <QVBoxLayout>

#include "ui/Umwandlung.h"

namespace zrw {
namespace {

const QString kFenster = QStringLiteral("Ergebnisse/Fenster");

QString Spalten(int reiter) {
    return QStringLiteral("Ergebnisse/Spalten%1").arg(reiter);
}

}  // namespace

TFormData::TFormData(Sitzung& sitzung, QWidget* eltern)
    : QDialog(eltern),
      sitzung_(sitzung),
      angaben_(new QLabel(this)),
      gitter_(new QTableView(this)),
      hinweis_(new QLabel(this)),
      reiter_(new QTabBar(this)) {
    setObjectName(QStringLiteral("TFormData"));
    setWindowTitle(QStringLiteral("Abriss nach der Ausgleichung"));
    // Whoever types point numbers goes on typing.
    setAttribute(Qt::WA_ShowWithoutActivating);
    angaben_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    BaueGitter();
    reiter_->setObjectName(QStringLiteral("TabControl1"));
    reiter_->setShape(QTabBar::RoundedSouth);
    reiter_->setExpanding(false);
    for (const Ergebnisreiter& r : kErgebnisreiter)
        reiter_->addTab(AusUtf8(r.titel));
    connect(reiter_, &QTabBar::currentChanged, this, [this] {
        if (reiterGewechselt) reiterGewechselt();
    });
    auto* spalte = new QVBoxLayout(this);
    spalte->setContentsMargins(6, 6, 6, 6);
    spalte->setSpacing(0);
    spalte->addWidget(angaben_);
    spalte->addSpacing(4);
    spalte->addWidget(gitter_, 1);
    spalte->addWidget(reiter_);
    spalte->addWidget(hinweis_);
    if (!restoreGeometry(sitzung_.Stand(kFenster))) resize(900, 320);
}

TFormData::~TFormData() {
    MerkeSpalten();
    sitzung_.MerkeStand(kFenster, saveGeometry());
}

void TFormData::BaueGitter() {
    gitter_->setObjectName(QStringLiteral("DBGrid1"));
    gitter_->setModel(&modell_);
    gitter_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    gitter_->setSelectionBehavior(QAbstractItemView::SelectRows);
    gitter_->setAlternatingRowColors(true);
    gitter_->setWordWrap(false);
    gitter_->setSortingEnabled(true);
    gitter_->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    gitter_->verticalHeader()->setDefaultSectionSize(gitter_->fontMetrics().height() + 6);
    gitter_->verticalHeader()->hide();
    connect(gitter_, &QTableView::doubleClicked, this,
            [this](const QModelIndex& stelle) { ZeigeEndpunkt(stelle.row()); });
    gitter_->setContextMenuPolicy(Qt::ActionsContextMenu);
    gitter_->installEventFilter(this);
    auto* kopieren = new QAction(QStringLiteral("Kopieren\tStrg+C"), gitter_);
    connect(kopieren, &QAction::triggered, this, [this] { Kopiere(false); });
    auto* alles = new QAction(QStringLiteral("Alles mit Überschriften kopieren"), gitter_);
    connect(alles, &QAction::triggered, this, [this] { Kopiere(true); });
    auto* zeigen = new QAction(QStringLiteral("Punkt im Bild zeigen"), gitter_);
    connect(zeigen, &QAction::triggered, this, [this] { ZeigeEndpunkt(gitter_->currentIndex().row()); });
    gitter_->addActions({kopieren, alles, zeigen});
}

/// The grid's own copying takes a single cell.
bool TFormData::eventFilter(QObject* empfaenger, QEvent* ereignis) {
    const bool taste = empfaenger == gitter_ && ereignis->type() == QEvent::KeyPress;
    if (!taste || !static_cast<QKeyEvent*>(ereignis)->matches(QKeySequence::Copy))
        return QDialog::eventFilter(empfaenger, ereignis);
    Kopiere(false);
    return true;
}

const Ergebnisreiter& TFormData::Reiter() const {
    return kErgebnisreiter[static_cast<std::size_t>(reiter_->currentIndex())];
}

void TFormData::Betitle(const QString& titel, const QString& angaben, const QString& nummer) {
    setWindowTitle(titel);
    angaben_->setText(angaben);
    nummer_ = nummer;
}

void TFormData::MerkeSpalten() const {
    if (gezeigt_ >= 0) sitzung_.MerkeStand(Spalten(gezeigt_), gitter_->horizontalHeader()->saveState());
}

void TFormData::Fuelle(Antwort antwort) {
    MerkeSpalten();
    const std::size_t zeilen = antwort.zeilen.size();
    gitter_->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);  // as the query orders them
    modell_.Setze(Beschreibung(Reiter().tabelle), std::move(antwort));
    if (const int neu = reiter_->currentIndex(); neu != gezeigt_) {
        gezeigt_ = neu;
        const QByteArray breiten = sitzung_.Stand(Spalten(neu));
        if (!gitter_->horizontalHeader()->restoreState(breiten)) gitter_->resizeColumnsToContents();
        gitter_->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    }
    hinweis_->setText(zeilen == 0   ? QStringLiteral("Keine Ergebnisse in dieser Tabelle")
                      : zeilen == 1 ? QStringLiteral("1 Zeile")
                                    : QStringLiteral("%1 Zeilen").arg(zeilen));
}

void TFormData::Leere(const QString& grund) {
    MerkeSpalten();
    gezeigt_ = -1;
    modell_.Leere();
    hinweis_->setText(grund);
}

void TFormData::Zeige() {
    show();
    raise();
}

void TFormData::Kopiere(bool alles) const {
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
    QGuiApplication::clipboard()->setText(zeilen.join(QLatin1Char('\n')));
}

/// The end of the row that is not the listed point; for rows of one point, that point.
void TFormData::ZeigeEndpunkt(int zeile) const {
    QString ziel = modell_.Text(zeile, "PKT");
    for (const auto& [von, nach] : {std::pair{"P1", "P2"}, {"PS", "PZ"}}) {
        const QString ende = modell_.Text(zeile, nach);
        if (!ende.isEmpty()) ziel = ende == nummer_ ? modell_.Text(zeile, von) : ende;
    }
    if (!ziel.isEmpty() && zeigePunkt) zeigePunkt(ziel);
}

}  // namespace zrw
