// The window "Ausgeben": what it writes is what its command line writes, and the plan stays as it is.
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QProcess>
#include <QSpinBox>

#include "tests/ui/Fenster.h"
#include "ui/ausgabe/Ausgabedialog.h"

namespace zrw {
namespace {

class Ausgabefenster : public Fensterprobe {
  protected:
    Ausgabefenster() {
        QDir(ordner.path()).mkdir(kOrdner);
        const QDir beispiele(ZRW_QUELLE "/beispiele");
        for (const QString& name : beispiele.entryList({"*.EIN", "*.ZRW", "*.DB", "*.PX", "*.KF", "*.SF"}))
            QFile::copy(beispiele.filePath(name), Pfad(name));
    }
    /// In a folder whose name a shell takes apart.
    [[nodiscard]] QString Pfad(const QString& name) const { return ordner.filePath(kOrdner + '/' + name); }
    [[nodiscard]] QByteArray Bytes(const QString& name) const {
        QFile f(Pfad(name));
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
    void OeffneBeispiel(const char* name) { OeffneDatei(kOrdner + '/' + name); }
    [[nodiscard]] QList<QDialog*> Dialoge() const {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return fenster.findChildren<QDialog*>("AusgabeDialog");
    }
    Ausgabedialog& Dialog() {
        if (Dialoge().isEmpty()) fenster.AusgebenClick();
        if (Dialoge().isEmpty()) throw std::runtime_error("no dialog");
        return static_cast<Ausgabedialog&>(*Dialoge().front());
    }
    template <class Teil>
    static Teil& Feld(const QDialog& dialog, const char* name) {
        auto* teil = dialog.findChild<Teil*>(QString::fromUtf8(name));
        if (teil == nullptr) throw std::runtime_error(std::string("no component ") + name);
        return *teil;
    }
    static void WaehleFormat(const QDialog& dialog, const char* format) {
        auto& wahl = Feld<QComboBox>(dialog, "FormatWahl");
        wahl.setCurrentIndex(wahl.findData(format));
    }
    static QString Hinweis(const QDialog& dialog) { return Feld<QLabel>(dialog, "BefehlsHinweis").text(); }
    static void Tippe(QLineEdit& feld, const char* text) {
        feld.selectAll();
        QTest::keyClick(&feld, Qt::Key_Delete);
        QTest::keyClicks(&feld, text);
    }
    static void Schreibe(const QDialog& dialog) { Feld<QAbstractButton>(dialog, "AusgabeSchreiben").click(); }
    /// What the batch mode says, run by a shell.
    QString FuehreBefehlAus(const QString& befehl) const {
        QProcess shell;
        QProcessEnvironment umgebung = QProcessEnvironment::systemEnvironment();
        umgebung.insert("PATH", QFileInfo(ZRW_PROGRAMM).path() + ':' + umgebung.value("PATH"));
        umgebung.insert("XDG_CONFIG_HOME", ordner.path());
        shell.setProcessEnvironment(umgebung);
        shell.start("sh", {"-c", befehl});
        shell.waitForFinished();
        return QString::fromUtf8(shell.readAllStandardError());
    }

    const QString kOrdner = QStringLiteral("Büro 'Süd' $HOME");
};

using Wahl = std::function<void(const QDialog&)>;

TEST_F(Ausgabefenster, BefehlSchreibtDieselbenBytes) {
    const auto kreuz = [](const char* name, bool ein) -> Wahl {
        return [=](const QDialog& d) { Feld<QCheckBox>(d, name).setChecked(ein); };
    };
    const auto massstab = [](const QDialog& d) { Feld<QLineEdit>(d, "AusgabeMassstab").setText("40000.5"); };
    const auto nummern = [](int ziel) -> Wahl {
        return [=](const QDialog& d) { Feld<QComboBox>(d, "NummernWahl").setCurrentIndex(ziel); };
    };
    struct Fall {
        const char* format;
        std::vector<Wahl> wahlen;
    };
    const std::vector<Fall> faelle{
        {"zrw", {}},
        {"png", {[](const QDialog& d) { Feld<QSpinBox>(d, "BildWeite").setValue(500); }}},
        {"png", {kreuz("KantenGlatt", true), kreuz("Schalter-kurznr", true), kreuz("Schalter-fp", false)}},
        {"bmp", {kreuz("Schalter-massbalken", true)}},
        {"svg", {kreuz("Schalter-beobachtungen", false)}},
        {"pdf", {kreuz("Schalter-lagegen", true)}},
        {"pdf", {kreuz("Schalter-lagegen", true), kreuz("Schalter-ellipsen-gefuellt", true)}},
        {"pdf", {kreuz("MassstabPassend", false), massstab, kreuz("PapierQuer", true)}},
        {"pdf",
         {kreuz("MassstabPassend", false), massstab, kreuz("AlleBlaetter", true),
          [](const QDialog& d) { Feld<QComboBox>(d, "PapierWahl").setCurrentText("A3"); },
          [](const QDialog& d) { Feld<QSpinBox>(d, "AusgabeAufloesung").setValue(300); }}},
        {"pdf",
         {kreuz("Schalter-blattrahmen", true), kreuz("BlattSchwarzweiss", true),
          [](const QDialog& d) { Feld<QSpinBox>(d, "BlattAnzahl").setValue(8); },
          [](const QDialog& d) { Feld<QSpinBox>(d, "BlattUeberlappung").setValue(10); },
          [](const QDialog& d) { Feld<QComboBox>(d, "BlattStift").setCurrentIndex(2); },
          [](const QDialog& d) { Feld<QLineEdit>(d, "BlattFirma").setText("Büro 'Süd'"); }}},
        {"pdf", {nummern(2), kreuz("PapierQuer", true)}},
        {"png", {nummern(1), [](const QDialog& d) { Feld<QSpinBox>(d, "BildWeite").setValue(700); }}},
        // A picture file keeps the legend without its time, which every second changes.
        {"zrw", {nummern(2), kreuz("Schalter-legende", true), kreuz("MassstabPassend", false), massstab}},
        {"geojson", {nummern(2)}},
        {"liste", {}},
        {"statistik", {}},
        {"dxf", {massstab, kreuz("Schalter-np", false)}},
        {"plt", {[](const QDialog& d) { Feld<QSpinBox>(d, "AusgabeAufloesung").setValue(96); }}},
    };
    const auto mitNummern = [](std::string_view format) {
        return std::string_view("zrw png bmp svg pdf").find(format) != std::string_view::npos;
    };
    for (const char* quelle : {"NETZ.EIN", "LINIEN.ZRW"}) {
        OeffneBeispiel(quelle);
        fenster.ButtonGroesserClick();  // the window's view is not the output's
        Kasten("CheckBoxPktNr").setChecked(false);
        const Stand vorher = Jetzt();
        for (const Fall& f : faelle) {
            const auto wo = testing::Message() << quelle << ' ' << f.format;
            Ausgabedialog* dialog = &Dialog();
            WaehleFormat(*dialog, f.format);
            for (const Wahl& w : f.wahlen)
                w(*dialog);
            dialog->ZeichneVorschau();
            EXPECT_FALSE(Feld<QLabel>(*dialog, "VorschauBild").pixmap().isNull()) << wo;
            EXPECT_EQ(Feld<QWidget>(*dialog, "NummernWahl").isVisible(), mitNummern(f.format)) << wo;
            EXPECT_EQ(Hinweis(*dialog), "") << wo;
            const QString name = Feld<QLineEdit>(*dialog, "AusgabeName").text();
            Feld<QLineEdit>(*dialog, "AusgabeOrdner").setText(Pfad("Neuer Ordner"));
            Feld<QAbstractButton>(*dialog, "BefehlKopieren").click();
            const QString befehl = QGuiApplication::clipboard()->text();
            dialoge.gesagt.clear();
            Schreibe(*dialog);
            const QByteArray bytes = Bytes("Neuer Ordner/" + name);
            EXPECT_FALSE(bytes.isEmpty()) << wo << befehl.toStdString();
            EXPECT_TRUE(QFile::remove(Pfad("Neuer Ordner/" + name))) << wo;
            const QString meldungen = FuehreBefehlAus(befehl);
            EXPECT_TRUE(Bytes("Neuer Ordner/" + name) == bytes) << wo << befehl.toStdString();
            EXPECT_EQ(dialoge.gesagt.join('\n'), meldungen.trimmed()) << wo;
            QFile::remove(Pfad("Neuer Ordner/" + name));
            EXPECT_TRUE(Dialoge().isEmpty()) << wo;
            EXPECT_TRUE(Status().contains(name)) << wo << Status().toStdString();
        }
        EXPECT_TRUE(Jetzt() == vorher) << quelle;
        EXPECT_FALSE(Kasten("CheckBoxALKKurz").isChecked()) << quelle;
    }
    EXPECT_TRUE(dialoge.meldungen.isEmpty());
}

TEST_F(Ausgabefenster, OrdnetNummernNurInDerAusgabe) {
    OeffneBeispiel("NETZ.EIN");
    const Stand vorher = Jetzt();
    QByteArrayList svg;
    for (const int ziel : {0, 1, 2}) {
        Ausgabedialog& dialog = Dialog();
        WaehleFormat(dialog, "svg");
        Feld<QComboBox>(dialog, "NummernWahl").setCurrentIndex(ziel);
        Tippe(Feld<QLineEdit>(dialog, "AusgabeName"), QByteArray::number(ziel).constData());
        Schreibe(dialog);
        svg << Bytes(QString::number(ziel) + ".svg");
    }
    EXPECT_FALSE(svg[0] == svg[1] || svg[1] == svg[2] || svg[0] == svg[2]);
    EXPECT_TRUE(Jetzt() == vorher);
    Knopf("NummernOrdnenButton").click();
    Kind<QAbstractButton>("OrdnenKnopf").click();
    SpeichereDatei(kOrdner + "/neu.ZRW");
    Ausgabedialog& dialog = Dialog();
    EXPECT_FALSE(Hinweis(dialog).contains("geordnet"));
    Feld<QComboBox>(dialog, "NummernWahl").setCurrentIndex(1);
    EXPECT_TRUE(Hinweis(dialog).contains("lässt Nummern stehen, die im Fenster schon geordnet wurden"));
}

TEST_F(Ausgabefenster, VorhandenesBleibtUndFehlerHaltenDasFensterOffen) {
    fenster.AusgebenClick();
    EXPECT_TRUE(Dialoge().isEmpty()) << "no network";
    OeffneBeispiel("NETZ.EIN");
    LegeDateiAn(kOrdner + "/NETZ.svg", "alt");
    Ausgabedialog& dialog = Dialog();
    WaehleFormat(dialog, "svg");
    Schreibe(dialog);
    EXPECT_EQ(dialoge.fragen.size(), 1);
    EXPECT_EQ(Bytes("NETZ.svg"), "alt");
    EXPECT_TRUE(dialog.isVisible());
    auto& name = Feld<QLineEdit>(dialog, "AusgabeName");
    for (const char* falsch : {"", ".svg", "a/b"}) {
        Tippe(name, falsch);
        Schreibe(dialog);
    }
    Tippe(name, "anders");
    EXPECT_EQ(Hinweis(dialog), "Der Befehl nennt die Datei NETZ.svg.");
    Feld<QLineEdit>(dialog, "AusgabeOrdner").setText(Pfad("fehlt/auch"));
    Schreibe(dialog);
    ASSERT_EQ(dialoge.meldungen.size(), 4);
    EXPECT_TRUE(dialoge.meldungen.back().contains("anders.svg"));
    dialoge.datei = Pfad("");
    Feld<QAbstractButton>(dialog, "OrdnerKnopf").click();
    WaehleFormat(dialog, "dxf");
    EXPECT_EQ(name.text(), "ZRW.DXF");
    EXPECT_TRUE(name.isReadOnly());
    WaehleFormat(dialog, "svg");
    Schreibe(dialog);
    EXPECT_TRUE(QFile::exists(Pfad("anders.svg")));
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(Ausgabefenster, VorschauNenntBlaetterUndDerBefehlSeineGrenzen) {
    OeffneBeispiel("NETZ.EIN");
    Ausgabedialog& dialog = Dialog();
    auto& text = Feld<QLabel>(dialog, "VorschauText");
    QTRY_COMPARE(text.text(), "1:250000, ein Blatt");
    Feld<QCheckBox>(dialog, "MassstabPassend").setChecked(false);
    Feld<QLineEdit>(dialog, "AusgabeMassstab").setText("100000");
    QTRY_COMPARE(text.text(), "1:100000, nur das erste von 5 Blättern");
    Feld<QLineEdit>(dialog, "AusgabeMassstab").setText("1");
    QTRY_COMPARE(text.text(), "1:1, eines von mehr als 400 Blättern");
    Feld<QCheckBox>(dialog, "AlleBlaetter").setChecked(true);
    QTRY_VERIFY(Feld<QLabel>(dialog, "VorschauBild").pixmap().isNull());
    Feld<QLineEdit>(dialog, "AusgabeMassstab").setText("0");
    EXPECT_EQ(Feld<QLineEdit>(dialog, "BefehlsZeile").text(), "");
    EXPECT_TRUE(Hinweis(dialog).contains("größer als 0"));
    dialog.close();

    const Liste& plan = *fenster.Netz();
    Modus("DelPunktButton");
    fenster.SpeedButton3Click();
    Klick(Pixel(plan, *plan.PunktKnoten));
    ASSERT_TRUE(fenster.Ungesichert());
    EXPECT_TRUE(Hinweis(Dialog()).contains("liest NETZ.EIN ohne die Änderungen"));
    Dialog().close();
    SpeichereDatei(kOrdner + "/neu.ZRW");
    Ausgabedialog& danach = Dialog();
    EXPECT_TRUE(Hinweis(danach).startsWith("Der Befehl liest die gespeicherte Zarwikdatei neu.ZRW."));
    WaehleFormat(danach, "zrw");
    Schreibe(danach);  // replacing is refused
    EXPECT_EQ(Feld<QLineEdit>(danach, "AusgabeName").text(), "neu.ZRW");
    QFile::rename(Pfad("neu.ZRW"), Pfad("fort.ZRW"));
    Schreibe(danach);
    EXPECT_EQ(Bytes("neu.ZRW"), Bytes("fort.ZRW")) << "in the view that was saved";
}

}  // namespace
}  // namespace zrw
