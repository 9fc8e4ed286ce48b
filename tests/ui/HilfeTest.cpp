// The manual: pages, table of topics and resources belong together, and the window finds its way in them.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QDirIterator>
#include <QFile>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTest>
#include <QTextBrowser>
#include <QTreeWidget>
#include <set>

#include "ui/Umwandlung.h"
#include "ui/fenster/Umbruchleiste.h"
#include "ui/hilfe/Hilfefenster.h"

namespace zrw {
namespace {

QString Seite(const Hilfethema& thema) {
    QFile f(QStringLiteral(":/hilfe/") + AusUtf8(thema.datei));
    return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
}

TEST(Hilfe, SeitenUndTafelGehoerenZusammen) {
    const Hilfefenster fenster;  // registers the pages
    std::set<int> kontexte;
    std::set<QString> dateien;
    for (const Hilfethema& t : kHilfethemen) {
        const QString name = AusUtf8(t.datei);
        EXPECT_TRUE(kontexte.insert(t.kontext).second) << t.kontext << " twice";
        EXPECT_EQ(name.left(3), QStringLiteral("%1_").arg(t.kontext, 2, 10, QLatin1Char('0')));
        EXPECT_EQ(Seite(t).section(u'\n', 0, 0), QStringLiteral("# ") + AusUtf8(t.titel)) << t.datei;
        dateien.insert(name);
    }
    for (const char* ort : {":/hilfe", ZRW_QUELLE "/hilfe"}) {
        for (QDirIterator i(QString::fromUtf8(ort), {QStringLiteral("*.md")}); i.hasNext();) {
            i.next();
            EXPECT_TRUE(dateien.contains(i.fileName())) << ort << ": " << i.fileName().toStdString();
        }
    }
    for (const Hilfekomponente& k : kHilfekomponenten)
        EXPECT_TRUE(kontexte.contains(k.kontext)) << k.komponente;
    for (const int kontext : {19, 20, 28, 30})
        EXPECT_TRUE(kontexte.contains(kontext)) << "fixed by its dialog";
}

TEST(Hilfe, VerweiseUndBilderFuehrenZumZiel) {
    Hilfefenster fenster;
    auto* seite = fenster.findChild<QTextBrowser*>();
    const QRegularExpression ziel(QStringLiteral(R"(\]\(([^)]*)\))"));
    int anzahl = 0;
    for (const Hilfethema& t : kHilfethemen) {
        fenster.ZeigeSeite(t.kontext);
        EXPECT_EQ(fenster.Kontext(), t.kontext);
        EXPECT_EQ(seite->document()->toRawText().count(QChar::ObjectReplacementCharacter),
                  Seite(t).count(QStringLiteral("![")))
            << "a picture of " << t.datei << " is not shown";
        for (auto i = ziel.globalMatch(Seite(t)); i.hasNext(); ++anzahl) {
            const QString name = i.next().captured(1);
            const bool bild = !name.endsWith(QStringLiteral(".md"));
            const auto art = bild ? QTextDocument::ImageResource : QTextDocument::MarkdownResource;
            const QVariant inhalt = seite->document()->resource(art, QUrl(name));
            const bool da = bild ? inhalt.canConvert<QImage>() && !inhalt.value<QImage>().isNull()
                                 : !inhalt.toByteArray().isEmpty();
            EXPECT_TRUE(da) << t.datei << ": " << name.toStdString();
        }
    }
    EXPECT_GT(anzahl, 80);
    for (const char* fremd : {"https://example.org/", "file:///etc/hostname", "../README.md"}) {
        const QUrl adresse(QString::fromLatin1(fremd));
        seite->setSource(adresse);
        EXPECT_EQ(fenster.Kontext(), kHilfethemen.back().kontext) << fremd;
        EXPECT_TRUE(seite->loadResource(QTextDocument::HtmlResource, adresse).toByteArray().isEmpty())
            << fremd;
    }
}

TEST(Hilfe, AntwortetAuchUeberEinemWartendenDialog) {
    Hilfefenster fenster;
    fenster.ZeigeSeite(1);
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    fenster.ZeigeSeite(28);
    EXPECT_EQ(QApplication::activeModalWidget(), &fenster);
    fenster.ZeigeSeite(30);
    EXPECT_EQ(QApplication::activeModalWidget(), &fenster);
    fenster.close();
    EXPECT_EQ(QApplication::activeModalWidget(), &dialog);
    dialog.close();
    fenster.ZeigeSeite(1);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST(Hilfe, ThemaZuGehtZumNaechstenBenannten) {
    QWidget fenster;
    fenster.setObjectName("TZrwMainDlg");
    QWidget dialog(&fenster, Qt::Dialog);
    dialog.setObjectName("TFormPunktart");
    QWidget gruppe(&dialog);
    gruppe.setObjectName("RadioGroupSymb");
    QWidget feld(&gruppe);
    QWidget knopf(&fenster);
    knopf.setObjectName("MovePktButton");
    EXPECT_EQ(ThemaZu(&feld), 19);
    EXPECT_EQ(ThemaZu(&knopf), 10);
    EXPECT_EQ(ThemaZu(&fenster), kErsteSeite);
    EXPECT_EQ(ThemaZu(nullptr), kErsteSeite);
}

TEST(Hilfe, SucheFindetDieRichtigeSeite) {
    Hilfefenster fenster;
    EXPECT_EQ(fenster.SucheSeiten("Residuenmaßstab BISHERIGE"), std::vector<int>{31});
    EXPECT_EQ(fenster.SucheSeiten("siebenpunktzugfeder"), std::vector<int>{});
    EXPECT_EQ(fenster.SucheSeiten(" ").size(), kHilfethemen.size());

    fenster.ZeigeSeite(5);
    auto* feld = fenster.findChild<QLineEdit*>("Suchfeld");
    auto* seite = fenster.findChild<QTextBrowser*>();
    QTest::keyClicks(feld, "groesse dpi stapelbetrieb");
    int sichtbar = 0;
    for (QTreeWidgetItemIterator i(fenster.findChild<QTreeWidget*>(), QTreeWidgetItemIterator::NoChildren);
         *i; ++i)
        sichtbar += (*i)->isHidden() ? 0 : 1;
    EXPECT_EQ(sichtbar, 2) << "batch mode and messages";
    QTest::keyClick(feld, Qt::Key_Return);
    EXPECT_EQ(fenster.Kontext(), 29);
    EXPECT_FALSE(seite->extraSelections().isEmpty());
    QTest::keyClick(feld, Qt::Key_Return);
    EXPECT_EQ(fenster.Kontext(), 31);
    seite->backward();
    EXPECT_EQ(fenster.Kontext(), 29);
    fenster.ZeigeSeite(999);
    EXPECT_EQ(fenster.Kontext(), kErsteSeite);
    EXPECT_TRUE(feld->text().isEmpty());
    QTest::keyClick(seite, Qt::Key_Escape);
    EXPECT_FALSE(fenster.isVisible());
}

TEST(Umbruchleiste, BrichtUmUndUebergehtVersteckte) {
    QWidget flaeche;
    auto* leiste = new Umbruchleiste(&flaeche, 4, 6);
    leiste->setContentsMargins(3, 5, 3, 5);
    std::array<QWidget*, 4> stuecke{};
    for (QWidget*& w : stuecke) {
        w = new QWidget(&flaeche);
        w->setFixedSize(50, 20);
        leiste->addWidget(w);
    }
    EXPECT_EQ(leiste->sizeHint(), QSize(4 * 50 + 3 * 4 + 6, 30));
    EXPECT_EQ(leiste->heightForWidth(leiste->sizeHint().width() - 1), 56) << "one pixel short";
    EXPECT_EQ(leiste->heightForWidth(1), 4 * 20 + 3 * 6 + 10);
    leiste->setGeometry({10, 20, 120, 100});
    EXPECT_EQ(stuecke[2]->geometry(), QRect(13, 51, 50, 20));
    stuecke[0]->hide();
    leiste->setGeometry({10, 20, 120, 100});
    EXPECT_EQ(stuecke[2]->geometry(), QRect(67, 25, 50, 20));
    stuecke[0]->show();
    leiste->setGeometry({0, 0, 4 * 50 + 3 * 4 + 5, 100});
    EXPECT_EQ(stuecke[1]->geometry(), QRect(57, 5, 50, 20));
    EXPECT_EQ(stuecke[2]->geometry(), QRect(3, 31, 50, 20)) << "so that the last is not alone below";
}

}  // namespace
}  // namespace zrw
