#include "ui/fenster/Menueleiste.h"

#include <QDir>
#include <QEvent>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QStatusTipEvent>

#include "ui/Umwandlung.h"
#include "ui/fenster/Menuebuchstaben.h"

namespace zrw {
namespace {

/// An entry of the menu bar: its actions in their order, with lines between groups.
class Menuebauer {
  public:
    explicit Menuebauer(QMenu& menue) : menue_(menue) {}

    void NimmAktion(QAction* aktion) {
        if (std::exchange(strich_, false) && !menue_.isEmpty()) menue_.addSeparator();
        menue_.addAction(aktion);
    }
    void BeendeGruppe() { strich_ = true; }

  private:
    QMenu& menue_;
    bool strich_ = false;
};

void NimmBefehle(Menuebauer& bauer, Menue menue, const Aktionen& aktionen) {
    for (std::size_t i = 0; i < kBefehle.size(); ++i) {
        if (kBefehle[i].menue != menue) continue;
        bauer.NimmAktion(aktionen.Befehle()[i]);
        if (kBefehle[i].HatMerkmal(kGruppenende | kMenuestrich)) bauer.BeendeGruppe();
    }
}

Menue MenueZu(const Schalter& s) {
    if (s.HatMerkmal(kAusErgebnissen)) return Menue::Ergebnisse;
    return s.HatMerkmal(kBeiDerAusgabe) ? Menue::Ausgabe : Menue::Ansicht;
}

void NimmSchalter(Menuebauer& bauer, Menue menue, const Aktionen& aktionen) {
    for (std::size_t i = 0; i < kSchalter.size(); ++i) {
        QAction* aktion = aktionen.Schalterliste()[i];
        if (aktion != nullptr && MenueZu(kSchalter[i]) == menue) bauer.NimmAktion(aktion);
    }
    bauer.BeendeGruppe();
}

void NimmAlle(Menuebauer& bauer, Menue menue, const Aktionen& aktionen) {
    if (menue == Menue::Werkzeuge) {
        for (QAction* aktion : aktionen.Werkzeuge())
            bauer.NimmAktion(aktion);
        bauer.BeendeGruppe();
    }
    NimmBefehle(bauer, menue, aktionen);
    NimmSchalter(bauer, menue, aktionen);
    if (menue == Menue::Ergebnisse) bauer.NimmAktion(&aktionen.NachName("DataButton"));
}

/// Gives a letter to those entries that have none.
void VergibBuchstaben(const QMenu& menue) {
    QStringList texte;
    for (const QAction* aktion : menue.actions())
        texte << aktion->text();
    texte = MitBuchstaben(texte);
    for (qsizetype i = 0; i < texte.size(); ++i)
        menue.actions()[i]->setText(texte[i]);
}

class Meldungswahrer final : public QObject {
  public:
    Meldungswahrer(QWidget& fenster, QStatusBar& zeile) : QObject(&fenster), zeile_(zeile) {
        fenster.installEventFilter(this);
    }

    bool eventFilter(QObject* /*empfaenger*/, QEvent* ereignis) override {
        if (ereignis->type() != QEvent::StatusTip) return false;
        const QString tipp = static_cast<QStatusTipEvent*>(ereignis)->tip();
        const bool steht = !tipp_.isEmpty() && zeile_.currentMessage() == tipp_;
        if (!tipp.isEmpty()) {
            if (!steht) meldung_ = zeile_.currentMessage();
            zeile_.showMessage(tipp);
        } else if (steht) {
            zeile_.showMessage(meldung_);
        }
        tipp_ = tipp;
        return true;
    }

  private:
    QStatusBar& zeile_;
    QString meldung_;  ///< what stood there before the tip
    QString tipp_;     ///< empty: none is shown
};

}  // namespace

void BaueMenues(QMenuBar& leiste, const Aktionen& aktionen) {
    leiste.setObjectName(QStringLiteral("MenueLeiste"));
    // Before the window lays it out it would be too narrow for them, fold, and keep the button for that.
    constexpr int kWeit = 4096;
    leiste.resize(kWeit, leiste.height());
    for (const Menuezeile& zeile : kMenues) {
        QMenu& menue = *leiste.addMenu(AusUtf8(zeile.titel));
        Menuebauer bauer(menue);
        NimmAlle(bauer, zeile.menue, aktionen);
        VergibBuchstaben(menue);
    }
}

void BaueDateimenue(QAction& aktion, QWidget& fenster, std::function<QStringList()> dateien,
                    std::function<void(const QString&)> oeffne) {
    auto* menue = new QMenu(&fenster);
    aktion.setMenu(menue);
    const auto fuelle = [menue, dateien = std::move(dateien), oeffne = std::move(oeffne)] {
        menue->clear();
        const QStringList namen = dateien();
        if (namen.isEmpty())
            menue->addAction(QStringLiteral("Es wurde noch keine Datei geöffnet."))->setEnabled(false);
        for (qsizetype i = 0; i < namen.size(); ++i) {
            constexpr int kBreiteste = 480;  // [px]
            const QString pfad = QDir::toNativeSeparators(namen[i]);
            QString text = menue->fontMetrics().elidedText(pfad, Qt::ElideMiddle, kBreiteste);
            QAction* eintrag = menue->addAction(QStringLiteral("&%1  ").arg(i + 1) +
                                                text.replace(QLatin1Char('&'), QStringLiteral("&&")));
            eintrag->setStatusTip(pfad);
            QObject::connect(eintrag, &QAction::triggered, menue,
                             [oeffne, name = namen[i]] { oeffne(name); });
        }
    };
    QObject::connect(menue, &QMenu::aboutToShow, menue, fuelle);
}

void BewahreMeldung(QWidget& fenster, QStatusBar& zeile) {
    new Meldungswahrer(fenster, zeile);
}

}  // namespace zrw
