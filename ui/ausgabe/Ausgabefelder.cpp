#include "ui/ausgabe/Ausgabefelder.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>
#include <algorithm>

#include "ui/Umwandlung.h"
#include "ui/druck/Blattfelder.h"
#include "ui/fenster/Massstabfeld.h"
#include "ui/fenster/Schalter.h"

namespace zrw {
namespace {

/// Format that the fields begin with: the one that most are after.
constexpr std::string_view kErstesFormat = "pdf";

QWidget* Reihe(std::initializer_list<QWidget*> teile, QWidget* eltern) {
    auto* reihe = new QWidget(eltern);
    auto* anordnung = new QHBoxLayout(reihe);
    anordnung->setContentsMargins(0, 0, 0, 0);
    for (QWidget* teil : teile)
        anordnung->addWidget(teil);
    anordnung->addStretch();
    return reihe;
}

}  // namespace

Ausgabefelder::Ausgabefelder(const Planausgabe& plan, const Ausgabeanfang& anfang, QWidget* eltern)
    : QWidget(eltern),
      form_(new QFormLayout(this)),
      faerbung_(plan.Faerbung()),
      ellipsenmassstab_(plan.Ellipsenmassstab()) {
    form_->setContentsMargins(0, 0, 0, 0);
    BaueFormat(*form_);
    BaueNummern(*form_);
    BaueBild(*form_, plan.UeblicheGroesse(), anfang.glatt);
    BaueBlatt(*form_, anfang.massstab);
    BaueGestaltung(*form_, anfang.gestaltung);
    BaueSchalter(*form_, plan);
    ZeigeFelder();
}

template <class Teil>
Teil& Ausgabefelder::NeuesTeil(const char* name, const char* hinweis, Teil* teil) {
    teil->setObjectName(QString::fromLatin1(name));
    teil->setToolTip(QString::fromUtf8(hinweis));
    return *teil;
}

QCheckBox& Ausgabefelder::NeuerKasten(const char* name, const char* text, const char* hinweis) {
    QCheckBox& kasten = NeuesTeil(name, hinweis, new QCheckBox(QString::fromUtf8(text), this));
    connect(&kasten, &QCheckBox::toggled, this, [this] { MeldeAenderung(); });
    return kasten;
}

void Ausgabefelder::NurBei(unsigned merkmale, QWidget& teil) {
    bedingte_.emplace_back(merkmale, &teil);
}

void Ausgabefelder::BaueFormat(QFormLayout& form) {
    format_ = &NeuesTeil("FormatWahl", "In welchem Format geschrieben wird", new QComboBox(this));
    for (const Format& f : AlleFormate())
        format_->addItem(AusUtf8(f.bezeichnung), AusUtf8(f.name));
    format_->setCurrentIndex(format_->findData(AusUtf8(kErstesFormat)));
    connect(format_, &QComboBox::currentIndexChanged, this, [this] {
        ZeigeFelder();
        MeldeAenderung();
    });
    form.addRow(QStringLiteral("Format"), format_);
    setFocusProxy(format_);
}

void Ausgabefelder::BaueNummern(QFormLayout& form) {
    nummern_ = &NeuesTeil("NummernWahl", "Sucht Plätze für die Punktnummern der Ausgabe; der Plan bleibt",
                          new QComboBox(this));
    nummern_->addItem(QStringLiteral("nicht"));
    for (const Nummernzielzeile& z : kNummernziele)
        nummern_->addItem(AusUtf8(z.bezeichnung));
    connect(nummern_, &QComboBox::currentIndexChanged, this, [this] {
        ZeigeFelder();
        MeldeAenderung();
    });
    form.addRow(QStringLiteral("Punktnummern ordnen"), nummern_);
    NurBei(kMitNummern, *nummern_);
}

std::optional<Nummernziel> Ausgabefelder::Ordnen() const {
    const int zeile = nummern_->currentIndex() - 1;
    if (zeile < 0 || !GewaehltesFormat().HatMerkmal(kMitNummern)) return std::nullopt;
    return kNummernziele[static_cast<std::size_t>(zeile)].ziel;
}

bool Ausgabefelder::Gilt(unsigned merkmal) const {
    return (Merkmale(GewaehltesFormat(), Ordnen()) & merkmal) != 0;
}

void Ausgabefelder::BaueBild(QFormLayout& form, Bildgroesse groesse, bool glatt) {
    const auto seite = [&](const char* name, const char* hinweis, std::int32_t wert) {
        QSpinBox& feld = NeuesTeil(name, hinweis, new QSpinBox(this));
        feld.setAccessibleName(feld.toolTip());
        feld.setRange(kKleinstesBild, kGroesstesBild);
        feld.setValue(wert);
        connect(&feld, &QSpinBox::valueChanged, this, [this] { MeldeAenderung(); });
        return &feld;
    };
    weite_ = seite("BildWeite", "Breite des Bildes in Pixeln, 100 bis 16384", groesse.weite);
    hoehe_ = seite("BildHoehe", "Höhe des Bildes in Pixeln, 100 bis 16384", groesse.hoehe);
    QWidget* reihe = Reihe(
        {weite_, new QLabel(QStringLiteral("×"), this), hoehe_, new QLabel(QStringLiteral("Pixel"), this)},
        this);
    form.addRow(QStringLiteral("Bildgröße"), reihe);
    NurBei(kMitGroesse, *reihe);
    glatt_ = &NeuerKasten("KantenGlatt", "Kanten glätten", "Linien, Symbole und Schrift mit weichen Kanten");
    glatt_->setChecked(glatt);
    form.addRow(QString(), glatt_);
    NurBei(kMitKanten, *glatt_);
}

void Ausgabefelder::BaueBlatt(QFormLayout& form, const QString& massstab) {
    papier_ = &NeuesTeil("PapierWahl", "Größe des Papiers", new QComboBox(this));
    papier_->setAccessibleName(QStringLiteral("Papier"));
    for (const Papierformat& p : kPapierformate)
        papier_->addItem(AusUtf8(p.name));
    connect(papier_, &QComboBox::currentIndexChanged, this, [this] { MeldeAenderung(); });
    quer_ = &NeuerKasten("PapierQuer", "Querformat", "Das Papier liegt auf der langen Seite");
    QWidget* papier = Reihe({papier_, quer_}, this);
    form.addRow(QStringLiteral("Papier"), papier);
    NurBei(kMitPapier, *papier);

    massstab_ = &NeuesTeil("AusgabeMassstab", "Druckmaßstab", new Massstabfeld(this));
    if (LiesMassstab(NachUtf8(massstab))) massstab_->setText(massstab);
    massstab_->setAccessibleName(QStringLiteral("Druckmaßstab"));
    connect(massstab_, &QLineEdit::textChanged, this, [this] { MeldeAenderung(); });
    passend_ = &NeuerKasten("MassstabPassend", "passend für",
                            "Der größte runde Maßstab, in dem der Plan auf so viele Blätter passt");
    passend_->setChecked(true);
    connect(passend_, &QCheckBox::toggled, this, [this] { ZeigeFelder(); });
    NurBei(kMitPapier, *passend_);
    blaetter_ =
        &NeuesTeil("BlattAnzahl", "So viele Blätter darf der passende Maßstab brauchen", new QSpinBox(this));
    blaetter_->setAccessibleName(QStringLiteral("Blätter"));
    blaetter_->setRange(1, static_cast<int>(kMeisteBlaetter));
    connect(blaetter_, &QSpinBox::valueChanged, this, [this](int n) {
        blaetter_->setSuffix(n == 1 ? QStringLiteral(" Blatt") : QStringLiteral(" Blätter"));
        ZeigeFelder();
        MeldeAenderung();
    });
    blaetter_->setSuffix(QStringLiteral(" Blatt"));
    NurBei(kMitPapier, *blaetter_);
    QWidget* reihe = Reihe({new QLabel(QStringLiteral("1:"), this), massstab_, passend_, blaetter_}, this);
    form.addRow(QStringLiteral("Maßstab"), reihe);
    NurBei(kMitMassstab, *reihe);
    alle_ = &NeuerKasten("AlleBlaetter", "alle Blätter",
                         "So viele Blätter, wie der Plan in diesem Maßstab braucht, sonst nur das erste");
    form.addRow(QString(), alle_);
    NurBei(kMitPapier, *alle_);
    dpi_ = &NeuesTeil("AusgabeAufloesung", "Punkte je Zoll, 1 bis 100000", new QSpinBox(this));
    dpi_->setRange(1, kFeinsteAufloesung);
    dpi_->setValue(kUeblicheAufloesung);
    dpi_->setSuffix(QStringLiteral(" Punkte je Zoll"));
    connect(dpi_, &QSpinBox::valueChanged, this, [this] { MeldeAenderung(); });
    form.addRow(QStringLiteral("Auflösung"), dpi_);
    NurBei(kMitMassstab, *dpi_);
}

void Ausgabefelder::BaueGestaltung(QFormLayout& form, const Blattgestaltung& anfang) {
    auto* gruppe = new QGroupBox(QStringLiteral("Blätter"), this);
    auto* spalte = new QVBoxLayout(gruppe);
    gestaltung_ = new Blattfelder(anfang, gruppe);
    gestaltung_->geaendert = [this] { MeldeAenderung(); };
    spalte->addWidget(gestaltung_);
    form.addRow(gruppe);
    NurBei(kMitPapier, *gruppe);
}

void Ausgabefelder::BaueSchalter(QFormLayout& form, const Planausgabe& plan) {
    auto* gruppe = new QGroupBox(QStringLiteral("Darstellung in der Ausgabe"), this);
    auto* gitter = new QGridLayout(gruppe);
    constexpr int kSpalten = 2;
    int i = 0;
    for (const Schalter& s : kSchalter) {
        if (s.name.empty()) continue;
        const std::string name = "Schalter-" + std::string(s.name);
        QCheckBox& kasten =
            NeuerKasten(name.c_str(), std::string(s.beschriftung).c_str(),
                        s.hinweis.empty() ? "Legende links oben im Bild" : std::string(s.hinweis).c_str());
        kasten.setChecked(plan.IstAn(s));
        if (s.HatMerkmal(kImKartengitter)) kasten.setEnabled(HatKartengitter(plan.Angaben().Netztyp));
        kasten.setHidden(s.HatMerkmal(kNurBeiAbweichung) && !BlattschnittWeichtAb(plan.Angaben()));
        schalter_.emplace_back(&s, &kasten);
        if (kasten.isHidden()) continue;
        gitter->addWidget(&kasten, i / kSpalten, i % kSpalten);
        ++i;
    }
    form.addRow(gruppe);
    NurBei(kMitSchaltern, *gruppe);
}

/// Only what applies to the format, with its labels.
void Ausgabefelder::ZeigeFelder() {
    for (const auto& [merkmale, teil] : bedingte_) {
        const bool zeigen = Gilt(merkmale);
        teil->setVisible(zeigen);
        if (QWidget* schild = form_->labelForField(teil)) schild->setVisible(zeigen);
    }
    const bool passend = Gilt(kMitPapier) && passend_->isChecked();
    massstab_->setEnabled(!passend);
    blaetter_->setEnabled(passend);
    alle_->setEnabled(!passend || blaetter_->value() == 1);
    for (const auto& [schalter, kasten] : schalter_) {
        if (schalter->HatMerkmal(kImKartengitter)) continue;
        kasten->setEnabled(Wirkt(*schalter));
    }
}

/// Whether it shows anything in the format.
bool Ausgabefelder::Wirkt(const Schalter& schalter) const {
    if (schalter.HatMerkmal(kAufPapier) && !Gilt(kMitPapier)) return false;
    if (!GewaehltesFormat().HatMerkmal(kOhneLegende)) return true;
    return !schalter.HatMerkmal(kAusErgebnissen | kInMetern) &&
           schalter.inDarstellung != &Darstellung::ShowLegende;
}

void Ausgabefelder::MeldeAenderung() {
    if (geaendert) geaendert();
}

const Format& Ausgabefelder::GewaehltesFormat() const {
    return AlleFormate()[static_cast<std::size_t>(format_->currentIndex())];
}

/// Those that differ from what the program begins with.
void Ausgabefelder::NimmSchalter(Ausgabeauftrag& auftrag) const {
    for (const auto& [schalter, kasten] : schalter_) {
        if (!Wirkt(*schalter) || kasten->isChecked() == schalter->anfangs) continue;
        (kasten->isChecked() ? auftrag.ein : auftrag.aus).emplace_back(schalter->name);
    }
    const auto mitEllipsen = [](const std::string& name) {
        return name == "lagegen" || name == "relative-ellipsen";
    };
    if (std::any_of(auftrag.ein.begin(), auftrag.ein.end(), mitEllipsen))
        auftrag.ellipsenmassstab = ellipsenmassstab_;
}

std::optional<Ausgabeauftrag> Ausgabefelder::Auftrag() const {
    const Format& format = GewaehltesFormat();
    Ausgabeauftrag a;
    a.ordnen = Ordnen();
    if (format.HatMerkmal(kMitGroesse)) a.groesse = {weite_->value(), hoehe_->value()};
    a.kantig = format.HatMerkmal(kMitKanten) && !glatt_->isChecked();
    if (Gilt(kMitPapier)) {
        a.papier = kPapierformate[static_cast<std::size_t>(papier_->currentIndex())].hochkant;
        a.quer = quer_->isChecked();
        a.alleBlaetter = alle_->isChecked();
        a.gestaltung = gestaltung_->Gestaltung();
    }
    if (format.HatMerkmal(kMitSchaltern)) NimmSchalter(a);
    a.faerbung = faerbung_;
    const bool legende = std::find(a.ein.begin(), a.ein.end(), "legende") != a.ein.end();
    if (Gilt(kMitMassstab)) {
        a.dpi = dpi_->value();
        a.passend = Gilt(kMitPapier) && passend_->isChecked();
        if (a.passend) a.blaetter = blaetter_->value();
    } else {
        a.passend = !legende;  // pictures only name it
    }
    if (!a.passend) a.massstab = NachUtf8(massstab_->text());
    if (!a.passend && !massstab_->Massstab()) return std::nullopt;
    return a;
}

}  // namespace zrw
