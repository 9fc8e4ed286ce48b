#include "ui/dialoge/TAboutBox.h"
#include "ui/Symbol.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

namespace zrw {
namespace {

QString Lizenzen() {
    return QStringLiteral(
        "Zarwik: MIT-Lizenz\n"
        "Qt 6: GNU LGPL, Version 3\n"
        "SQLite: gemeinfrei (Public Domain)\n"
        "zlib: zlib-Lizenz\n"
        "Liberation-Schriften: SIL Open Font License (OFL)");
}

}  // namespace

TAboutBox::TAboutBox(const QString& version, QWidget* eltern) : QDialog(eltern) {
    setObjectName(QStringLiteral("TAboutBox"));
    setWindowTitle(QStringLiteral("Programminfo"));

    auto* bild = new QLabel(this);
    bild->setObjectName(QStringLiteral("ProgramIcon"));
    bild->setPixmap(Symbol("zarwik").pixmap(QSize(64, 64), devicePixelRatioF()));
    auto* name = new QLabel(QStringLiteral("Zarwik"), this);
    name->setObjectName(QStringLiteral("ProductName"));
    QFont gross = name->font();
    gross.setPointSizeF(gross.pointSizeF() * 2);
    gross.setBold(true);
    name->setFont(gross);
    auto* nummer = new QLabel(QStringLiteral("Version ") + version, this);
    nummer->setObjectName(QStringLiteral("VersionLabel"));
    nummer->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* verwendet = new QLabel(QStringLiteral("Lizenzen"), this);
    auto* liste = new QPlainTextEdit(Lizenzen(), this);
    liste->setObjectName(QStringLiteral("Lizenzen"));
    liste->setReadOnly(true);
    liste->setTabChangesFocus(true);
    const QFontMetrics m = liste->fontMetrics();
    liste->setMinimumSize(
        m.horizontalAdvance(Lizenzen().section(QLatin1Char('\n'), -1)) + 4 * m.averageCharWidth(),
        6 * m.lineSpacing());
    liste->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);  // as small as the texts allow
    verwendet->setBuddy(liste);
    auto* ok = new QPushButton(QStringLiteral("OK"), this);
    ok->setObjectName(QStringLiteral("OKButton"));
    ok->setDefault(true);
    ok->setFocus();
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);

    auto* kopf = new QHBoxLayout;
    kopf->addWidget(bild);
    auto* titel = new QVBoxLayout;
    titel->addWidget(name);
    titel->addWidget(nummer);
    kopf->addLayout(titel, 1);
    auto* spalte = new QVBoxLayout(this);
    spalte->addLayout(kopf);
    spalte->addWidget(verwendet);
    spalte->addWidget(liste, 1);
    auto* unten = new QHBoxLayout;
    unten->addStretch();
    unten->addWidget(ok);
    spalte->addLayout(unten);
}

}  // namespace zrw
