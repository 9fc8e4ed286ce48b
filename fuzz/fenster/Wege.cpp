#include "fuzz/fenster/Wege.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDockWidget>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QTabWidget>
#include <QTest>
#include <QTextBrowser>
#include <QUrl>
#include <array>
#include <utility>

namespace zrw {
namespace {

/// Ending the program would only hide the window for a moment.
bool BeendetProgramm(const QAction* aktion) {
    return aktion != nullptr && aktion->objectName().endsWith(QStringLiteral("SpeedButton7"));
}

}  // namespace

Wege::Wege(Bedienung& hand, TZrwMainDlg& fenster, QString ordner)
    : hand_(hand), fenster_(fenster), ordner_(std::move(ordner)) {}

void Wege::GeheWeg() {
    static constexpr std::array kWege{&Wege::Menueleiste, &Wege::Tastatur,   &Wege::Tastatur,
                                      &Wege::Auswaehlen,  &Wege::Messen,     &Wege::Figurenmenue,
                                      &Wege::Ausgeben,    &Wege::Einstellen, &Wege::Seitenleiste};
    if (fenster_.Netz() == nullptr && hand_.WuerfleZahl(4) != 0) {
        Starten();
    } else {
        (this->*kWege[hand_.WuerfleZahl(kWege.size())])();
    }
    SchliesseMenues();
}

void Wege::DrueckeTaste(QWidget* w, Qt::Key taste, Qt::KeyboardModifiers dazu) {
    QKeyEvent e(QEvent::KeyPress, taste, dazu);
    QCoreApplication::sendEvent(w, &e);
}

void Wege::SchliesseMenues() {
    constexpr int kTief = 9;
    for (int i = 0; i < kTief && QApplication::activePopupWidget() != nullptr; ++i)
        QApplication::activePopupWidget()->close();
}

void Wege::Menueleiste() {
    QMenuBar& leiste = *fenster_.menuBar();
    const QList<QAction*> titel = leiste.actions();
    QAction* einer = titel[hand_.Stelle(titel.size())];
    if (hand_.WuerfleZahl(2) == 0) {
        QTest::mousePress(&leiste, Qt::LeftButton, {}, leiste.actionGeometry(einer).center());
    } else {
        QTest::keyClick(&hand_.Bild(), Qt::Key_F10);
        for (std::size_t i = hand_.WuerfleZahl(8); i > 0; --i)
            DrueckeTaste(&leiste, Qt::Key_Right);
        DrueckeTaste(&leiste, Qt::Key_Down);
    }
    if (QApplication::activePopupWidget() == nullptr) einer->menu()->popup(fenster_.pos());
    BedieneMenue();
}

/// The open menu, and those that it opens.
void Wege::BedieneMenue() {
    constexpr int kSchritte = 12;
    for (int i = 0; i < kSchritte; ++i) {
        QPointer<QMenu> menue = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (menue == nullptr) return;
        switch (hand_.WuerfleZahl(8)) {
            case 0:
                DrueckeTaste(menue, Qt::Key_Up);
                break;
            case 1:
                DrueckeTaste(menue, Qt::Key_Right);
                break;
            case 2:
                DrueckeTaste(menue, Qt::Key_Left);
                break;
            case 3:
                if (!BeendetProgramm(menue->activeAction())) DrueckeTaste(menue, Qt::Key_Return);
                break;
            case 4:
                WaehleEintrag(*menue);
                break;
            default:
                DrueckeTaste(menue, Qt::Key_Down);
        }
    }
}

/// A click on one of its entries.
void Wege::WaehleEintrag(QMenu& menue) {
    const QList<QAction*> alle = menue.actions();
    if (alle.isEmpty()) return;
    QAction* einer = alle[hand_.Stelle(alle.size())];
    if (!einer->isEnabled() || einer->isSeparator() || BeendetProgramm(einer)) return;
    const QPoint ort = menue.actionGeometry(einer).center();
    const QPointer<QMenu> da(&menue);
    QTest::mouseMove(&menue, ort);
    if (da != nullptr) QTest::mousePress(da, Qt::LeftButton, {}, ort);
    QMouseEvent los(QEvent::MouseButtonRelease, ort, menue.mapToGlobal(ort), Qt::LeftButton, Qt::NoButton,
                    Qt::NoModifier);
    if (da != nullptr) QCoreApplication::sendEvent(da, &los);
}

void Wege::Tastatur() {
    static constexpr std::array<std::pair<Qt::Key, Qt::KeyboardModifiers>, 24> kTasten{{
        {Qt::Key_Left, Qt::ControlModifier},  {Qt::Key_Right, Qt::ControlModifier},
        {Qt::Key_Up, Qt::ControlModifier},    {Qt::Key_Down, Qt::ControlModifier},
        {Qt::Key_Left, Qt::ControlModifier},  {Qt::Key_Up, Qt::ControlModifier},
        {Qt::Key_Return, Qt::NoModifier},     {Qt::Key_Return, Qt::NoModifier},
        {Qt::Key_Space, Qt::NoModifier},      {Qt::Key_Tab, Qt::NoModifier},
        {Qt::Key_Backtab, Qt::ShiftModifier}, {Qt::Key_Menu, Qt::NoModifier},
        {Qt::Key_F10, Qt::ShiftModifier},     {Qt::Key_F10, Qt::NoModifier},
        {Qt::Key_Escape, Qt::NoModifier},     {Qt::Key_Backspace, Qt::NoModifier},
        {Qt::Key_Delete, Qt::NoModifier},     {Qt::Key_C, Qt::ControlModifier},
        {Qt::Key_A, Qt::ControlModifier},     {Qt::Key_1, Qt::NoModifier},
        {Qt::Key_3, Qt::NoModifier},          {Qt::Key_5, Qt::NoModifier},
        {Qt::Key_9, Qt::NoModifier},          {Qt::Key_F1, Qt::NoModifier},
    }};
    for (std::size_t i = hand_.WuerfleZahl(6); i > 0; --i) {
        const auto& [taste, dazu] = kTasten[hand_.WuerfleZahl(kTasten.size())];
        QWidget* w = fenster_.focusWidget();
        // A button with the keyboard is pressed as by the mouse, and that others do.
        if (w == nullptr || hand_.WuerfleZahl(3) != 0 || qobject_cast<QAbstractButton*>(w) != nullptr)
            w = &hand_.Bild();
        QTest::keyPress(w, taste, dazu);
        if (taste == Qt::Key_Menu || (taste == Qt::Key_F10 && dazu == Qt::ShiftModifier)) {
            QContextMenuEvent e(QContextMenuEvent::Keyboard, {}, hand_.Bild().mapToGlobal(QPoint()));
            QCoreApplication::sendEvent(&hand_.Bild(), &e);
        }
        BedieneMenue();
        SchliesseMenues();
    }
}

void Wege::Auswaehlen() {
    fenster_.LoeseWerkzeuge();
    for (std::size_t i = 1 + hand_.WuerfleZahl(4); i > 0; --i) {
        const Qt::KeyboardModifiers dazu = hand_.WuerfleZahl(2) == 0 ? Qt::ShiftModifier : Qt::NoModifier;
        const QPoint ort = hand_.Ort();
        const QPoint ende = hand_.WuerfleZahl(2) == 0 ? ort : hand_.Ort();
        QTest::mousePress(&hand_.Bild(), Qt::LeftButton, dazu, ort);
        if (ende != ort) QTest::mouseMove(&hand_.Bild(), ende);
        if (hand_.WuerfleZahl(20) == 0) DrueckeTaste(&hand_.Bild(), Qt::Key_Escape);
        QTest::mouseRelease(&hand_.Bild(), Qt::LeftButton, dazu, ende);
    }
    if (hand_.WuerfleZahl(3) == 0) DrueckeTaste(&hand_.Bild(), Qt::Key_Escape);
    if (hand_.WuerfleZahl(2) == 0) Figurenmenue();
}

void Wege::Figurenmenue() {
    if (hand_.WuerfleZahl(4) != 0) fenster_.LoeseWerkzeuge();
    hand_.SendeMaus(QEvent::MouseButtonPress, hand_.Ort(), Qt::RightButton, Qt::RightButton);
    BedieneMenue();
}

void Wege::Messen() {
    auto* knopf = fenster_.findChild<QAbstractButton*>("MessenButton");
    if (!knopf->isChecked()) knopf->click();
    for (std::size_t i = 1 + hand_.WuerfleZahl(5); i > 0; --i) {
        const QPoint ort = hand_.Ort();
        hand_.SendeMaus(QEvent::MouseMove, ort, Qt::NoButton, Qt::NoButton);
        hand_.SendeMaus(QEvent::MouseButtonPress, ort, Qt::LeftButton, Qt::LeftButton);
        const QPoint ende = hand_.WuerfleZahl(3) == 0 ? hand_.Ort() : ort;
        hand_.SendeMaus(QEvent::MouseButtonRelease, ende, Qt::LeftButton, Qt::NoButton);
        if (hand_.WuerfleZahl(4) == 0)
            hand_.SendeMaus(QEvent::MouseButtonDblClick, ende, Qt::LeftButton, Qt::LeftButton);
        if (hand_.WuerfleZahl(4) == 0) DrueckeTaste(&hand_.Bild(), Qt::Key_Backspace);
        if (hand_.WuerfleZahl(4) == 0) DrueckeTaste(&hand_.Bild(), Qt::Key_C, Qt::ControlModifier);
    }
}

/// @return the open dialog of that name, used so often; null without it, or where that has closed it
QPointer<QDialog> Wege::BedieneDialog(const char* name, int mal) {
    QPointer<QDialog> da(fenster_.findChild<QDialog*>(name));
    for (int i = 0; i < mal && da != nullptr && da->isVisible(); ++i)
        hand_.BedieneFenster(*da, false);
    return da;
}

void Wege::Ausgeben() {
    fenster_.AusgebenClick();
    QPointer<QDialog> da = BedieneDialog("AusgabeDialog", 8);
    if (da == nullptr) return;
    if (auto* feld = da->findChild<QLineEdit*>("AusgabeOrdner"); feld != nullptr) feld->setText(ordner_);
    da = BedieneDialog("AusgabeDialog", 4);
    if (da != nullptr) da->close();
}

/// The dock: open, closed, floating, at either side, its pages and links.
void Wege::Seitenleiste() {
    auto* leiste = fenster_.findChild<QDockWidget*>("SeitenLeiste");
    auto* fach = qobject_cast<QMainWindow*>(leiste->parentWidget());
    if (!leiste->isVisible() || hand_.WuerfleZahl(6) == 0)
        fenster_.findChild<QAction*>("AktionSeitenLeiste")->trigger();
    if (hand_.WuerfleZahl(5) == 0) leiste->setFloating(!leiste->isFloating());
    if (hand_.WuerfleZahl(5) == 0)
        fach->addDockWidget(hand_.WuerfleZahl(2) == 0 ? Qt::LeftDockWidgetArea : Qt::RightDockWidgetArea,
                            leiste);
    if (hand_.WuerfleZahl(2) == 0) Auswaehlen();
    auto* seiten = leiste->findChild<QTabWidget*>("SeitenReiter");
    seiten->setCurrentIndex(hand_.Kleinzahl(seiten->count()));
    auto* text = leiste->findChild<QTextBrowser*>("EigenschaftsText");
    for (int i = hand_.Kleinzahl(3); i > 0; --i)
        emit text->anchorClicked(QUrl(QString::number(hand_.Kleinzahl(200))));
    for (int i = hand_.Kleinzahl(4); i > 0; --i)
        hand_.BedieneFenster(*leiste, false);
}

void Wege::Einstellen() {
    fenster_.ColorButtonClick();
    const QPointer<QDialog> da = BedieneDialog("TZRWParameter", 8);
    if (da == nullptr) return;
    if (auto* anwenden = da->findChild<QAbstractButton*>("FarbenAnwenden"); anwenden != nullptr)
        anwenden->click();
    if (da != nullptr && hand_.WuerfleZahl(2) == 0) da->close();
}

void Wege::Starten() {
    auto* seite = fenster_.findChild<QWidget*>("StartSeite");
    if (seite == nullptr || !seite->isVisible()) return;
    const auto knoepfe = seite->findChildren<QAbstractButton*>();
    if (knoepfe.isEmpty()) return;
    QAbstractButton* knopf = knoepfe[hand_.Stelle(knoepfe.size())];
    hand_.WuerfleZahl(2) == 0 ? DrueckeTaste(knopf, Qt::Key_Tab) : knopf->click();
}

}  // namespace zrw
