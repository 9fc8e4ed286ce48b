#include "ui/hilfe/Hilfefenster.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QStyle>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextTable>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <set>

#include "ui/Symbol.h"
#include "ui/Umwandlung.h"

/// The pages sit in a static library, whose resources register only when asked to.
static void MeldeSeitenAn() {
    Q_INIT_RESOURCE(hilfe);
}

namespace zrw {
namespace {

constexpr int kSymbolgroesse = 24;
const QString kOrdner = QStringLiteral("/hilfe/");
const QString kSymbolordner = QStringLiteral("/ui/bilder/");

QUrl Adresse(const Hilfethema& thema) {
    return QUrl(QStringLiteral("qrc:") + kOrdner + AusUtf8(thema.datei));
}

const Hilfethema* ThemaAn(const QUrl& adresse) {
    const auto* t = std::find_if(kHilfethemen.begin(), kHilfethemen.end(),
                                 [&](const Hilfethema& h) { return Adresse(h) == adresse; });
    return t != kHilfethemen.end() ? t : nullptr;
}

QByteArray Inhalt(const QString& ressource) {
    QFile datei(ressource);
    return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
}

/// What a reader sees of a page, without the marks of its format.
QString Lesetext(const Hilfethema& thema) {
    QTextDocument dokument;
    dokument.setMarkdown(QString::fromUtf8(Inhalt(QLatin1Char(':') + kOrdner + AusUtf8(thema.datei))));
    return dokument.toPlainText();
}

}  // namespace

/// A page with its pictures, from the resources alone.
class Hilfeseite final : public QTextBrowser {
  public:
    explicit Hilfeseite(QWidget* eltern) : QTextBrowser(eltern) {
        setOpenExternalLinks(false);
        document()->setDocumentMargin(12);
    }

    /// Marks every place of the words and shows the first.
    void MarkiereWorte(const QStringList& worte) {
        QList<ExtraSelection> stellen;
        for (const QString& wort : worte) {
            for (QTextCursor c = document()->find(wort); !c.isNull(); c = document()->find(wort, c)) {
                ExtraSelection stelle;
                stelle.cursor = c;
                stelle.format.setBackground(QColor(0xff, 0xe0, 0x66));
                stelle.format.setForeground(Qt::black);
                stellen << stelle;
            }
        }
        setExtraSelections(stellen);
        const auto erste = std::min_element(stellen.begin(), stellen.end(), [](const auto& a, const auto& b) {
            return a.cursor.selectionStart() < b.cursor.selectionStart();
        });
        if (erste == stellen.end()) return;
        QTextCursor dorthin = erste->cursor;
        dorthin.clearSelection();
        setTextCursor(dorthin);
        ensureCursorVisible();
    }

  protected:
    QVariant loadResource(int art, const QUrl& name) override {
        const QUrl adresse = source().resolved(name);
        if (adresse.scheme() != QLatin1String("qrc")) return {};
        const QString pfad = adresse.path();
        if (art == QTextDocument::ImageResource && pfad.startsWith(kSymbolordner)) {
            // The icons of the buttons are in the program already, and sharp on every screen as icons.
            return Symbol(NachUtf8(QFileInfo(pfad).completeBaseName()))
                .pixmap(QSize(kSymbolgroesse, kSymbolgroesse), devicePixelRatioF());
        }
        if (art != QTextDocument::ImageResource) return Inhalt(QLatin1Char(':') + pfad);
        bilder_.insert(adresse);
        return Bild(adresse);
    }

    void doSetSource(const QUrl& adresse, QTextDocument::ResourceType art) override {
        if (ThemaAn(adresse) == nullptr) return;  // nothing outside the manual
        bilder_.clear();
        QTextBrowser::doSetSource(adresse, art);
        GestalteTabellen();
    }

    void resizeEvent(QResizeEvent* ereignis) override {
        QTextBrowser::resizeEvent(ereignis);
        PasseBilderEin();
    }

  private:
    /// What the format of the pages cannot ask for, lines round the cells above all.
    void GestalteTabellen() {
        for (QTextFrame* rahmen : document()->rootFrame()->childFrames()) {
            auto* tabelle = qobject_cast<QTextTable*>(rahmen);
            if (tabelle == nullptr) continue;
            QTextTableFormat format = tabelle->format();
            format.setBorder(1);
            format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
            format.setBorderBrush(palette().mid());
            format.setBorderCollapse(true);
            format.setCellSpacing(0);
            format.setCellPadding(4);
            format.setTopMargin(4);
            format.setBottomMargin(8);
            tabelle->setFormat(format);
            for (int zeile = 0; zeile < tabelle->rows(); ++zeile) {
                for (int spalte = 0; spalte < tabelle->columns(); ++spalte) {
                    QTextCharFormat zelle = tabelle->cellAt(zeile, spalte).format();
                    zelle.setVerticalAlignment(QTextCharFormat::AlignMiddle);
                    tabelle->cellAt(zeile, spalte).setFormat(zelle);
                }
            }
        }
        const QString text = document()->toRawText();
        for (qsizetype i = 0; (i = text.indexOf(QChar::ObjectReplacementCharacter, i)) >= 0; ++i) {
            QTextCursor bild(document());
            bild.setPosition(static_cast<int>(i));
            bild.setPosition(static_cast<int>(i) + 1, QTextCursor::KeepAnchor);
            QTextCharFormat mittig;
            mittig.setVerticalAlignment(QTextCharFormat::AlignMiddle);
            bild.mergeCharFormat(mittig);
        }
        for (QTextBlock b = document()->begin(); b.isValid(); b = b.next()) {
            QTextBlockFormat format = b.blockFormat();
            if (!format.nonBreakableLines()) continue;
            format.setNonBreakableLines(false);  // examples fold rather than push the page aside
            QTextCursor(b).setBlockFormat(format);
        }
    }

    /// A picture in the sharpness of the screen, no wider than the page.
    QImage Bild(const QUrl& adresse) const {
        QImage bild = QImage::fromData(Inhalt(QLatin1Char(':') + adresse.path()));
        const int platz =
            std::max(viewport()->width() - 2 * static_cast<int>(document()->documentMargin()), 1);
        if (bild.width() <= platz) return bild;
        const double dichte = devicePixelRatioF();
        const int weite = std::min(static_cast<int>(platz * dichte), bild.width());
        QImage kleiner = bild.scaledToWidth(weite, Qt::SmoothTransformation);
        kleiner.setDevicePixelRatio(static_cast<double>(weite) / platz);
        return kleiner;
    }

    /// After the width of the page has changed.
    void PasseBilderEin() {
        for (const QUrl& adresse : bilder_)
            document()->addResource(QTextDocument::ImageResource, adresse, Bild(adresse));
        if (!bilder_.empty()) document()->markContentsDirty(0, document()->characterCount());
    }

    std::set<QUrl> bilder_;  ///< of the page shown
};

Hilfefenster::Hilfefenster(QWidget* eltern) : QWidget(eltern, Qt::Window) {
    MeldeSeitenAn();
    setObjectName(QStringLiteral("Hilfefenster"));
    setWindowTitle(QStringLiteral("Zarwik Hilfe"));
    setWindowIcon(Symbol("hilfe"));
    setAttribute(Qt::WA_QuitOnClose, false);
    std::transform(kHilfethemen.begin(), kHilfethemen.end(), texte_.begin(), &Lesetext);

    seite_ = new Hilfeseite(this);
    seite_->setAccessibleName(QStringLiteral("Seite der Hilfe"));
    inhalt_ = new QTreeWidget(this);
    inhalt_->setAccessibleName(QStringLiteral("Inhalt"));
    inhalt_->setHeaderHidden(true);
    inhalt_->setRootIsDecorated(false);
    inhalt_->setStyleSheet(QStringLiteral("QTreeView::item { padding: 3px 0; }"));
    auto* teiler = new QSplitter(this);
    teiler->setChildrenCollapsible(false);
    teiler->addWidget(inhalt_);
    teiler->addWidget(seite_);
    teiler->setStretchFactor(1, 1);
    auto* spalte = new QVBoxLayout(this);
    spalte->addWidget(NeueKopfzeile());
    spalte->addWidget(teiler, 1);
    FuelleInhalt();

    connect(inhalt_, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* zeile) {
        const auto* thema = zeile != nullptr ? FindeThema(zeile->data(0, Qt::UserRole).toInt()) : nullptr;
        if (thema != nullptr) seite_->setSource(Adresse(*thema));
    });
    connect(seite_, &QTextBrowser::sourceChanged, this, &Hilfefenster::SeiteGewechselt);
    connect(seite_, &QTextBrowser::backwardAvailable, zurueck_, &QWidget::setEnabled);
    connect(seite_, &QTextBrowser::forwardAvailable, vor_, &QWidget::setEnabled);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
        suchfeld_->setFocus();
        suchfeld_->selectAll();
    });
    seite_->setSource(Adresse(*FindeThema(kErsteSeite)));

    constexpr QSize kGroesse(960, 680);
    constexpr QSize kRahmen(20, 60);  // of the window, whatever draws it
    resize(kGroesse.boundedTo(screen()->availableGeometry().size() - kRahmen));
    inhalt_->resizeColumnToContents(0);
    const int breite = inhalt_->columnWidth(0) + 2 * inhalt_->indentation();
    teiler->setSizes({breite, std::max(width() - breite, 1)});
    seite_->setFocus();
}

QWidget* Hilfefenster::NeueKopfzeile() {
    auto* kopf = new QWidget(this);
    auto* reihe = new QHBoxLayout(kopf);
    reihe->setContentsMargins(0, 0, 0, 0);
    const auto knopf = [&](QStyle::StandardPixmap bild, const char* name, const QKeySequence& taste) {
        auto* k = new QToolButton(kopf);
        k->setIcon(style()->standardIcon(bild));
        k->setAccessibleName(QString::fromUtf8(name));
        k->setToolTip(QString::fromUtf8(name));
        k->setShortcut(taste);
        k->setAutoRaise(true);
        k->setEnabled(false);
        reihe->addWidget(k);
        return k;
    };
    zurueck_ = knopf(QStyle::SP_ArrowBack, "Zurück (Alt+Links)", QKeySequence(Qt::ALT | Qt::Key_Left));
    vor_ = knopf(QStyle::SP_ArrowForward, "Vor (Alt+Rechts)", QKeySequence(Qt::ALT | Qt::Key_Right));
    connect(zurueck_, &QToolButton::clicked, seite_, &QTextBrowser::backward);
    connect(vor_, &QToolButton::clicked, seite_, &QTextBrowser::forward);

    suchfeld_ = new QLineEdit(kopf);
    suchfeld_->setObjectName(QStringLiteral("Suchfeld"));
    suchfeld_->setPlaceholderText(QStringLiteral("In der Hilfe suchen (Strg+F)"));
    suchfeld_->setAccessibleName(QStringLiteral("In der Hilfe suchen"));
    suchfeld_->setToolTip(QStringLiteral("Alle Wörter müssen vorkommen; Eingabetaste: nächste Seite"));
    suchfeld_->setClearButtonEnabled(true);
    trefferzahl_ = new QLabel(kopf);
    reihe->addWidget(suchfeld_, 1);
    reihe->addWidget(trefferzahl_);
    connect(suchfeld_, &QLineEdit::textChanged, this, &Hilfefenster::SucheGeaendert);
    connect(suchfeld_, &QLineEdit::returnPressed, this, &Hilfefenster::ZeigeNaechstenTreffer);
    return kopf;
}

void Hilfefenster::FuelleInhalt() {
    QTreeWidgetItem* gruppe = nullptr;
    std::string_view name;
    for (const Hilfethema& t : kHilfethemen) {
        if (gruppe == nullptr || t.gruppe != name) {
            name = t.gruppe;
            gruppe = new QTreeWidgetItem(inhalt_, {AusUtf8(name)});
            gruppe->setFlags(Qt::ItemIsEnabled);
            QFont fett = inhalt_->font();
            fett.setBold(true);
            gruppe->setFont(0, fett);
        }
        auto* zeile = new QTreeWidgetItem(gruppe, {AusUtf8(t.titel)});
        zeile->setData(0, Qt::UserRole, t.kontext);
    }
    inhalt_->expandAll();
}

void Hilfefenster::ZeigeSeite(int kontext) {
    const Hilfethema* thema = FindeThema(kontext);
    if (thema == nullptr) thema = FindeThema(kErsteSeite);
    suchfeld_->clear();
    seite_->setSource(Adresse(*thema));
    // Over a dialog that keeps the rest of the program waiting, help must answer all the same.
    const QWidget* dialog = QApplication::activeModalWidget();
    const auto sperre = dialog != nullptr && (dialog != this) ? Qt::ApplicationModal : Qt::NonModal;
    if (dialog != this && windowModality() != sperre) {
        hide();
        setWindowModality(sperre);
    }
    show();
    raise();
    activateWindow();
    seite_->setFocus();
}

void Hilfefenster::keyPressEvent(QKeyEvent* ereignis) {
    if (ereignis->key() == Qt::Key_Escape) {
        close();
    } else {
        QWidget::keyPressEvent(ereignis);
    }
}

QStringList Hilfefenster::Worte() const {
    return suchfeld_->text().split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

std::vector<int> Hilfefenster::SucheSeiten(const QString& worte) const {
    const QStringList alle = worte.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    std::vector<int> treffer;
    for (std::size_t i = 0; i < kHilfethemen.size(); ++i) {
        const auto enthalten = [&](const QString& wort) {
            return texte_[i].contains(wort, Qt::CaseInsensitive);
        };
        if (std::all_of(alle.begin(), alle.end(), enthalten)) treffer.push_back(kHilfethemen[i].kontext);
    }
    return treffer;
}

void Hilfefenster::SucheGeaendert() {
    const std::vector<int> treffer = SucheSeiten(suchfeld_->text());
    for (int g = 0; g < inhalt_->topLevelItemCount(); ++g) {
        QTreeWidgetItem* gruppe = inhalt_->topLevelItem(g);
        bool leer = true;
        for (int i = 0; i < gruppe->childCount(); ++i) {
            const int kontext = gruppe->child(i)->data(0, Qt::UserRole).toInt();
            const bool weg = std::find(treffer.begin(), treffer.end(), kontext) == treffer.end();
            gruppe->child(i)->setHidden(weg);
            leer = leer && weg;
        }
        gruppe->setHidden(leer);
    }
    const QStringList worte = Worte();
    if (worte.isEmpty()) {
        trefferzahl_->clear();
    } else if (treffer.size() == 1) {
        trefferzahl_->setText(QStringLiteral("1 Seite"));
    } else {
        trefferzahl_->setText(QStringLiteral("%1 Seiten").arg(treffer.size()));
    }
    seite_->MarkiereWorte(worte);
}

void Hilfefenster::ZeigeNaechstenTreffer() {
    const std::vector<int> treffer = SucheSeiten(suchfeld_->text());
    if (treffer.empty()) return;
    // From the page shown to the next, and from outside the hits to the first.
    auto ziel = std::find(treffer.begin(), treffer.end(), kontext_);
    if (ziel == treffer.end() || ++ziel == treffer.end()) ziel = treffer.begin();
    seite_->setSource(Adresse(*FindeThema(*ziel)));
}

void Hilfefenster::SeiteGewechselt(const QUrl& seite) {
    const Hilfethema* thema = ThemaAn(seite);
    if (thema == nullptr) return;
    kontext_ = thema->kontext;
    setWindowTitle(AusUtf8(thema->titel) + QStringLiteral(" - Zarwik Hilfe"));
    for (int g = 0; g < inhalt_->topLevelItemCount(); ++g) {
        QTreeWidgetItem* gruppe = inhalt_->topLevelItem(g);
        for (int i = 0; i < gruppe->childCount(); ++i) {
            if (gruppe->child(i)->data(0, Qt::UserRole).toInt() != kontext_) continue;
            const QSignalBlocker still(inhalt_);  // the page is there already
            inhalt_->setCurrentItem(gruppe->child(i));
        }
    }
    seite_->MarkiereWorte(Worte());
}

}  // namespace zrw
