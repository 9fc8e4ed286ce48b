// A seeded random session in the window: clicks, drags, keys, wheel, buttons, dialogs and files, with the
// invariants of the network checked after every event.
// usage: fenster_zufall [SEED] [EVENTS] [SECONDS]     ends at whichever comes first; 0 seconds: no limit
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <cstdio>
#include <fstream>

#include "bench/Netzgenerator.h"
#include "fuzz/Proben.h"
#include "fuzz/fenster/Wege.h"
#include "input/Systemdateien.h"
#include "tests/hilfe/Antwortdienst.h"
#include "tests/hilfe/Festdrucker.h"
#include "tests/hilfe/Festuhr.h"
#include "tests/hilfe/Speicherdateien.h"

namespace {

using namespace zrw;

class Sitzungslauf {
  public:
    explicit Sitzungslauf(unsigned saat) : hand_(saat, fenster_), wege_(hand_, fenster_, ordner_.path()) {
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
                hand_.BedieneFenster(*dialog, true);
        });
        modal_.start(0);
    }

    void Ereignis() {
        static constexpr std::array kTun{&Sitzungslauf::Maus,    &Sitzungslauf::Maus,  &Sitzungslauf::Maus,
                                         &Sitzungslauf::Klick,   &Sitzungslauf::Klick, &Sitzungslauf::Klick,
                                         &Sitzungslauf::Rad,     &Sitzungslauf::Taste, &Sitzungslauf::Taste,
                                         &Sitzungslauf::Knopf,   &Sitzungslauf::Knopf, &Sitzungslauf::Fenster,
                                         &Sitzungslauf::Fenster, &Sitzungslauf::Datei, &Sitzungslauf::Weg,
                                         &Sitzungslauf::Weg,     &Sitzungslauf::Weg};
        // The first ones meet the start page.
        constexpr int kStart = 40;
        if (++ereignisse_ == kStart && fenster_.Netz() == nullptr)
            fenster_.OeffneDatei(dateien_[0].toStdString());
        WaehleAntworten();
        (this->*kTun[hand_.WuerfleZahl(kTun.size())])();
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        if (!fenster_.isVisible()) fenster_.show();
        PruefePlan();
    }
    [[nodiscard]] const TZrwMainDlg& DasFenster() const { return fenster_; }

  private:
    QString LegeDateiAn(const char* name, const std::string& inhalt) {
        const QString pfad = ordner_.filePath(name);
        std::ofstream(pfad.toStdString(), std::ios::binary) << inhalt;
        return pfad;
    }

    void WaehleAntworten() {
        dialoge_.ja = hand_.WuerfleZahl(4) == 0;
        dialoge_.antwort.reset();
        if (const std::size_t a = hand_.WuerfleZahl(3); a > 0) dialoge_.antwort = a == 1;
        dialoge_.datei.reset();
        if (hand_.WuerfleZahl(2) == 0) dialoge_.datei = dateien_[hand_.Stelle(dateien_.size())];
        dialoge_.farbe = Farbe{static_cast<std::uint32_t>(hand_.WuerfleZahl(0x1000000))};
        dialoge_.meldungen.clear();
        dialoge_.gesagt.clear();
        dialoge_.fragen.clear();
        dialoge_.wahlen.clear();
    }

    /// One event alone: presses without release, releases without press.
    void Maus() {
        const Qt::MouseButton taste = hand_.Maustaste();
        switch (hand_.WuerfleZahl(5)) {
            case 0:
                return hand_.SendeMaus(QEvent::MouseButtonPress, hand_.Ort(), taste, taste);
            case 1:
                return hand_.SendeMaus(QEvent::MouseButtonRelease, hand_.Ort(), taste, Qt::NoButton);
            default:
                return hand_.SendeMaus(QEvent::MouseMove, hand_.Ort(), Qt::NoButton, Qt::NoButton);
        }
    }
    void Klick() {
        const Qt::MouseButton taste = hand_.Maustaste();
        const QPoint ort = hand_.Ort();
        hand_.SendeMaus(QEvent::MouseMove, ort, Qt::NoButton, Qt::NoButton);
        hand_.SendeMaus(QEvent::MouseButtonPress, ort, taste, taste);
        const QPoint ende = hand_.WuerfleZahl(2) == 0 ? ort : hand_.Ort();
        if (ende != ort) hand_.SendeMaus(QEvent::MouseMove, ende, Qt::NoButton, taste);
        hand_.SendeMaus(QEvent::MouseButtonRelease, ende, taste, Qt::NoButton);
    }
    void Rad() {
        const QPoint ort = hand_.Ort();
        const int schritte = static_cast<int>(hand_.WuerfleZahl(7)) - 3;
        QWheelEvent e(ort, hand_.Bild().mapToGlobal(ort), {}, {0, schritte * 120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&hand_.Bild(), &e);
        if (hand_.WuerfleZahl(8) == 0) fenster_.SpeedButton3Click();  // else most sessions end lost in space
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
        const auto& [taste, dazu] = kTasten[hand_.WuerfleZahl(kTasten.size())];
        if (taste == Qt::Key_Z) return fenster_.Rueckgaengig();
        if (taste == Qt::Key_Y) return fenster_.WiederholeSchritt();
        QTest::keyClick(&hand_.Bild(), taste, dazu);
    }
    void Weg() { wege_.GeheWeg(); }
    void Knopf() { hand_.BedieneFenster(fenster_, false); }
    void Fenster() {
        const QWidgetList alle = QApplication::topLevelWidgets();
        QWidget* w = alle[static_cast<qsizetype>(hand_.WuerfleZahl(static_cast<std::size_t>(alle.size())))];
        if (w->isVisible() && w != &fenster_) hand_.BedieneFenster(*w, false);
        if (hand_.WuerfleZahl(50) == 0)
            fenster_.resize(300 + static_cast<int>(hand_.WuerfleZahl(1200)),
                            200 + static_cast<int>(hand_.WuerfleZahl(800)));
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
        if (namen.isEmpty() || hand_.WuerfleZahl(4) == 0) return LegeTabellen();
        QFile datei(ordner_.filePath(namen[hand_.Stelle(namen.size())]));
        if (hand_.WuerfleZahl(3) == 0) {
            datei.remove();
        } else if (datei.open(QIODevice::ReadWrite)) {
            datei.seek(hand_.Stelle(datei.size() + 1));
            datei.putChar(static_cast<char>(hand_.WuerfleZahl(256)));
            if (hand_.WuerfleZahl(2) == 0) datei.resize(hand_.Stelle(datei.size() + 1));
        }
    }

    void Datei() {
        if (hand_.WuerfleZahl(20) == 0) Tabelle();
        // What was saved over is put back, else the session ends with picture files alone.
        if (hand_.WuerfleZahl(200) == 0) {
            QFile::remove(dateien_[0]);
            QFile::copy(QStringLiteral(ZRW_QUELLE "/beispiele/NETZ.EIN"), dateien_[0]);
            LegeDateiAn("gross.EIN", bench::ErzeugeSteuerdatei({5000, 15000, 22000, 1}));
        }
        if (hand_.WuerfleZahl(20) == 0)
            fenster_.OeffneDatei(dateien_[hand_.Stelle(dateien_.size())].toStdString());
    }

    void PruefePlan() {
        const Liste* netz = fenster_.Netz();
        if (netz == nullptr) return;
        fuzz::PruefeListe(*netz);
        fuzz::PruefeNetz(*netz);
    }

    QTemporaryDir ordner_;
    QStringList dateien_;
    int ereignisse_ = 0;
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
    Bedienung hand_;
    Wege wege_;
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
