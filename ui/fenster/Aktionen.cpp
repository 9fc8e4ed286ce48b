#include "ui/fenster/Aktionen.h"

#include <QCheckBox>
#include <QIcon>
#include <QToolButton>
#include <QUndoStack>
#include <cassert>

#include "model/Punktarten.h"
#include "ui/Symbol.h"
#include "ui/Umwandlung.h"
#include "ui/hilfe/Hilfethemen.h"
#include "ui/werkzeuge/Werkzeugtafel.h"

namespace zrw {
namespace {

static_assert(HabenSeiten(kBefehle, &Befehl::komponente) && HabenSeiten(kSchalter, &Schalter::komponente) &&
                  HabenSeiten(kWerkzeuge, &Werkzeugzeile::komponente),
              "each command, each tool and each check box has a row in ui/hilfe/Hilfethemen.h");

/// The first tools by their place in the table; there are no more digits.
constexpr std::string_view kWerkzeugtasten = "1234567890";

/// Of the object names: buttons and boxes have those of the components.
const QString kVorsilbe = QStringLiteral("Aktion");

/// Key names as they stand on a German keyboard.
QString Tastenname(const QKeySequence& taste) {
    return taste.toString(QKeySequence::NativeText)
        .replace(QStringLiteral("Ctrl"), QStringLiteral("Strg"))
        .replace(QStringLiteral("Shift"), QStringLiteral("Umschalt"))
        .replace(QStringLiteral("Home"), QStringLiteral("Pos1"))
        .replace(QStringLiteral("Left"), QStringLiteral("Links"))
        .replace(QStringLiteral("Right"), QStringLiteral("Rechts"));
}

/// Hint with the key, and what it does in a second line; both in one line for the status bar.
void SetzeHinweis(QAction& aktion, const QString& hinweis, const QString& satz) {
    const QString taste =
        aktion.shortcut().isEmpty() ? QString() : QStringLiteral(" (%1)").arg(Tastenname(aktion.shortcut()));
    aktion.setToolTip(satz.isEmpty() ? hinweis + taste : hinweis + taste + QLatin1Char('\n') + satz);
    aktion.setStatusTip(satz.isEmpty() ? hinweis : hinweis + QStringLiteral(": ") + satz);
}

void SetzeTaste(QAction& aktion, std::string_view taste) {
    const QKeySequence kuerzel(AusUtf8(taste));
    aktion.setShortcut(kuerzel);
    // Where Qt's translations are missing, the menu would name the key in English.
    const QString name = Tastenname(kuerzel);
    if (name != kuerzel.toString(QKeySequence::NativeText))
        aktion.setText(aktion.text() + QLatin1Char('\t') + name);
}

/// Switches of the point kinds have captions of two letters, which say too little in a menu.
QString Menuetext(const Schalter& s) {
    for (const Punktart& art : kPunktarten) {
        if (art.schalter == s.inDarstellung)
            return QStringLiteral("%1: %2").arg(AusUtf8(art.kuerzel), AusUtf8(art.bezeichnung)) +
                   QLatin1Char('e');
    }
    return AusUtf8(s.beschriftung);
}

}  // namespace

Aktionen::Aktionen(QWidget& fenster, const QUndoStack& schritte, Empfaenger empfaenger)
    : QObject(&fenster), fenster_(fenster), empfaenger_(std::move(empfaenger)) {
    BaueBefehle(schritte);
    BaueWerkzeuge();
    BaueSchalter();
}

QAction* Aktionen::NeueAktion(std::string_view komponente, std::string_view text) {
    auto* aktion = new QAction(AusUtf8(text), this);
    aktion->setObjectName(kVorsilbe + AusUtf8(komponente));
    aktion->setMenuRole(QAction::NoRole);  // each stays in the menu that the table names
    fenster_.addAction(aktion);
    return aktion;
}

void Aktionen::BaueBefehle(const QUndoStack& schritte) {
    for (const Befehl& b : kBefehle) {
        QAction* aktion = NeueAktion(b.komponente, b.text);
        aktion->setIcon(Symbol(b.bild));
        aktion->setCheckable(b.HatMerkmal(kUmschalter));
        if (!b.taste.empty()) SetzeTaste(*aktion, b.taste);
        if (b.HatMerkmal(kInJedemFenster)) aktion->setShortcutContext(Qt::ApplicationShortcut);
        SetzeHinweis(*aktion, AusUtf8(b.hinweis), AusUtf8(b.satz));
        connect(aktion, &QAction::triggered, this, [this, &b] { empfaenger_.befehl(b); });
        if (b.HatMerkmal(kBrauchtSchritt)) {
            aktion->setEnabled(schritte.canUndo());
            connect(&schritte, &QUndoStack::canUndoChanged, aktion, &QAction::setEnabled);
        } else if (b.HatMerkmal(kBrauchtZurueckgenommen)) {
            aktion->setEnabled(schritte.canRedo());
            connect(&schritte, &QUndoStack::canRedoChanged, aktion, &QAction::setEnabled);
        }
        befehle_.push_back(aktion);
    }
}

void Aktionen::BaueWerkzeuge() {
    for (std::size_t i = 0; i < kWerkzeuge.size(); ++i) {
        const Werkzeugzeile& zeile = kWerkzeuge[i];
        QAction* aktion = NeueAktion(zeile.komponente, zeile.hinweis);
        aktion->setIcon(Symbol(zeile.bild));
        aktion->setCheckable(true);
        if (i < kWerkzeugtasten.size()) SetzeTaste(*aktion, kWerkzeugtasten.substr(i, 1));
        SetzeHinweis(*aktion, AusUtf8(zeile.hinweis), {});
        connect(aktion, &QAction::toggled, this, [this, i](bool unten) { empfaenger_.werkzeug(i, unten); });
        werkzeuge_.push_back(aktion);
    }
}

void Aktionen::BaueSchalter() {
    for (const Schalter& s : kSchalter) {
        if (s.komponente.empty()) {
            schalter_.push_back(nullptr);
            continue;
        }
        QAction* aktion = NeueAktion(s.komponente, NachUtf8(Menuetext(s)));
        aktion->setCheckable(true);
        aktion->setChecked(s.anfangs);
        aktion->setVisible(!s.HatMerkmal(kNurBeiAbweichung));
        SetzeHinweis(*aktion, AusUtf8(s.hinweis), AusUtf8(s.satz));
        connect(aktion, &QAction::toggled, this, [this, &s](bool ein) { empfaenger_.schalter(s, ein); });
        schalter_.push_back(aktion);
    }
}

QAction& Aktionen::NachName(std::string_view komponente) const {
    auto* aktion = findChild<QAction*>(kVorsilbe + AusUtf8(komponente));
    assert(aktion != nullptr);
    return *aktion;
}

int Aktionen::Thema(const QAction* aktion) {
    if (aktion == nullptr) return kErsteSeite;
    const int* kontext = ThemaZu(aktion->objectName().mid(kVorsilbe.size()).toStdString());
    return kontext != nullptr ? *kontext : kErsteSeite;
}

void Aktionen::ErklaereWerkzeuge(const Werkzeugkasten& werkzeuge) {
    for (std::size_t i = 0; i < kWerkzeuge.size(); ++i) {
        const QString hinweis = AusUtf8(kWerkzeuge[i].hinweis);
        const QString davor = hinweis + QStringLiteral(": ");
        QString satz = werkzeuge.NachNummer(i).Anleitung();
        if (satz.startsWith(davor)) satz.remove(0, davor.size());
        SetzeHinweis(*werkzeuge_[i], hinweis, satz);
    }
}

const Befehl* Aktionen::AusgeschalteterBefehl(const QKeySequence& taste) const {
    for (std::size_t i = 0; i < kBefehle.size(); ++i) {
        if (!befehle_[i]->isEnabled() && befehle_[i]->shortcut() == taste) return &kBefehle[i];
    }
    return nullptr;
}

QToolButton* NeuerKnopf(QAction& aktion, std::string_view komponente, std::string_view hinweis,
                        QWidget* eltern) {
    auto* knopf = new QToolButton(eltern);
    knopf->setObjectName(AusUtf8(komponente));
    knopf->setDefaultAction(&aktion);
    knopf->setAccessibleName(AusUtf8(hinweis));
    knopf->setIconSize(QSize(24, 24));
    knopf->setAutoRaise(true);
    knopf->setFocusPolicy(Qt::TabFocus);
    knopf->setPopupMode(QToolButton::DelayedPopup);  // a click is the action, not the menu below it
    // Not every version of the toolkit hands on what the button is set to.
    QObject::connect(knopf, &QToolButton::toggled, &aktion, &QAction::setChecked);
    return knopf;
}

QCheckBox* NeuerSchaltkasten(QAction& aktion, const Schalter& schalter, QWidget* eltern) {
    auto* kasten = new QCheckBox(AusUtf8(schalter.beschriftung), eltern);
    kasten->setObjectName(AusUtf8(schalter.komponente));
    const auto folge = [kasten, &aktion] {
        kasten->setToolTip(aktion.toolTip());
        kasten->setStatusTip(aktion.statusTip());
        kasten->setChecked(aktion.isChecked());
        kasten->setVisible(aktion.isVisible());
    };
    folge();
    QObject::connect(&aktion, &QAction::changed, kasten, folge);
    QObject::connect(kasten, &QCheckBox::toggled, &aktion, &QAction::setChecked);
    return kasten;
}

}  // namespace zrw
