#include "ui/seitenleiste/Farbseite.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>

#include "model/Cp1252.h"
#include "model/Zahlentext.h"
#include "ui/Umwandlung.h"

namespace zrw {
namespace {

constexpr QSize kFarbfeld{60, 12};

/// The colours of as many classes as there can be.
QIcon Farbstreifen(Klassenfarben farben) {
    QPixmap bild(kFarbfeld);
    QPainter maler(&bild);
    const int weite = kFarbfeld.width() / static_cast<int>(kMeisteKlassen);
    bild.fill(Qt::white);
    for (std::size_t k = 0; k < kMeisteKlassen; ++k) {
        const std::uint32_t bgr = KlassenstilVon(farben, k, kMeisteKlassen).farbe.wert;
        maler.fillRect(static_cast<int>(k) * weite, 0, weite, kFarbfeld.height(),
                       QColor(static_cast<int>(bgr & 0xFFU), static_cast<int>((bgr >> 8U) & 0xFFU),
                              static_cast<int>((bgr >> 16U) & 0xFFU)));
    }
    maler.end();
    return QIcon(bild);
}

QString Grenzentext(const std::vector<double>& grenzen) {
    QStringList texte;
    for (const double g : grenzen)
        texte << AusUtf8(SchreibeReal(g));
    return texte.join(QStringLiteral(", "));
}

}  // namespace

Farbseite::Farbseite(Planfaerber& faerber, const Plan& plan, QWidget* eltern)
    : QWidget(eltern), faerber_(faerber), plan_(plan) {
    setObjectName(QStringLiteral("FarbSeite"));
    auto* spalte = new QVBoxLayout(this);
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    BaueEinfaerbung(*form);
    BaueFilter(*form);
    spalte->addLayout(form);
    hinweis_ = new QLabel(this);
    hinweis_->setObjectName(QStringLiteral("FarbHinweis"));
    hinweis_->setWordWrap(true);
    hinweis_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    spalte->addWidget(hinweis_);
    auto* zurueck = new QPushButton(QStringLiteral("Wie gewohnt zeichnen"), this);
    zurueck->setObjectName(QStringLiteral("FarbenAus"));
    zurueck->setToolTip(QStringLiteral("Alle Linien und Punkte in ihren eigenen Farben"));
    connect(zurueck, &QPushButton::clicked, this, [this] {
        faerber_.WaehleFaerbung({});
        ZeigeWahl();
    });
    spalte->addWidget(zurueck, 0, Qt::AlignLeft);
    spalte->addStretch();
    faerber_.geaendert = [this] { ZeigeWahl(); };
    ZeigeWahl();
}

template <class Feld>
Feld& Farbseite::NeuesFeld(const char* name, const char* zugang, const char* hinweis, Feld* feld) {
    feld->setObjectName(QString::fromLatin1(name));
    feld->setAccessibleName(QString::fromUtf8(zugang));
    feld->setToolTip(QString::fromUtf8(hinweis));
    return *feld;
}

void Farbseite::BaueEinfaerbung(QFormLayout& form) {
    groesse_ = &NeuesFeld("FarbGroesse", "Einfärben nach",
                          "Linien nach einem Wert ihrer Beobachtungen, Punkte nach ihrer Genauigkeit",
                          new QComboBox(this));
    groesse_->addItem(QStringLiteral("nichts"));
    for (const Farbgroessenzeile& g : kFarbgroessen)
        groesse_->addItem(AusUtf8(std::string(g.name) + " – " + std::string(g.bezeichnung)));
    gattung_ =
        &NeuesFeld("FarbGattung", "Beobachtungen, nach denen eingefärbt wird",
                   "Nur Beobachtungen dieser Art; manche Werte lassen sich nur innerhalb einer vergleichen",
                   new QComboBox(this));
    gattung_->addItem(QStringLiteral("alle Arten"));
    for (const Beobachtungsgattung& g : kBeobachtungsgattungen)
        gattung_->addItem(AusUtf8(g.mehrzahl));
    art_ =
        &NeuesFeld("FarbKlassenart", "Klassen", "Wie die Grenzen der Klassen entstehen", new QComboBox(this));
    for (const Klassenartzeile& k : kKlassenarten)
        art_->addItem(AusUtf8(k.bezeichnung));
    anzahl_ = &NeuesFeld("FarbAnzahl", "Anzahl der Klassen", "Zwei bis sieben", new QSpinBox(this));
    anzahl_->setRange(static_cast<int>(kWenigsteKlassen), static_cast<int>(kMeisteKlassen));
    grenzen_ = &NeuesFeld("FarbGrenzen", "Grenzen der Klassen",
                          "Eine bis sechs steigende Zahlen mit Kommas dazwischen", new QLineEdit(this));
    farben_ = &NeuesFeld("FarbPalette", "Farben der Klassen",
                         "Auch bei Farbfehlsicht zu unterscheiden: zum Auffälligen hin dunkler und breiter",
                         new QComboBox(this));
    farben_->setIconSize(kFarbfeld);
    for (const Farbverlauf& v : kFarbverlaeufe)
        farben_->addItem(Farbstreifen(v.farben), AusUtf8(v.bezeichnung));
    form.addRow(QStringLiteral("Einfärben nach"), groesse_);
    form.addRow(QStringLiteral("Beobachtungen"), gattung_);
    form.addRow(QStringLiteral("Klassen"), art_);
    form.addRow(QStringLiteral("Anzahl"), anzahl_);
    form.addRow(QStringLiteral("Grenzen"), grenzen_);
    form.addRow(QStringLiteral("Farben"), farben_);
    connect(groesse_, &QComboBox::activated, this, [this] { GroesseGewaehlt(); });
    for (QComboBox* wahl : {gattung_, art_, farben_})
        connect(wahl, &QComboBox::activated, this, [this] { NimmWahl(); });
    connect(anzahl_, &QSpinBox::valueChanged, this, [this] { NimmWahl(); });
    connect(grenzen_, &QLineEdit::editingFinished, this, [this] { NimmWahl(); });
}

void Farbseite::BaueFilter(QFormLayout& form) {
    auto* kaesten = new QVBoxLayout;
    for (const Kategoriezeile& k : kLinienkategorien) {
        QCheckBox*& kasten = kategorien_[static_cast<std::size_t>(k.kategorie)];
        kasten = new QCheckBox(AusUtf8(k.bezeichnung), this);
        kasten->setObjectName(QStringLiteral("Nur-") + AusUtf8(k.name));
        kasten->setToolTip(
            QStringLiteral("Nur Linien, die eine dieser Beobachtungen tragen; keine angekreuzt: alle"));
        connect(kasten, &QCheckBox::clicked, this, [this] { NimmWahl(); });
        kaesten->addWidget(kasten);
    }
    station_ = &NeuesFeld("NurPunkt", "Nur Linien von Punkt", "Nummer des Punktes; leer: alle Linien",
                          new QLineEdit(this));
    station_->setClearButtonEnabled(true);
    klasse_ = &NeuesFeld("NurKlasse", "Nur Linien der Klasse",
                         "Nur Linien einer Klasse, solange eingefärbt ist", new QComboBox(this));
    form.addRow(QStringLiteral("Nur Linien mit"), kaesten);
    form.addRow(QStringLiteral("von Punkt"), station_);
    form.addRow(QStringLiteral("der Klasse"), klasse_);
    connect(station_, &QLineEdit::editingFinished, this, [this] { NimmWahl(); });
    connect(klasse_, &QComboBox::activated, this, [this] { NimmWahl(); });
}

/// Sensible first classes, and one kind of observations where the value asks for one.
void Farbseite::GroesseGewaehlt() {
    const QScopedValueRollback stellt(stellt_, true);
    if (groesse_->currentIndex() > 0) {
        const auto g = static_cast<Farbgroesse>(groesse_->currentIndex() - 1);
        const Klassenwahl klassen = UeblicheKlassen(g);
        art_->setCurrentIndex(static_cast<int>(klassen.art));
        anzahl_->setValue(static_cast<int>(klassen.anzahl));
        grenzen_->setText(Grenzentext(klassen.grenzen));
        gattung_->setCurrentIndex(ZurGroesse(g).nurJeGattung ? std::max(gattung_->currentIndex(), 1) : 0);
    }
    klasse_->setCurrentIndex(0);
    stellt_ = false;
    NimmWahl();
}

std::optional<Einfaerbung> Farbseite::GeleseneEinfaerbung() {
    if (groesse_->currentIndex() <= 0) return std::nullopt;
    Einfaerbung e;
    e.groesse = static_cast<Farbgroesse>(groesse_->currentIndex() - 1);
    const Farbgroessenzeile& zeile = ZurGroesse(e.groesse);
    if (zeile.wert && gattung_->currentIndex() > 0)
        e.gattung = static_cast<Beobachtungstabelle>(gattung_->currentIndex() - 1);
    if (zeile.nurJeGattung && !e.gattung) e.gattung = Beobachtungstabelle::Strecken;
    e.farben = static_cast<Klassenfarben>(farben_->currentIndex());
    e.klassen = {
        static_cast<Klassenart>(art_->currentIndex()), {}, static_cast<std::size_t>(anzahl_->value())};
    if (e.klassen.art != Klassenart::VonHand) return e;
    QString text = grenzen_->text();
    e.klassen.grenzen = LiesGrenzen(NachUtf8(text.replace(u';', u',')));
    if (e.klassen.grenzen.empty() || e.klassen.grenzen.size() >= kMeisteKlassen) {
        mangel_ = QStringLiteral(
            "Grenzen sind eine bis sechs steigende Zahlen mit Kommas dazwischen, etwa 1, 2, 3.29.");
        e.klassen = UeblicheKlassen(e.groesse);
    }
    return e;
}

Planfaerbung Farbseite::Gelesen() {
    mangel_.clear();
    Planfaerbung wahl{.einfaerbung = GeleseneEinfaerbung()};
    for (std::size_t i = 0; i < kategorien_.size(); ++i)
        wahl.filter.kategorien[i] = kategorien_[i]->isChecked();
    if (const QString nummer = station_->text().trimmed(); !nummer.isEmpty() && plan_.Offen()) {
        wahl.filter.station = plan_.Daten()->FindPunktNr(PunktNummernTyp(Utf8NachCp1252(NachUtf8(nummer))));
        if (wahl.filter.station == kKeinPunkt)
            mangel_ = QStringLiteral("Den Punkt %1 gibt es im Netz nicht.").arg(nummer);
    }
    if (klasse_->currentIndex() > 0 && wahl.einfaerbung && ZurGroesse(wahl.einfaerbung->groesse).wert)
        wahl.filter.klasse = static_cast<std::size_t>(klasse_->currentIndex() - 1);
    return wahl;
}

void Farbseite::NimmWahl() {
    if (stellt_) return;
    const Planfaerbung wahl = Gelesen();
    // What cannot be read changes nothing.
    if (mangel_.isEmpty()) {
        faerber_.WaehleFaerbung(wahl);
    } else {
        hinweis_->setText(mangel_);
    }
    StelleFelder();
}

void Farbseite::ZeigeKlassen(const Planfaerbung& wahl) {
    klasse_->clear();
    klasse_->addItem(QStringLiteral("alle Klassen"));
    const Figurenstile* stile = plan_.Offen() ? plan_.Daten()->Stile.get() : nullptr;
    if (stile != nullptr && !stile->punkte) {
        for (const Stilzeile& z : stile->zeilen)
            klasse_->addItem(AusUtf8(z.text));
    }
    const auto gewaehlt = static_cast<int>(wahl.filter.klasse.value_or(0)) + (wahl.filter.klasse ? 1 : 0);
    klasse_->setCurrentIndex(gewaehlt < klasse_->count() ? gewaehlt : 0);
}

/// Fields that mean nothing now are off.
void Farbseite::StelleFelder() {
    const int stelle = groesse_->currentIndex();
    const bool ein = stelle > 0;
    const bool linien = ein && kFarbgroessen[static_cast<std::size_t>(stelle) - 1].wert.has_value();
    const bool vonHand = art_->currentIndex() == static_cast<int>(Klassenart::VonHand);
    gattung_->setEnabled(linien);
    art_->setEnabled(ein);
    anzahl_->setEnabled(ein && !vonHand);
    grenzen_->setEnabled(ein && vonHand);
    farben_->setEnabled(ein);
    klasse_->setEnabled(linien);
}

void Farbseite::ZeigeWahl() {
    const QScopedValueRollback stellt(stellt_, true);
    const Planfaerbung& wahl = faerber_.Wahl();
    groesse_->setCurrentIndex(wahl.einfaerbung ? static_cast<int>(wahl.einfaerbung->groesse) + 1 : 0);
    if (const auto& e = wahl.einfaerbung) {
        gattung_->setCurrentIndex(e->gattung ? static_cast<int>(*e->gattung) + 1 : 0);
        art_->setCurrentIndex(static_cast<int>(e->klassen.art));
        anzahl_->setValue(static_cast<int>(std::clamp(e->klassen.anzahl, kWenigsteKlassen, kMeisteKlassen)));
        if (e->klassen.art == Klassenart::VonHand) grenzen_->setText(Grenzentext(e->klassen.grenzen));
        farben_->setCurrentIndex(static_cast<int>(e->farben));
    }
    for (std::size_t i = 0; i < kategorien_.size(); ++i)
        kategorien_[i]->setChecked(wahl.filter.kategorien[i]);
    const PktText* nummer = plan_.Offen() && wahl.filter.station != kKeinPunkt
                                ? plan_.Daten()->FindPktText(wahl.filter.station)
                                : nullptr;
    station_->setText(nummer != nullptr ? AusNetz(std::string(nummer->Aus.Text())) : QString());
    ZeigeKlassen(wahl);
    hinweis_->setText(faerber_.Hinweis());
    StelleFelder();
}

}  // namespace zrw
