#include "ui/dialoge/TFormBeobTyp.h"

#include <QCheckBox>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "model/Linienarten.h"
#include "ui/Umwandlung.h"
#include "ui/dialoge/Auswahlgruppe.h"
#include "ui/dialoge/Kurzzeile.h"

namespace zrw {
namespace {

QCheckBox* NeuerKasten(const QString& name, const QString& beschriftung, QWidget* eltern) {
    auto* kasten = new QCheckBox(beschriftung, eltern);
    kasten->setObjectName(name);
    return kasten;
}

QString Knopf(KanteAttr::Art art) {
    return AusUtf8(ZurBeobachtung(art).knopf);
}

void SchalteStill(QCheckBox& kasten, bool ein) {
    const QSignalBlocker still(kasten);
    kasten.setChecked(ein);
}

}  // namespace

TFormBeobTyp::TFormBeobTyp(Dialogdienst& dialoge, QWidget* eltern)
    : QDialog(eltern),
      dialoge_(dialoge),
      beobachtung_(new Kurzzeile(QStringLiteral("BeobachtungsEnden"),
                                 QStringLiteral("Bearbeitete Beobachtung"), this)),
      RadioGroupRichtg_(new Auswahlgruppe(
          QStringLiteral("RadioGroupRichtg"), QStringLiteral("Richtungsmessung"),
          {QStringLiteral("Keine"), QStringLiteral("Einseitig"), QStringLiteral("Zweiseitig")}, 3, this)),
      CheckBoxStrecke_(NeuerKasten(QStringLiteral("CheckBoxStrecke"), Knopf(KanteAttr::ST), this)),
      CheckBoxGps_(NeuerKasten(QStringLiteral("CheckBoxGps"), Knopf(KanteAttr::GPS), this)),
      RadioGroupZenit_(
          new Auswahlgruppe(QStringLiteral("RadioGroupZenit"), QStringLiteral("Höhenunterschied"),
                            {QStringLiteral("Kein"), Knopf(KanteAttr::DH1), Knopf(KanteAttr::DH2)}, 3, this)),
      CheckBoxInd_(NeuerKasten(QStringLiteral("CheckBoxInd"), QStringLiteral("Indirekt"), this)),
      CheckBoxNeuBeob_(
          NeuerKasten(QStringLiteral("CheckBoxNeuBeob"), QStringLiteral("Neue Beobachtung"), this)) {
    setObjectName(QStringLiteral("TFormBeobTyp"));
    setWindowTitle(QStringLiteral("Beobachtungstyp"));
    RadioGroupRichtg_->setToolTip(QStringLiteral("Art der Richtungsmessung"));
    RadioGroupZenit_->setToolTip(QStringLiteral("Gemessener Höhenmessung"));
    RadioGroupZenit_->WaehleNummer(0);
    CheckBoxStrecke_->setToolTip(QStringLiteral("Querstrich neben der Mitte der Linie"));
    CheckBoxGps_->setToolTip(QStringLiteral("Raute um die Mitte der Linie"));
    CheckBoxInd_->setToolTip(QStringLiteral("IÍndirekter Messung"));
    CheckBoxNeuBeob_->setToolTip(QStringLiteral("Neue Beobachtung einfügen"));

    auto* spalte = new QVBoxLayout(this);
    for (QWidget* teil :
         std::initializer_list<QWidget*>{beobachtung_, RadioGroupRichtg_, CheckBoxStrecke_, CheckBoxGps_,
                                         RadioGroupZenit_, CheckBoxInd_, CheckBoxNeuBeob_}) {
        spalte->addWidget(teil);
    }
    spalte->addStretch();

    const auto melde = [this] {
        if (geaendert) geaendert();
    };
    RadioGroupRichtg_->geaendert = melde;
    RadioGroupZenit_->geaendert = melde;
    connect(CheckBoxStrecke_, &QCheckBox::toggled, this, melde);
    connect(CheckBoxGps_, &QCheckBox::toggled, this, [this](bool ein) { GpsGeschaltet(ein); });
    connect(CheckBoxInd_, &QCheckBox::toggled, this, [this](bool ein) { IndirektGeschaltet(ein); });
    connect(CheckBoxNeuBeob_, &QCheckBox::toggled, this, [this] {
        if (neuUmgeschaltet) neuUmgeschaltet();
    });
}

void TFormBeobTyp::GpsGeschaltet(bool ein) {
    if (ein) SchalteStill(*CheckBoxInd_, false);
    if (geaendert) geaendert();
}

void TFormBeobTyp::IndirektGeschaltet(bool ein) {
    if (ein && CheckBoxGps_->isChecked()) {
        SchalteStill(*CheckBoxInd_, false);
        dialoge_.SageErfolg(QStringLiteral("GPS indirekt nicht möglich!"));
        return;  // the type is what it was
    }
    if (geaendert) geaendert();
}

void TFormBeobTyp::NenneBeobachtung(const QString& text) {
    beobachtung_->ZeigeText(text);
}

void TFormBeobTyp::ZeigeWahl(const Beobachtungswahl& wahl) {
    RadioGroupRichtg_->WaehleNummer(wahl.richtung);
    RadioGroupZenit_->WaehleNummer(wahl.hoehe);
    SchalteStill(*CheckBoxStrecke_, wahl.strecke);
    SchalteStill(*CheckBoxGps_, wahl.gps);
    SchalteStill(*CheckBoxInd_, wahl.indirekt && !wahl.gps);
}

Beobachtungswahl TFormBeobTyp::Wahl() const {
    return {std::max(RadioGroupRichtg_->Gewaehlt(), 0), CheckBoxStrecke_->isChecked(),
            CheckBoxGps_->isChecked(), CheckBoxInd_->isChecked(), std::max(RadioGroupZenit_->Gewaehlt(), 0)};
}

bool TFormBeobTyp::NeueBeobachtung() const {
    return CheckBoxNeuBeob_->isChecked();
}

}  // namespace zrw
