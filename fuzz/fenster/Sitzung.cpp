// A seeded random session in the window: clicks, drags, keys, wheel, buttons, dialogs and files, with the
// invariants of the network checked after every event.
// usage: fenster_zufall [SEED] [EVENTS] [SECONDS]     ends at whichever comes first; 0 seconds: no limit
#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <cstdio>
#include <fstream>
#include <random>

#include "bench/Netzgenerator.h"
#include "fuzz/Proben.h"
#include "input/Systemdateien.h"
#include "model/Bildorte.h"
#include "tests/hilfe/Antwortdienst.h"
#include "tests/hilfe/Festdrucker.h"
#include "tests/hilfe/Festuhr.h"
#include "tests/hilfe/Speicherdateien.h"
#include "ui/fenster/Hauptfenster.h"

namespace {

using namespace zrw;

class Sitzungslauf {
  public:
    explicit Sitzungslauf(unsigned saat) : zufall_(saat) {
        QDir::setCurrent(ordner_.path());
        // A copy: the session also saves, onto any file that it knows.
        for (const char* name : {"NETZ.EIN", "KOORD.KF", "RICHT.SF"})
            QFile::copy(QStringLiteral(ZRW_QUELLE "/beispiele/") + name, ordner_.filePath(name));
        LegeTabellen();
        const QString beispiel = ordner_.filePath("NETZ.EIN");
        dateien_ << beispiel
                 << LegeDateiAn("gross.EIN", bench::ErzeugeSteuerdatei({5000, 15000, 22000, saat}))
                 << LegeDateiAn("leer.EIN", "$NT 3\n") << LegeDateiAn("kaputt.EIN", "$NT x\n") << "fehlt.EIN"
                 << "bild.ZRW";
        // Not onto a picture file: a bitmap with a coloured pixel in its corner can be read as one, with the
        // same number at every point.
        dialoge_.bitmap = ordner_.filePath("bild.bmp");
        fenster_.resize(1000, 760);
        fenster_.show();
        // A modal dialog runs a loop of its own: this answers it.
        QObject::connect(&modal_, &QTimer::timeout, [this] {
            // A menu that a button opened: its entries are the buttons again.
            if (QWidget* menue = QApplication::activePopupWidget(); menue != nullptr) menue->close();
            if (QWidget* dialog = QApplication::activeModalWidget(); dialog != nullptr)
                BedieneFenster(*dialog, true);
        });
        modal_.start(0);
        fenster_.OeffneDatei(beispiel.toStdString());
    }

    void Ereignis() {
        static constexpr std::array kTun{&Sitzungslauf::Maus,    &Sitzungslauf::Maus,  &Sitzungslauf::Maus,
                                         &Sitzungslauf::Klick,   &Sitzungslauf::Klick, &Sitzungslauf::Klick,
                                         &Sitzungslauf::Rad,     &Sitzungslauf::Taste, &Sitzungslauf::Taste,
                                         &Sitzungslauf::Knopf,   &Sitzungslauf::Knopf, &Sitzungslauf::Fenster,
                                         &Sitzungslauf::Fenster, &Sitzungslauf::Datei};
        WaehleAntworten();
        (this->*kTun[WuerfleZahl(kTun.size())])();
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        if (!fenster_.isVisible()) fenster_.show();
        PruefePlan();
    }
    [[nodiscard]] const TZrwMainDlg& DasFenster() const { return fenster_; }

  private:
    std::size_t WuerfleZahl(std::size_t n) { return zufall_() % n; }
    /// A place in a container or file of the toolkit, whose sizes have signs.
    qsizetype Stelle(qsizetype n) { return static_cast<qsizetype>(WuerfleZahl(static_cast<std::size_t>(n))); }
    QString LegeDateiAn(const char* name, const std::string& inhalt) {
        const QString pfad = ordner_.filePath(name);
        std::ofstream(pfad.toStdString(), std::ios::binary) << inhalt;
        return pfad;
    }

    void WaehleAntworten() {
        dialoge_.ja = WuerfleZahl(4) == 0;
        dialoge_.antwort.reset();
        if (const std::size_t a = WuerfleZahl(3); a > 0) dialoge_.antwort = a == 1;
        dialoge_.datei.reset();
        if (WuerfleZahl(2) == 0) dialoge_.datei = dateien_[Stelle(dateien_.size())];
        dialoge_.farbe = Farbe{static_cast<std::uint32_t>(WuerfleZahl(0x1000000))};
        dialoge_.meldungen.clear();
        dialoge_.gesagt.clear();
        dialoge_.fragen.clear();
        dialoge_.wahlen.clear();
    }

    /// A place in the picture, half of the time one where a figure is.
    QPoint Ort() {
        const QRect r = Bild().rect();
        const QPoint irgendwo(static_cast<int>(WuerfleZahl(static_cast<std::size_t>(r.width()))),
                              static_cast<int>(WuerfleZahl(static_cast<std::size_t>(r.height()))));
        const Liste* netz = fenster_.Netz();
        if (netz == nullptr || netz->MaxPkte == 0 || WuerfleZahl(2) == 0) return irgendwo;
        const PunktKnoten* p = netz->PunktKnoten;
        for (std::size_t i = WuerfleZahl(static_cast<std::size_t>(netz->MaxPkte)); i > 0; --i)
            p = p->Next;
        const Bildpunkt b = BildortVon(*p, *netz);
        const QPoint ort(static_cast<int>(b.x % 100000), static_cast<int>(b.y % 100000));
        const QPoint daneben(static_cast<int>(WuerfleZahl(3)) * 10, -static_cast<int>(WuerfleZahl(2)) * 5);
        return r.contains(ort) ? ort + daneben : irgendwo;
    }
    QWidget& Bild() { return *fenster_.findChild<QWidget*>("ImageZarwik"); }
    Qt::MouseButton Maustaste() {
        static constexpr std::array kTasten{Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::RightButton,
                                            Qt::MiddleButton};
        return kTasten[WuerfleZahl(kTasten.size())];
    }
    void SendeMaus(QEvent::Type art, QPoint ort, Qt::MouseButton taste, Qt::MouseButtons gedrueckt) {
        QMouseEvent e(art, ort, Bild().mapToGlobal(ort), taste, gedrueckt, Qt::NoModifier);
        QCoreApplication::sendEvent(&Bild(), &e);
    }
    /// One event alone: presses without release, releases without press.
    void Maus() {
        const Qt::MouseButton taste = Maustaste();
        switch (WuerfleZahl(5)) {
            case 0:
                return SendeMaus(QEvent::MouseButtonPress, Ort(), taste, taste);
            case 1:
                return SendeMaus(QEvent::MouseButtonRelease, Ort(), taste, Qt::NoButton);
            default:
                return SendeMaus(QEvent::MouseMove, Ort(), Qt::NoButton, Qt::NoButton);
        }
    }
    void Klick() {
        const Qt::MouseButton taste = Maustaste();
        const QPoint ort = Ort();
        SendeMaus(QEvent::MouseMove, ort, Qt::NoButton, Qt::NoButton);
        SendeMaus(QEvent::MouseButtonPress, ort, taste, taste);
        const QPoint ende = WuerfleZahl(2) == 0 ? ort : Ort();
        if (ende != ort) SendeMaus(QEvent::MouseMove, ende, Qt::NoButton, taste);
        SendeMaus(QEvent::MouseButtonRelease, ende, taste, Qt::NoButton);
    }
    void Rad() {
        const QPoint ort = Ort();
        const int schritte = static_cast<int>(WuerfleZahl(7)) - 3;
        QWheelEvent e(ort, Bild().mapToGlobal(ort), {}, {0, schritte * 120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&Bild(), &e);
        if (WuerfleZahl(8) == 0) fenster_.SpeedButton3Click();  // else most sessions end lost in space
    }
    void Taste() {
        static constexpr std::array<std::pair<Qt::Key, Qt::KeyboardModifier>, 14> kTasten{{
            {Qt::Key_Escape, Qt::NoModifier},
            {Qt::Key_Plus, Qt::NoModifier},
            {Qt::Key_Minus, Qt::NoModifier},
            {Qt::Key_F, Qt::NoModifier},
            {Qt::Key_Home, Qt::NoModifier},
            {Qt::Key_Left, Qt::NoModifier},
            {Qt::Key_Down, Qt::NoModifier},
            {Qt::Key_Z, Qt::ControlModifier},
            {Qt::Key_Z, Qt::ControlModifier},
            {Qt::Key_Y, Qt::ControlModifier},
            {Qt::Key_F, Qt::ControlModifier},
            {Qt::Key_F1, Qt::ControlModifier},
            {Qt::Key_Return, Qt::NoModifier},
            {Qt::Key_Tab, Qt::NoModifier},
        }};
        const auto& [taste, dazu] = kTasten[WuerfleZahl(kTasten.size())];
        if (taste == Qt::Key_Z) return fenster_.Rueckgaengig();
        if (taste == Qt::Key_Y) return fenster_.WiederholeSchritt();
        QTest::keyClick(&Bild(), taste, dazu);
    }
    void Knopf() { BedieneFenster(fenster_, false); }
    void Fenster() {
        const QWidgetList alle = QApplication::topLevelWidgets();
        QWidget* w = alle[static_cast<qsizetype>(WuerfleZahl(static_cast<std::size_t>(alle.size())))];
        if (w->isVisible() && w != &fenster_) BedieneFenster(*w, false);
        if (WuerfleZahl(50) == 0)
            fenster_.resize(300 + static_cast<int>(WuerfleZahl(1200)),
                            200 + static_cast<int>(WuerfleZahl(800)));
    }
    void LegeTabellen() {
        const QDir beispiele(QStringLiteral(ZRW_QUELLE "/beispiele"));
        for (const QString& name : beispiele.entryList({"*.DB"})) {
            QFile::remove(ordner_.filePath(name));
            QFile::copy(beispiele.filePath(name), ordner_.filePath(name));
        }
    }
    /// One table goes, is cut short or holds something else; sometimes all come back.
    void Tabelle() {
        const QStringList namen = QDir(ordner_.path()).entryList({"*.DB"});
        if (namen.isEmpty() || WuerfleZahl(4) == 0) return LegeTabellen();
        QFile datei(ordner_.filePath(namen[Stelle(namen.size())]));
        if (WuerfleZahl(3) == 0) {
            datei.remove();
        } else if (datei.open(QIODevice::ReadWrite)) {
            datei.seek(Stelle(datei.size() + 1));
            datei.putChar(static_cast<char>(WuerfleZahl(256)));
            if (WuerfleZahl(2) == 0) datei.resize(Stelle(datei.size() + 1));
        }
    }

    void Datei() {
        if (WuerfleZahl(20) == 0) Tabelle();
        // What was saved over is put back, else the session ends with picture files alone.
        if (WuerfleZahl(200) == 0) {
            QFile::remove(dateien_[0]);
            QFile::copy(QStringLiteral(ZRW_QUELLE "/beispiele/NETZ.EIN"), dateien_[0]);
            LegeDateiAn("gross.EIN", bench::ErzeugeSteuerdatei({5000, 15000, 22000, 1}));
        }
        if (WuerfleZahl(20) == 0) fenster_.OeffneDatei(dateien_[Stelle(dateien_.size())].toStdString());
    }

    /// Uses one control of a window.
    void BedieneFenster(QWidget& fenster, bool schliesse) {
        QWidgetList felder;
        for (QWidget* w : fenster.findChildren<QWidget*>()) {
            if (w->isVisible() && w->isEnabled() && w->window() == &fenster) felder << w;
        }
        if (!felder.isEmpty())
            BedieneFeld(felder[static_cast<qsizetype>(WuerfleZahl(static_cast<std::size_t>(felder.size())))]);
        if (schliesse && WuerfleZahl(3) == 0) fenster.close();
    }
    void BedieneFeld(QWidget* w) {
        static const QStringList kTexte{"",   "0", "500", "12.5", "abc", "1", "HOHFELS", "99999999999999999",
                                        "-5", "Ü"};
        if (auto* knopf = qobject_cast<QAbstractButton*>(w)) {
            // Ending the program ends nothing here, but hides the window for a moment; now and then is
            // enough.
            if (knopf->objectName() == "SpeedButton7" && WuerfleZahl(20) != 0) return;
            knopf->click();
        } else if (auto* feld = qobject_cast<QLineEdit*>(w)) {
            feld->setText(
                kTexte[static_cast<qsizetype>(WuerfleZahl(static_cast<std::size_t>(kTexte.size())))]);
            if (WuerfleZahl(2) == 0) QTest::keyClick(feld, Qt::Key_Return);
        } else if (auto* liste = qobject_cast<QListView*>(w); liste != nullptr && liste->model() != nullptr) {
            const int zeilen = liste->model()->rowCount();
            if (zeilen == 0) return;
            const QModelIndex zeile =
                liste->model()->index(static_cast<int>(WuerfleZahl(static_cast<std::size_t>(zeilen))), 0);
            liste->selectionModel()->select(zeile, QItemSelectionModel::Toggle);
            emit liste->clicked(zeile);
        }
    }

    void PruefePlan() {
        const Liste* netz = fenster_.Netz();
        if (netz == nullptr) return;
        fuzz::PruefeListe(*netz);
        fuzz::PruefeNetz(*netz);
    }

    std::mt19937 zufall_;
    QTemporaryDir ordner_;
    QStringList dateien_;
    Einstellungen einstellungen_;
    Speichereinstellungen ablage_;
    Netzangaben netz_;
    Zeichenzustand zustand_;
    Systemdateien system_;
    Festuhr uhr_;
    TDM daten_{system_};
    Festdrucker drucker_;
    Antwortdienst dialoge_;
    Sitzung sitzung_{ordner_.filePath("sitzung.ini")};
    TZrwMainDlg fenster_{
        {einstellungen_, ablage_, netz_, zustand_, system_, uhr_, daten_, drucker_, dialoge_, sitzung_, "0"}};
    QTimer modal_;
};

long Resident() {
    std::ifstream statm("/proc/self/statm");
    long gesamt = 0;
    long resident = 0;
    statm >> gesamt >> resident;
    return resident * 4096 / 1000000;
}

long Zahl(int anzahl, char** worte, int i, long sonst) {
    return anzahl > i ? std::strtol(worte[i], nullptr, 10) : sonst;
}

}  // namespace

int main(int anzahl, char** worte) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const QApplication anwendung(anzahl, worte);
    const auto saat = static_cast<unsigned>(Zahl(anzahl, worte, 1, 1));
    const long ereignisse = Zahl(anzahl, worte, 2, 2000);
    const long sekunden = Zahl(anzahl, worte, 3, 0);
    QElapsedTimer uhr;
    uhr.start();
    long i = 0;
    {
        Sitzungslauf lauf(saat);
        const long bericht = std::max(ereignisse / 10, 1L);
        for (; i < ereignisse && (sekunden == 0 || uhr.elapsed() < sekunden * 1000); ++i) {
            if (i % bericht == 0) std::printf("%ld Ereignisse, %ld MB\n", i, Resident());
            std::fflush(stdout);
            lauf.Ereignis();
        }
    }
    std::printf("Saat %u: %ld Ereignisse in %.0f s ohne Fund, %ld MB\n", saat, i,
                static_cast<double>(uhr.elapsed()) / 1000, Resident());
    return 0;
}
