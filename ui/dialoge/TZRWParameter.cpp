#include "ui/dialoge/TZRWParameter.h"

#include <QCheckBox>
#include <QEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>
#include <QSpinBox>
#include <array>

#include "model/Fehler.h"
#include "model/Zahlentext.h"
#include "output/Residuenbild.h"
#include "ui/Umwandlung.h"
#include "ui/ablage/Einstellungsablage.h"
#include "ui/dialoge/Farbfeld.h"
#include "ui/dialoge/Palettenkasten.h"

namespace zrw {
namespace {

struct Farbzeile {
    const char* komponente;
    const char* schild;
    Farbe Einstellungen::*feld;
    const char* gruppe;
};

/// In the order of the groups; the first `kLinks` lines stand in the left column.
constexpr auto kFarben = std::to_array<Farbzeile>({
    {"TXPanel", "Punktnummer", &Einstellungen::TXCol, "Punkte"},
    {"FPPanel", "Festpunkt", &Einstellungen::FPCol, "Punkte"},
    {"FLPanel", "Lagefestpunkt", &Einstellungen::FLCol, "Punkte"},
    {"FHPanel", "Höhenfestpunkt", &Einstellungen::FHCol, "Punkte"},
    {"NPPanel", "Neupunkt", &Einstellungen::NPCol, "Punkte"},
    {"RIPanel", "Richtung", &Einstellungen::RICol, "Beobachtungen"},
    {"AZPanel", "Richtungswinkel", &Einstellungen::AZCol, "Beobachtungen"},
    {"GPSPanel", "GPS-Vektor", &Einstellungen::GPSCol, "Beobachtungen"},
    {"TKPanel", "TK25 Einteilung", &Einstellungen::TKCol, "Bild"},
    {"PPPanel", "Druckausschnitt", &Einstellungen::PPCol, "Bild"},
    {"LGResPanel", "Lageresiduen", &Einstellungen::LGRCol, "Ergebnisse"},
    {"HresPanel", "Höhenresiduen", &Einstellungen::HRCol, "Ergebnisse"},
    {"LGGenPanel", "Fehlerellipsen", &Einstellungen::LGGCol, "Ergebnisse"},
    {"HgenPanel", "Höhengenauigkeit", &Einstellungen::HGCol, "Ergebnisse"},
    {"GFPanel", "Grober Fehler", &Einstellungen::GFCol, "Ergebnisse"},
});
constexpr std::size_t kLinks = 8;

constexpr double kMinZoom = 1.01;
constexpr double kMaxZoom = 100.0;

QFormLayout* NeueGruppe(const QString& titel, QBoxLayout& spalte, QWidget* eltern) {
    auto* rahmen = new QGroupBox(titel, eltern);
    auto* form = new QFormLayout(rahmen);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    spalte.addWidget(rahmen);
    return form;
}

}  // namespace

TZRWParameter::TZRWParameter(Einstellungen& einstellungen, Vorlieben& vorlieben,
                             EinstellungsSpeicher& speicher, Dialogdienst& dialoge, QWidget* eltern)
    : QDialog(eltern), e_(einstellungen), vorlieben_(vorlieben), speicher_(speicher), dialoge_(dialoge) {
    setObjectName(QStringLiteral("TZRWParameter"));
    setWindowTitle(QStringLiteral("Zarwikeinstellungen"));
    setAttribute(Qt::WA_DeleteOnClose);

    auto* alles = new QVBoxLayout(this);
    palette_ = new Palettenkasten(e_, this);
    palette_->gewaehlt = [this] { ZeigeEinstellungen(); };
    palette_->anwenden = [this] {
        if (anwenden) anwenden();
    };
    anzeigen_.emplace_back([this] { palette_->ZeigePalette(); });
    alles->addWidget(palette_);
    auto* spalten = new QHBoxLayout;
    alles->addLayout(spalten);
    std::array<QVBoxLayout*, 3> spalte{};
    for (QVBoxLayout*& s : spalte) {
        s = new QVBoxLayout;
        spalten->addLayout(s);
    }
    BaueFarben(*spalte[0], *spalte[1]);
    BaueZahlen(*spalte[2]);
    BaueVorlieben(*spalte[1]);
    for (QVBoxLayout* s : spalte)
        s->addStretch();
    auto* vorgaben = new QPushButton(QStringLiteral("Vorgaben"), this);
    vorgaben->setObjectName(QStringLiteral("VorgabenKnopf"));
    vorgaben->setToolTip(QStringLiteral("Alle Einstellungen dieses Fensters auf ihre Vorgaben zurücksetzen"));
    vorgaben->setAutoDefault(false);
    connect(vorgaben, &QPushButton::clicked, this, [this] { SetzeVorgaben(); });
    auto* schliessen = new QPushButton(QStringLiteral("Schließen"), this);
    schliessen->setObjectName(QStringLiteral("Button1"));
    schliessen->setAutoDefault(false);  // Enter ends the input in a field
    connect(schliessen, &QPushButton::clicked, this, &QDialog::accept);
    auto* unten = new QHBoxLayout;
    unten->addWidget(vorgaben);
    unten->addStretch();
    unten->addWidget(schliessen);
    alles->addLayout(unten);

    ZeigeEinstellungen();
    resize(sizeHint());
    QRect ort = rect();
    ort.moveCenter(screen()->availableGeometry().center());
    move(ort.topLeft());
}

void TZRWParameter::BaueFarben(QBoxLayout& links, QBoxLayout& mitte) {
    QFormLayout* form = nullptr;
    const char* gruppe = "";
    for (std::size_t i = 0; i < kFarben.size(); ++i) {
        const Farbzeile& z = kFarben[i];
        if (std::string_view(gruppe) != z.gruppe) {
            gruppe = z.gruppe;
            form = NeueGruppe(QStringLiteral("Farben: ") + AusUtf8(gruppe), i < kLinks ? links : mitte, this);
        }
        auto* feld = new Farbfeld(this);
        feld->setObjectName(QString::fromLatin1(z.komponente));
        feld->setAccessibleName(QStringLiteral("Farbe ") + AusUtf8(z.schild));
        form->addRow(AusUtf8(z.schild), feld);
        anzeigen_.emplace_back([this, feld, &z] { feld->SetzeFarbe(e_.*z.feld); });
        connect(feld, &QAbstractButton::clicked, this, [this, feld, &z] {
            const auto neu = dialoge_.WaehleFarbe(e_.*z.feld);
            if (!neu) return;
            e_.*z.feld = *neu;
            feld->SetzeFarbe(*neu);
            palette_->ZeigePalette();
        });
    }
}

template <class Zahl>
void TZRWParameter::BaueZahl(QFormLayout& form, const QString& name, const QString& schild,
                             Zahl Einstellungen::*feld, int von, int bis) {
    auto* zahl = new QSpinBox(this);
    zahl->setObjectName(name);
    zahl->setRange(von, bis);
    zahl->setToolTip(QStringLiteral("Bildpunkte, %1 bis %2").arg(von).arg(bis));
    form.addRow(schild, zahl);
    anzeigen_.emplace_back([this, zahl, feld] {
        // A stored value beyond the range is shown at its end and stays what it is until the user changes it.
        const QSignalBlocker still(zahl);
        zahl->setValue(e_.*feld);
    });
    connect(zahl, &QSpinBox::valueChanged, this,
            [this, feld](int wert) { e_.*feld = static_cast<Zahl>(wert); });
}

void TZRWParameter::BaueZahlen(QBoxLayout& spalte) {
    const auto groesse = [this](QFormLayout& form, const char* name, const char* schild,
                                std::uint16_t Einstellungen::*feld) {
        BaueZahl(form, QString::fromLatin1(name), AusUtf8(schild), feld, 2, 20);
    };
    const auto abstand = [this](QFormLayout& form, const char* name, const char* schild,
                                std::int32_t Einstellungen::*feld) {
        BaueZahl(form, QString::fromLatin1(name), AusUtf8(schild), feld, -100, 100);
    };
    auto* radius = NeueGruppe(QStringLiteral("Punktsignaturradius"), spalte, this);
    groesse(*radius, "SpinEdit1", "Niv > 0", &Einstellungen::PTSize);
    groesse(*radius, "SpinEdit2", "Niv = 0", &Einstellungen::HPSize);
    auto* maus = NeueGruppe(QString(), spalte, this);
    groesse(*maus, "SpinEdit3", "Fangradius", &Einstellungen::Fang);
    auto* nummer = NeueGruppe(QStringLiteral("Punktnummerabstand"), spalte, this);
    abstand(*nummer, "SpinEdit4", "Rechts", &Einstellungen::PXOff);
    abstand(*nummer, "SpinEdit5", "Hoch", &Einstellungen::PYOff);

    auto* faktoren = NeueGruppe(QString(), spalte, this);
    EditZoomfaktor_ = new QLineEdit(QStringLiteral("1.5"), this);
    EditZoomfaktor_->setObjectName(QStringLiteral("EditZoomfaktor"));
    EditZoomfaktor_->setToolTip(QStringLiteral("Zahl von 1.01 bis 100, mit Dezimalpunkt"));
    connect(EditZoomfaktor_, &QLineEdit::textChanged, this,
            [this](const QString& text) { ZoomfaktorGetippt(text); });
    faktoren->addRow(QStringLiteral("Zoomfaktor"), EditZoomfaktor_);

    EditMFRes_ = new QLineEdit(QStringLiteral("1.0"), this);
    EditMFRes_->setObjectName(QStringLiteral("EditMFRes"));
    EditMFRes_->setToolTip(QStringLiteral("Zahl mit Dezimalpunkt"));
    connect(EditMFRes_, &QLineEdit::editingFinished, this, [this] { UebernimmResiduenmassstab(); });
    auto* zeile = new QHBoxLayout;
    zeile->addWidget(EditMFRes_);
    zeile->addWidget(new QLabel(QStringLiteral(":1"), this));
    auto* schild = new QLabel(QStringLiteral("Residuenmaßstab"), this);
    schild->setBuddy(EditMFRes_);
    faktoren->addRow(schild, zeile);
    anzeigen_.emplace_back([this] { EditMFRes_->setText(AusUtf8(SchreibeReal(e_.ResMF))); });
}

void TZRWParameter::BaueVorlieben(QBoxLayout& spalte) {
    auto* gruppe = NeueGruppe(QStringLiteral("Fenster"), spalte, this);
    const auto kasten = [this, gruppe](const char* name, const char* schild, const char* hinweis,
                                       bool Vorlieben::*feld) {
        auto* k = new QCheckBox(AusUtf8(schild), this);
        k->setObjectName(QString::fromLatin1(name));
        k->setToolTip(AusUtf8(hinweis));
        gruppe->addRow(k);
        anzeigen_.emplace_back([this, k, feld] { k->setChecked(vorlieben_.*feld); });
        connect(k, &QCheckBox::toggled, this, [this, feld](bool ein) { vorlieben_.*feld = ein; });
    };
    kasten("CheckBoxEinpassen", "Nach dem Öffnen einpassen",
           "Steuerdateien öffnen mit allen sichtbaren Punkten im Bild, statt auf volle Kilometer erweitert",
           &Vorlieben::EinpassenNachOeffnen);
    kasten(
        "CheckBoxGlaetten", "Kanten glätten",
        "Linien, Symbole und Schrift mit weichen Kanten zeichnen; bei großen Netzen erst, wenn sich nichts "
        "mehr bewegt",
        &Vorlieben::KantenGlaetten);
    kasten("CheckBoxMausrad", "Mausrad umkehren", "Rad nach oben vergrößert, Rad nach unten verkleinert",
           &Vorlieben::RadUmgekehrt);
    kasten("CheckBoxAuffaellig", "Zum auffälligen Reiter wechseln",
           "Ergebnisse zuerst auf dem Reiter auflisten, auf dem eine Zeile als grob falsch bezeichnet ist",
           &Vorlieben::ZumAuffaelligenReiter);
}

void TZRWParameter::ZeigeEinstellungen() {
    for (const auto& zeige : anzeigen_)
        zeige();
}

/// There is no way back, so it asks.
void TZRWParameter::SetzeVorgaben() {
    if (!dialoge_.FrageJaNein(QStringLiteral("Alle Einstellungen auf die Vorgaben zurücksetzen?"))) return;
    e_ = {};
    vorlieben_ = {};
    EditZoomfaktor_->setText(QStringLiteral("1.5"));
    ZeigeEinstellungen();
}

bool TZRWParameter::event(QEvent* ereignis) {
    // Another part of the program may have changed them meanwhile.
    if (ereignis->type() == QEvent::WindowActivate) ZeigeEinstellungen();
    return QDialog::event(ereignis);
}

void TZRWParameter::ZoomfaktorGetippt(const QString& text) {
    const auto zahl = LiesReal(NachUtf8(text));
    const bool gut = zahl && *zahl >= kMinZoom && *zahl <= kMaxZoom;
    if (gut) e_.Zoomschritt = 1.0 / *zahl;
    QPalette farben;
    if (!gut) {
        farben.setColor(QPalette::Base, QColor(0xFF, 0xD6, 0xD6));  // an empty field has no text to colour
        farben.setColor(QPalette::Text, QColor(0xA0, 0x00, 0x00));
    }
    EditZoomfaktor_->setPalette(farben);
}

void TZRWParameter::UebernimmResiduenmassstab() {
    const QString vorher = AusUtf8(SchreibeReal(e_.ResMF));
    if (EditMFRes_->text() == vorher) return;
    const auto zahl = LiesReal(NachUtf8(EditMFRes_->text()));
    if (zahl) {
        e_.ResMF = *zahl;
        if (const std::string hinweis = Massstabhinweis(*zahl); !hinweis.empty())
            dialoge_.MeldeFehler(AusUtf8(hinweis));
        return;
    }
    // Before the message: it takes the focus, and the field would be left a second time with the same text.
    EditMFRes_->setText(vorher);
    dialoge_.MeldeFehler(
        QStringLiteral("Der Residuenmaßstab ist keine Zahl (Dezimaltrenner ist der Punkt)."));
}

void TZRWParameter::done(int ergebnis) {
    UebernimmResiduenmassstab();  // Escape and the window's cross leave no field before
    try {
        SaveSettings(e_, speicher_);
        SchreibeVorlieben(vorlieben_, speicher_);
        speicher_.SichereWerte();
    } catch (const std::exception& f) {
        dialoge_.MeldeFehler(AusUtf8(Fehlertext(f)) +
                             QStringLiteral("\nSie gelten weiter, bis Zarwik beendet wird."));
    }
    QDialog::done(ergebnis);
    if (geschlossen) geschlossen();
}

}  // namespace zrw
