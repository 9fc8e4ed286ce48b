#include "ui/fenster/Zentrierkasten.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QMouseEvent>
#include <QPushButton>
#include <QStringListModel>
#include <algorithm>
#include <iterator>

#include "ui/dialoge/Kurzzeile.h"
#include "ui/fenster/Nummernordnung.h"

namespace zrw {
namespace {

/// A list whose keys are its own: the window's shortcuts without Ctrl would take "F", "+", "-" and "Home",
/// with which entries are found.
class Nummernliste final : public QListView {
  public:
    using QListView::QListView;

  protected:
    bool event(QEvent* ereignis) override {
        if (ereignis->type() == QEvent::ShortcutOverride) {
            const auto mehr = static_cast<QKeyEvent*>(ereignis)->modifiers();
            if ((mehr & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier) ereignis->accept();
        }
        return QListView::event(ereignis);
    }
    /// Moving on with the keyboard is choosing, as clicking is.
    void keyPressEvent(QKeyEvent* ereignis) override {
        const QModelIndex vorher = currentIndex();
        QListView::keyPressEvent(ereignis);
        if (currentIndex() != vorher) emit clicked(currentIndex());
    }
};

QListView* NeueListe(const char* name, const char* hinweis, QStringListModel* modell, QWidget* eltern) {
    auto* liste = new Nummernliste(eltern);
    liste->setObjectName(QString::fromUtf8(name));
    liste->setToolTip(QString::fromUtf8(hinweis));
    liste->setAccessibleName(QString::fromUtf8(hinweis));
    liste->setModel(modell);
    liste->setUniformItemSizes(true);  // else every entry of a large network is measured
    liste->setEditTriggers(QAbstractItemView::NoEditTriggers);
    return liste;
}

QLabel* NeuesSchild(const char* text, QWidget* eltern) {
    auto* schild = new QLabel(QString::fromUtf8(text), eltern);
    schild->setObjectName(QString::fromUtf8(text));
    return schild;
}

}  // namespace

Zentrierkasten::Zentrierkasten(QWidget* eltern)
    : QGroupBox(QStringLiteral("Punktzentrierung"), eltern),
      exzentren_(new QStringListModel(this)),
      zentren_(new QStringListModel(this)) {
    setObjectName(QStringLiteral("GroupBox1"));
    setAutoFillBackground(true);
    ExzListBox_ = NeueListe("ExzListBox", "Exzentren auswählen", exzentren_, this);
    ExzListBox_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    PZListBox_ = NeueListe("PZListBox", "Zentrum auswählen", zentren_, this);
    vorhaben_ =
        new Kurzzeile(QStringLiteral("ZentrierVorhaben"), QStringLiteral("Was „Zentrieren“ tut"), this);
    auto* ok = new QPushButton(QStringLiteral("Zentrieren"), this);
    ok->setObjectName(QStringLiteral("OkButton"));
    ok->setToolTip(QStringLiteral("Markierte Punkte zentrieren"));
    auto* abbruch = new QPushButton(QStringLiteral("Beenden"), this);
    abbruch->setObjectName(QStringLiteral("Abbruch"));
    abbruch->setToolTip(QStringLiteral("Punktzentrierung beenden"));

    auto* feld = new QGridLayout(this);
    feld->addWidget(NeuesSchild("Exzentrum", this), 0, 0);
    feld->addWidget(NeuesSchild("Zentrum", this), 0, 1);
    feld->addWidget(ExzListBox_, 1, 0);
    feld->addWidget(PZListBox_, 1, 1);
    feld->addWidget(vorhaben_, 2, 0, 1, 2);
    feld->addWidget(ok, 3, 0);
    feld->addWidget(abbruch, 3, 1);
    resize(320, 360);
    hide();

    connect(ExzListBox_, &QListView::clicked, this, [this](const QModelIndex& stelle) {
        const QModelIndex dort = zentren_->index(stelle.row());
        if (dort.isValid()) PZListBox_->setCurrentIndex(dort);
    });
    connect(PZListBox_, &QListView::clicked, this, [this](const QModelIndex& stelle) {
        if (zentrumGewaehlt) zentrumGewaehlt(stelle.data().toString());
    });
    for (const QListView* liste : {ExzListBox_, PZListBox_})
        connect(liste->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                [this] { NenneVorhaben(); });
    connect(ok, &QPushButton::clicked, this, [this] { ZentriereGewaehlte(); });
    connect(abbruch, &QPushButton::clicked, this, [this] {
        hide();
        if (beendet) beendet();
    });
}

void Zentrierkasten::FuelleListen(const QStringList& nummern) {
    QStringList sortiert;
    std::copy_if(nummern.begin(), nummern.end(), std::back_inserter(sortiert),
                 [this](const QString& nummer) { return !zentriert_.contains(nummer); });
    OrdneNummern(sortiert);
    exzentren_->setStringList(sortiert);
    zentren_->setStringList({});
    NenneVorhaben();
}

void Zentrierkasten::MerkeZentrierte(const QStringList& exzentren) {
    for (const QString& nummer : exzentren)
        zentriert_ << nummer;
}

void Zentrierkasten::ZeigeZentren() {
    zentren_->setStringList(exzentren_->stringList());
    NenneVorhaben();
    show();
    raise();
}

std::optional<QString> Zentrierkasten::Zentrum() const {
    const QModelIndexList gewaehlt = PZListBox_->selectionModel()->selectedIndexes();
    return gewaehlt.isEmpty() ? std::nullopt : std::optional(gewaehlt.front().data().toString());
}

/// A click on an eccentre proposes it as the centre: by itself that is none yet.
void Zentrierkasten::NenneVorhaben() {
    const QModelIndexList exzentren = ExzListBox_->selectionModel()->selectedIndexes();
    const std::optional<QString> zentrum = Zentrum();
    const bool aufSich = exzentren.size() == 1 && zentrum == exzentren.front().data().toString();
    if (exzentren.isEmpty())
        return vorhaben_->ZeigeText(zentrum ? QStringLiteral("Exzentren wählen")
                                            : QStringLiteral("Exzentren und Zentrum wählen"));
    if (!zentrum || aufSich) return vorhaben_->ZeigeText(QStringLiteral("Zentrum wählen"));
    const QString punkte =
        exzentren.size() == 1 ? QStringLiteral("1 Punkt") : QStringLiteral("%1 Punkte").arg(exzentren.size());
    vorhaben_->ZeigeText(punkte + QStringLiteral(" auf ") + *zentrum);
}

void Zentrierkasten::ZentriereGewaehlte() {
    QModelIndexList zeilen = ExzListBox_->selectionModel()->selectedIndexes();
    std::sort(zeilen.begin(), zeilen.end(), [](const auto& a, const auto& b) { return a.row() < b.row(); });
    QStringList exzentren;
    for (const QModelIndex& z : zeilen)
        exzentren << z.data().toString();
    const std::optional<QString> zentrum = Zentrum();
    constexpr qsizetype kViele = 10;
    if (zentrum && exzentren.size() > kViele && bestaetige && !bestaetige(exzentren.size(), *zentrum)) return;
    if (zentriere) zentriere(zentrum, exzentren);
    if (!zentrum) return;
    // From the end, so that the rows before stay where they are.
    QStringList rest = exzentren_->stringList();
    for (auto z = zeilen.rbegin(); z != zeilen.rend(); ++z)
        rest.removeAt(z->row());
    exzentren_->setStringList(rest);
    zentren_->setStringList(rest);
    NenneVorhaben();
}

void Zentrierkasten::mousePressEvent(QMouseEvent* ereignis) {
    griff_ = ereignis->position().toPoint();
}

void Zentrierkasten::mouseMoveEvent(QMouseEvent* ereignis) {
    if ((ereignis->buttons() & Qt::LeftButton) == 0) return;
    // At least its title stays within reach.
    const QPoint ort = pos() + ereignis->position().toPoint() - griff_;
    move(std::clamp(ort.x(), 0, std::max(parentWidget()->width() - width(), 0)),
         std::clamp(ort.y(), 0, std::max(parentWidget()->height() - height(), 0)));
}

}  // namespace zrw
