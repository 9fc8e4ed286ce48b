#include "ui/ergebnisse/Beobachtungsfilter.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <algorithm>

#include "ui/Nummernmuster.h"
#include "ui/Umwandlung.h"

namespace zrw {
namespace {

/// Until a word is typed [ms].
constexpr int kTippzeit = 150;
constexpr double kGroessteGrenze = 1e6;

template <class Teil>
Teil* Benannt(Teil* teil, const QString& name, const QString& hinweis) {
    teil->setObjectName(name);
    teil->setToolTip(hinweis);
    teil->setAccessibleName(hinweis);
    return teil;
}

}  // namespace

Beobachtungsfilter::Beobachtungsfilter(QWidget* eltern)
    : QWidget(eltern),
      bereichsknopf_(Benannt(new QPushButton(this), QStringLiteral("FilterBereich"),
                             QStringLiteral("Zeigt wieder Beobachtungen mit anderen Werten"))),
      markierte_(Benannt(new QCheckBox(QStringLiteral("nur markierte"), this), QStringLiteral("NurMarkierte"),
                         QStringLiteral("Nur Beobachtungen, die als grober Fehler gekennzeichnet sind"))),
      unkontrollierte_(Benannt(new QCheckBox(QStringLiteral("nur unkontrollierte"), this),
                               QStringLiteral("NurUnkontrollierte"),
                               QStringLiteral("Nur Beobachtungen, die keine andere kontrolliert"))),
      ueberTG_(Benannt(new QCheckBox(QStringLiteral("|TG| über"), this), QStringLiteral("UeberGrenze"),
                       QStringLiteral("Nur Beobachtungen mit größerer Testgröße"))),
      grenze_(Benannt(new QDoubleSpinBox(this), QStringLiteral("TestGrenze"),
                      QStringLiteral("Grenze für den Betrag der Testgröße"))),
      gattung_(Benannt(new QComboBox(this), QStringLiteral("BeobachtungsArt"),
                       QStringLiteral("Art der Beobachtungen"))),
      punkt_(NeuesFeld(QStringLiteral("FilterPunkt"), QStringLiteral("Punkt"),
                       QStringLiteral("Nur Beobachtungen dieses Punktes"))),
      suche_(NeuesFeld(QStringLiteral("FilterSuche"), QStringLiteral("Suchen: * und ?"),
                       QStringLiteral("Sucht in Von, Nach und ID; * und ? gelten als Platzhalter"))) {
    BaueFelder();
    tippen_.setSingleShot(true);
    tippen_.setInterval(kTippzeit);
    const auto melde = [this] {
        if (geaendert) geaendert();
    };
    connect(&tippen_, &QTimer::timeout, this, melde);
    for (QCheckBox* kasten : {markierte_, unkontrollierte_, ueberTG_})
        connect(kasten, &QCheckBox::toggled, this, melde);
    connect(gattung_, &QComboBox::currentIndexChanged, this, melde);
    connect(bereichsknopf_, &QPushButton::clicked, this, [this] { SetzeAusschnitt({}); });
    connect(grenze_, &QDoubleSpinBox::valueChanged, &tippen_, qOverload<>(&QTimer::start));
    for (QLineEdit* feld : {punkt_, suche_})
        connect(feld, &QLineEdit::textChanged, &tippen_, qOverload<>(&QTimer::start));
}

QLineEdit* Beobachtungsfilter::NeuesFeld(const QString& name, const QString& platzhalter,
                                         const QString& hinweis) {
    QLineEdit* feld = Benannt(new QLineEdit(this), name, hinweis);
    feld->setPlaceholderText(platzhalter);
    feld->setClearButtonEnabled(true);
    return feld;
}

void Beobachtungsfilter::BaueFelder() {
    grenze_->setLocale(QLocale::c());  // a point, as everywhere
    grenze_->setRange(0.0, kGroessteGrenze);
    grenze_->setSingleStep(0.5);
    grenze_->setValue(kUeblicheTestgrenze);
    grenze_->setMaximumWidth(90);
    grenze_->setEnabled(false);
    connect(ueberTG_, &QCheckBox::toggled, grenze_, &QWidget::setEnabled);
    gattung_->addItem(QStringLiteral("alle Arten"));
    for (const Beobachtungsgattung& g : kBeobachtungsgattungen)
        gattung_->addItem(AusUtf8(g.mehrzahl));
    gattung_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    gattung_->setMinimumContentsLength(12);
    auto* grenze = new QHBoxLayout;
    grenze->addWidget(ueberTG_);
    grenze->addWidget(grenze_);
    grenze->addStretch();
    auto* felder = new QGridLayout(this);
    felder->setContentsMargins(4, 4, 4, 4);
    felder->setVerticalSpacing(2);
    felder->addWidget(markierte_, 0, 0);
    felder->addWidget(unkontrollierte_, 0, 1);
    felder->addLayout(grenze, 1, 0);
    felder->addWidget(gattung_, 1, 1);
    felder->addWidget(punkt_, 2, 0);
    felder->addWidget(suche_, 2, 1);
    felder->addWidget(bereichsknopf_, 3, 0, 1, 2, Qt::AlignLeft);
    bereichsknopf_->hide();
    for (int reihe = 0; reihe < 3; ++reihe)
        felder->setRowMinimumHeight(reihe, grenze_->sizeHint().height());
}

void Beobachtungsfilter::SetzeAusschnitt(const Listenfilter& filter) {
    bereich_ = filter.bereich;
    bereichsknopf_->setVisible(bereich_.has_value());
    if (bereich_) {
        bereichsknopf_->setText(QStringLiteral("%1 von %2 bis %3   ✕")
                                    .arg(AusUtf8(ZurSpalte(bereich_->wert).name),
                                         QString::number(bereich_->von, 'g', 3),
                                         QString::number(bereich_->bis, 'g', 3)));
    }
    const auto eine = std::count(filter.gattungen.begin(), filter.gattungen.end(), true) == 1;
    const auto stelle = std::find(filter.gattungen.begin(), filter.gattungen.end(), true);
    gattung_->setCurrentIndex(eine ? static_cast<int>(stelle - filter.gattungen.begin()) + 1 : 0);
    for (QCheckBox* kasten : {markierte_, unkontrollierte_, ueberTG_})
        kasten->setChecked(false);
    punkt_->clear();
    suche_->clear();
    tippen_.stop();
    if (geaendert) geaendert();
}

Listenfilter Beobachtungsfilter::Filter() const {
    Listenfilter f;
    f.bereich = bereich_;
    f.nurMarkierte = markierte_->isChecked();
    f.nurUnkontrollierte = unkontrollierte_->isChecked();
    if (ueberTG_->isChecked()) f.ueberTG = grenze_->value();
    if (const int gattung = gattung_->currentIndex(); gattung > 0) {
        f.gattungen.fill(false);
        f.gattungen[static_cast<std::size_t>(gattung) - 1] = true;
    }
    f.punkt = PunktNummernTyp(Utf8NachCp1252(NachUtf8(punkt_->text().trimmed())));
    if (const QString suche = suche_->text().trimmed(); !suche.isEmpty()) {
        f.suche = [muster = Nummernmuster(suche)](const Beobachtung& b) {
            return muster.Passt(AusNetz(b.von.Text())) || muster.Passt(AusNetz(b.nach.Text())) ||
                   (b.idBekannt && muster.Passt(QString::number(b.id)));
        };
    }
    return f;
}

}  // namespace zrw
