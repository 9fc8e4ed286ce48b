#include "ui/fenster/Nummernfeld.h"

#include <QCompleter>
#include <QLineEdit>
#include <QStringListModel>
#include <algorithm>

#include "ui/Umwandlung.h"
#include "ui/fenster/Nummernordnung.h"

namespace zrw {

Nummernfeld::Nummernfeld(QWidget* eltern) : QComboBox(eltern), nummern_(new QStringListModel(this)) {
    setObjectName(QStringLiteral("ComboBox1"));
    setToolTip(QStringLiteral("Punkt aus Liste anzeigen"));
    setAccessibleName(toolTip());
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    // As wide as a number, not as the widest of 65 000.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(static_cast<int>(PunktNummernTyp::kLaenge));
    setModel(nummern_);
    setCompleter(new QCompleter(nummern_, this));
    completer()->setFilterMode(Qt::MatchContains);
    completer()->setCaseSensitivity(Qt::CaseInsensitive);
    setEditText(QStringLiteral("Punktnummern"));
    connect(this, &QComboBox::textActivated, this, [this](const QString& nummer) {
        if (gewaehlt) gewaehlt(nummer);
    });
    connect(lineEdit(), &QLineEdit::returnPressed, this, [this] {
        if (gewaehlt) gewaehlt(currentText());
    });
}

void Nummernfeld::FuelleListe(const Liste& liste) {
    QStringList nummern;
    for (const PunktString* t = liste.PktTextKnoten; t != nullptr; t = t->Next)
        nummern << AusNetz(t->Item->Aus.Text());
    std::reverse(nummern.begin(), nummern.end());
    if (sortiert_) OrdneNummern(nummern);
    nummern_->setStringList(nummern);
    setEditText(QStringLiteral("Punktnummern"));
    stand_ = liste.MaxPkte;
}

QStringList Nummernfeld::Nummern() const {
    return nummern_->stringList();
}

std::optional<QString> Nummernfeld::FindeNummer(const QString& teil) const {
    const QStringList nummern = nummern_->stringList();
    const auto treffer = std::find_if(nummern.begin(), nummern.end(), [&](const QString& nummer) {
        return nummer.contains(teil, Qt::CaseInsensitive);
    });
    return treffer != nummern.end() ? std::optional(*treffer) : std::nullopt;
}

}  // namespace zrw
