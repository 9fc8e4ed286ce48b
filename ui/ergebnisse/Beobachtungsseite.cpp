#include "ui/ergebnisse/Beobachtungsseite.h"

#include <QAction>
#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QScopedValueRollback>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>
#include <array>

#include "model/Fehler.h"
#include "output/ergebnisse/Beobachtungsdatei.h"
#include "ui/Umwandlung.h"
#include "ui/ergebnisse/Beobachtungsfilter.h"
#include "ui/ergebnisse/Beobachtungstext.h"

namespace zrw {
namespace {

/// Rows that are selected from outside in one go; drawing looks at each run of them for every cell.
constexpr int kMeisteBereiche = 500;

/// Widths that fit what usually stands in the columns: looking at all rows would take too long.
constexpr std::array<const char*, kListenspalten.size()> kMuster{"Höhenunterschied",
                                                                 "00000",
                                                                 "00000000000000",
                                                                 "00000000000000",
                                                                 "-00000.0000",
                                                                 "-0000.000",
                                                                 "-00.00",
                                                                 "0.00",
                                                                 "-0000.00",
                                                                 "0000.00",
                                                                 "-0000.00",
                                                                 "0000.00",
                                                                 "● FF",
                                                                 "NK",
                                                                 "0000.000",
                                                                 "0000.000",
                                                                 "000.000"};

}  // namespace

Beobachtungsseite::Beobachtungsseite(Umfeld umfeld, QWidget* eltern)
    : QWidget(eltern),
      u_(std::move(umfeld)),
      filter_(new Beobachtungsfilter(this)),
      tabelle_(new QTableView(this)),
      anzahl_(new QLabel(this)) {
    BaueTabelle();
    BaueMenue();
    anzahl_->setObjectName(QStringLiteral("BeobachtungsAnzahl"));
    anzahl_->setTextFormat(Qt::PlainText);
    anzahl_->setWordWrap(true);
    anzahl_->setMargin(2);
    auto* spalte = new QVBoxLayout(this);
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->setSpacing(0);
    spalte->addWidget(filter_);
    spalte->addWidget(tabelle_, 1);
    spalte->addWidget(anzahl_);
    modell_.gegenrichtung = u_.gegenrichtung;
    filter_->geaendert = [this] {
        modell_.SetzeFilter(filter_->Filter());
        ZeigeAnzahl();
    };
    u_.stand.BeiAenderung(*this, [this] {
        if (isVisible()) ZeigeListe();
    });
}

void Beobachtungsseite::BaueTabelle() {
    tabelle_->setObjectName(QStringLiteral("BeobachtungsTabelle"));
    tabelle_->setAccessibleName(QStringLiteral("Liste der Beobachtungen"));
    tabelle_->setModel(&modell_);
    tabelle_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabelle_->setSelectionBehavior(QAbstractItemView::SelectRows);
    tabelle_->setWordWrap(false);
    tabelle_->setTabKeyNavigation(false);
    tabelle_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    tabelle_->verticalHeader()->setDefaultSectionSize(tabelle_->fontMetrics().height() + 6);
    tabelle_->verticalHeader()->hide();
    // The order that the model begins with; the largest first is what everybody looks for.
    tabelle_->horizontalHeader()->setSortIndicator(static_cast<int>(Listenspalte::TG), Qt::DescendingOrder);
    tabelle_->setSortingEnabled(true);
    SetzeBreiten(0, modell_.columnCount());
    connect(tabelle_->horizontalHeader(), &QHeaderView::sectionCountChanged, this,
            [this](int vorher, int jetzt) { SetzeBreiten(vorher, jetzt); });
    connect(&modell_, &QAbstractItemModel::modelAboutToBeReset, this,
            [this] { gemerkt_ = GewaehlteStellen(); });
    connect(&modell_, &QAbstractItemModel::modelReset, this, [this] { WaehleStellen(gemerkt_); });
    connect(tabelle_->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (!folgt_) ZeigeGewaehlte();
    });
    // The row may be selected already, and the picture have gone elsewhere.
    connect(tabelle_, &QTableView::clicked, this, [this] { ZeigeGewaehlte(); });
    tabelle_->installEventFilter(this);
}

/// Of columns that have come.
void Beobachtungsseite::SetzeBreiten(int von, int bis) {
    constexpr int kLuft = 14;
    QFont fett = tabelle_->font();  // as flagged rows are
    fett.setBold(true);
    for (int s = von; s < bis; ++s) {
        const QString muster = QString::fromUtf8(kMuster[static_cast<std::size_t>(s)]);
        tabelle_->setColumnWidth(s, QFontMetrics(fett).horizontalAdvance(muster) + kLuft);
    }
}

void Beobachtungsseite::BaueMenue() {
    tabelle_->setContextMenuPolicy(Qt::ActionsContextMenu);
    const auto nimm = [this](const QString& text, auto tun) {
        auto* aktion = new QAction(text, tabelle_);
        connect(aktion, &QAction::triggered, this, tun);
        tabelle_->addAction(aktion);
        return aktion;
    };
    nimm(QStringLiteral("Kopieren\tStrg+C"), [this] { KopiereZeilen(false); });
    nimm(QStringLiteral("Alles mit Überschriften kopieren"), [this] { KopiereZeilen(true); });
    nimm(QStringLiteral("Als CSV speichern ..."), [this] {
        SpeichereListe();
    })->setObjectName(QStringLiteral("ListeSpeichern"));
}

/// The table's own copying takes a single cell.
bool Beobachtungsseite::eventFilter(QObject* empfaenger, QEvent* ereignis) {
    const bool taste = empfaenger == tabelle_ && ereignis->type() == QEvent::KeyPress;
    if (!taste || !static_cast<QKeyEvent*>(ereignis)->matches(QKeySequence::Copy))
        return QWidget::eventFilter(empfaenger, ereignis);
    KopiereZeilen(false);
    return true;
}

void Beobachtungsseite::showEvent(QShowEvent* ereignis) {
    QWidget::showEvent(ereignis);
    ZeigeListe();
}

void Beobachtungsseite::ZeigeListe() {
    modell_.SetzeListe(u_.stand.Liste());
    ZeigeAnzahl();
    u_.folge(*this);
}

void Beobachtungsseite::ZeigeAnzahl() {
    const Beobachtungsliste& liste = modell_.Liste();
    if (OhneTabellen(liste))
        return anzahl_->setText(
            QStringLiteral("Beim Netz liegen keine Tabellen der Ausgleichung mit Beobachtungen."));
    QString text = QStringLiteral("%1 von %2 Beobachtungen").arg(modell_.rowCount()).arg(liste.zeilen.size());
    if (const QString unlesbare = UnlesbareTabellen(liste); !unlesbare.isEmpty())
        text += QStringLiteral("; nicht lesbar:\n") + unlesbare;
    anzahl_->setText(text);
}

// --- Selecting --------------------------------------------------------------------------------------------

/// A single row; several are for copying.
void Beobachtungsseite::ZeigeGewaehlte() {
    const QItemSelection wahl = tabelle_->selectionModel()->selection();
    if (wahl.size() == 1 && wahl.front().height() == 1) u_.zeige(modell_.Zeile(wahl.front().top()));
}

std::vector<bool> Beobachtungsseite::GewaehlteStellen() const {
    std::vector<bool> stellen(modell_.Liste().zeilen.size(), false);
    for (const QItemSelectionRange& bereich : tabelle_->selectionModel()->selection()) {
        for (int zeile = bereich.top(); zeile <= bereich.bottom(); ++zeile)
            stellen[modell_.Stelle(zeile)] = true;
    }
    return stellen;
}

void Beobachtungsseite::SchraenkeEin(const Listenfilter& filter) {
    filter_->SetzeAusschnitt(filter);
}

void Beobachtungsseite::WaehleZeilen(const std::function<bool(const Beobachtung&)>& gemeint) {
    std::vector<bool> stellen(modell_.Liste().zeilen.size(), false);
    for (int zeile = 0; zeile < modell_.rowCount(); ++zeile)
        stellen[modell_.Stelle(zeile)] = gemeint(modell_.Zeile(zeile));
    WaehleStellen(stellen);
}

void Beobachtungsseite::WaehleStellen(const std::vector<bool>& stellen) {
    QItemSelection wahl;
    const int letzteSpalte = modell_.columnCount() - 1;
    const int zeilen = modell_.rowCount();
    const auto gewaehlt = [&](int zeile) {
        return zeile < zeilen && modell_.Stelle(zeile) < stellen.size() && stellen[modell_.Stelle(zeile)];
    };
    for (int zeile = 0; zeile < zeilen && wahl.size() < kMeisteBereiche; ++zeile) {
        const int anfang = zeile;
        while (gewaehlt(zeile))
            ++zeile;
        if (zeile > anfang) wahl.select(modell_.index(anfang, 0), modell_.index(zeile - 1, letzteSpalte));
    }
    const QScopedValueRollback folgt(folgt_, true);
    tabelle_->selectionModel()->select(wahl, QItemSelectionModel::ClearAndSelect);
    if (wahl.isEmpty()) return;
    const QModelIndex erste = modell_.index(wahl.front().top(), 0);
    tabelle_->selectionModel()->setCurrentIndex(erste, QItemSelectionModel::NoUpdate);
    tabelle_->scrollTo(modell_.index(erste.row(), tabelle_->columnAt(0)));
}

// --- Taking it elsewhere ----------------------------------------------------------------------------------

void Beobachtungsseite::KopiereZeilen(bool alles) {
    const std::vector<bool> gewaehlt = GewaehlteStellen();
    QString text;
    const Spalten spalten = SpaltenVon(modell_.Liste());
    for (const Spaltenbeschreibung& s : spalten) {
        if (alles) text += AusUtf8(s.name) + QLatin1Char(s.spalte == spalten.back().spalte ? '\n' : '\t');
    }
    qsizetype zeilen = 0;
    for (int zeile = 0; zeile < modell_.rowCount(); ++zeile) {
        if (!alles && !gewaehlt[modell_.Stelle(zeile)]) continue;
        ++zeilen;
        QStringList zellen;
        for (const Spaltenbeschreibung& s : spalten)
            zellen << Zellentext(modell_.Zeile(zeile), s.spalte);
        text += zellen.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    if (zeilen == 0) return;
    text.chop(1);
    QGuiApplication::clipboard()->setText(text);
    u_.melde(QStringLiteral("Beobachtungen kopiert: %1").arg(zeilen));
}

/// All rows, whatever is shown of them.
void Beobachtungsseite::SpeichereListe() {
    const QFileInfo netz(u_.datei());
    const auto name = u_.programm.dialoge.WaehleZumSpeichern(
        {QStringLiteral("Beobachtungen speichern"), QStringLiteral("CSV-Datei (*.csv)"), netz.absolutePath(),
         netz.completeBaseName() + QStringLiteral("_beobachtungen.csv"), QStringLiteral("csv")});
    if (!name) return;
    const auto liste = u_.stand.Liste();
    try {
        SchreibeBeobachtungen(*liste, u_.programm.dateien.BeginneDatei(NachPfad(*name)));
    } catch (const std::exception& f) {
        return u_.programm.dialoge.MeldeFehler(AusUtf8(Fehlertext(f)));
    }
    u_.melde(QStringLiteral("Gespeichert: %1 (%2 Beobachtungen)").arg(*name).arg(liste->zeilen.size()));
    if (const QString unlesbare = UnlesbareTabellen(*liste); !unlesbare.isEmpty())
        u_.programm.dialoge.MeldeFehler(QStringLiteral("Nicht lesbar und darum nicht in der Datei:\n") +
                                        unlesbare);
}

}  // namespace zrw
