#include "ui/seitenleiste/Statistikseite.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>
#include <utility>

#include "model/Fehler.h"
#include "ui/Umwandlung.h"
#include "ui/ergebnisse/Ergebnisstand.h"
#include "ui/ergebnisse/Statistiktext.h"
#include "ui/seitenleiste/Histogrammfeld.h"

namespace zrw {

Statistikseite::Statistikseite(Umfeld umfeld, QWidget* eltern)
    : QWidget(eltern), u_(std::move(umfeld)), liste_(std::make_shared<Beobachtungsliste>()) {
    setObjectName(QStringLiteral("StatistikSeite"));
    BaueFelder();
    u_.stand.BeiAenderung(*this, [this] { ErneuereStatistik(); });
}

void Statistikseite::BaueFelder() {
    text_ = new QTextBrowser(this);
    text_->setObjectName(QStringLiteral("StatistikText"));
    text_->setAccessibleName(QStringLiteral("Statistik der Beobachtungen"));
    text_->setOpenLinks(false);
    connect(text_, &QTextBrowser::anchorClicked, this,
            [this](const QUrl& ziel) { FolgeVerweis(ziel.scheme(), ziel.path()); });
    gattung_ = new QComboBox(this);
    gattung_->setObjectName(QStringLiteral("StatistikGattung"));
    gattung_->setAccessibleName(QStringLiteral("Beobachtungen in den Diagrammen"));
    gattung_->setToolTip(QStringLiteral("Welche Beobachtungen die Diagramme zählen"));
    gattung_->addItem(QStringLiteral("alle Beobachtungen"));
    for (const Beobachtungsgattung& g : kBeobachtungsgattungen)
        gattung_->addItem(AusUtf8(g.mehrzahl));
    connect(gattung_, &QComboBox::activated, this, [this] { ZeigeBilder(); });
    grenze_ = new QDoubleSpinBox(this);
    grenze_->setObjectName(QStringLiteral("StatistikGrenze"));
    grenze_->setAccessibleName(QStringLiteral("Grenze der Testgrößen"));
    grenze_->setToolTip(QStringLiteral("Testgrößen werden an dieser Grenze gemessen"));
    grenze_->setRange(0.5, 20.0);
    grenze_->setSingleStep(0.1);
    grenze_->setValue(kUeblicheTestgrenze);
    connect(grenze_, &QDoubleSpinBox::valueChanged, this, [this] { ErneuereStatistik(); });
    testgroessen_ = new Histogrammfeld("TestgroessenBild", "Diagramm der Testgrößen", this);
    redundanz_ = new Histogrammfeld("RedundanzBild", "Diagramm der Redundanzanteile", this);
    for (Histogrammfeld* feld : {testgroessen_, redundanz_})
        feld->gewaehlt = [this](const Statistikbild& b, std::size_t k) { FiltereKlasse(b, k); };
    auto* speichern = new QPushButton(QStringLiteral("Als PDF speichern…"), this);
    speichern->setObjectName(QStringLiteral("StatistikSpeichern"));
    speichern->setToolTip(QStringLiteral("Die Statistik als Blatt A4"));
    connect(speichern, &QPushButton::clicked, this, [this] { SpeichereBlatt(); });
    auto* reihe = new QHBoxLayout;
    reihe->addWidget(gattung_, 1);
    reihe->addWidget(new QLabel(QStringLiteral("Grenze |TG|"), this));
    reihe->addWidget(grenze_);
    auto* spalte = new QVBoxLayout(this);
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->addWidget(text_, 1);
    spalte->addLayout(reihe);
    spalte->addWidget(testgroessen_);
    spalte->addWidget(redundanz_);
    spalte->addWidget(speichern, 0, Qt::AlignLeft);
}

void Statistikseite::showEvent(QShowEvent* ereignis) {
    QWidget::showEvent(ereignis);
    ErneuereStatistik();
}

const Punktergebnisse* Statistikseite::Ergebnisse() const {
    u_.programm.daten.ErneuereErgebnisse();
    return &u_.programm.daten;
}

void Statistikseite::ErneuereStatistik() {
    if (!isVisible()) return;
    if (!u_.plan.Offen()) return text_->setHtml(QStringLiteral("<p>Es ist kein Netz geöffnet.</p>"));
    liste_ = u_.stand.Liste();
    text_->setHtml(Statistiktext(*liste_, *u_.plan.Daten(), Ergebnisse(), grenze_->value()));
    ZeigeBilder();
}

void Statistikseite::ZeigeBilder() {
    std::optional<Beobachtungstabelle> gattung;
    if (gattung_->currentIndex() > 0)
        gattung = static_cast<Beobachtungstabelle>(gattung_->currentIndex() - 1);
    testgroessen_->ZeigeBild(TestgroessenBild(*liste_, gattung, grenze_->value()));
    redundanz_->ZeigeBild(RedundanzBild(*liste_, gattung));
}

void Statistikseite::FolgeVerweis(const QString& art, const QString& ziel) {
    const std::size_t stelle = ziel.toULong();
    if (art == QStringLiteral("punkt")) return u_.waehlePunkt(static_cast<PunktIndex>(stelle));
    if (stelle < liste_->zeilen.size()) u_.zeigeBeobachtung(liste_->zeilen[stelle]);
}

void Statistikseite::FiltereKlasse(const Statistikbild& bild, std::size_t klasse) const {
    const Histogramm& h = bild.histogramm;
    Listenfilter filter;
    filter.bereich = {.wert = bild.wert,
                      .von = h.Anfang(klasse),
                      .bis = h.Anfang(klasse + 1),
                      .mitEnde = klasse + 1 == h.anzahlen.size(),
                      .betrag = true};
    if (bild.gattung) {
        filter.gattungen.fill(false);
        filter.gattungen[static_cast<std::size_t>(*bild.gattung)] = true;
    }
    u_.filtereListe(filter);
}

void Statistikseite::SpeichereBlatt() {
    if (!u_.plan.Offen()) return;
    const std::string stamm = PfadText(u_.plan.Datei().stem());
    const auto ziel =
        u_.programm.dialoge.WaehleZumSpeichern({.titel = QStringLiteral("Statistik speichern"),
                                                .filter = QStringLiteral("PDF (*.pdf)"),
                                                .ordner = AusUtf8(PfadText(u_.plan.Datei().parent_path())),
                                                .vorschlag = AusUtf8(stamm + "_statistik.pdf"),
                                                .endung = QStringLiteral("pdf")});
    if (!ziel) return;
    try {
        u_.programm.dateien.ErsetzeDatei(
            TextPfad(NachUtf8(*ziel)),
            Statistikblatt(QStringLiteral("Statistik der Beobachtungen: %1").arg(AusUtf8(stamm)), *liste_,
                           *u_.plan.Daten(), Ergebnisse(), grenze_->value()));
        u_.melde(QStringLiteral("Statistik gespeichert: %1").arg(*ziel));
    } catch (const std::exception& f) {
        u_.programm.dialoge.MeldeFehler(AusUtf8(Fehlertext(f)));
    }
}

}  // namespace zrw
