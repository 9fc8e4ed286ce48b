#include "ui/fenster/Nummernfeld.h"

#include <QCompleter>
#include <QLineEdit>
#include <QStringListModel>
#include <algorithm>

#include "ui/Nummernmuster.h"
#include "ui/Umwandlung.h"
#include "ui/fenster/Nummernordnung.h"

namespace zrw {

/// More nobody looks through.
static constexpr qsizetype kMeisteTreffer = 500;

Nummernfeld::Nummernfeld(QWidget* eltern)
    : QComboBox(eltern), nummern_(new QStringListModel(this)), treffer_(new QStringListModel(this)) {
    setObjectName(QStringLiteral("ComboBox1"));
    setToolTip(QStringLiteral("Punkt aus Liste anzeigen"));
    setAccessibleName(toolTip());
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    // As wide as a number, not as the widest of 65 000.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(static_cast<int>(PunktNummernTyp::kLaenge));
    setModel(nummern_);
    // What fits is chosen here: the completer's own filter knows neither wildcards nor the best first.
    setCompleter(new QCompleter(treffer_, this));
    completer()->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    connect(lineEdit(), &QLineEdit::textEdited, this,
            [this](const QString& text) { treffer_->setStringList(Treffer(text, kMeisteTreffer)); });
    setEditText(QStringLiteral("Punktnummern"));
    connect(this, &QComboBox::textActivated, this, [this](const QString& nummer) {
        if (gewaehlt) gewaehlt(nummer);
    });
    connect(lineEdit(), &QLineEdit::returnPressed, this, [this] {
        if (gewaehlt) gewaehlt(currentText());
    });
}

void Nummernfeld::FuelleListe(const Liste& liste, const Namensliste& namen) {
    QStringList nummern;
    benannte_.clear();
    namen_.clear();
    for (const PunktString* t = liste.PktTextKnoten; t != nullptr; t = t->Next) {
        nummern << AusNetz(t->Item->Aus.Text());
        if (const auto name = namen.find(t->Item->Aus.Text()); name != namen.end()) {
            benannte_ << nummern.back();
            namen_ << AusUtf8(name->second);
        }
    }
    std::reverse(nummern.begin(), nummern.end());
    if (sortiert_) OrdneNummern(nummern);
    nummern_->setStringList(nummern);
    setEditText(QStringLiteral("Punktnummern"));
    stand_ = liste.MaxPkte;
}

QStringList Nummernfeld::Nummern() const {
    return nummern_->stringList();
}

QStringList Nummernfeld::Treffer(const QString& teil, qsizetype hoechstens) const {
    const Nummernmuster muster(teil);
    QStringList treffer = muster.Treffer(nummern_->stringList(), hoechstens);
    for (qsizetype i = 0; i < namen_.size(); ++i) {
        if (treffer.size() >= hoechstens) break;
        if (muster.Passt(namen_[i]) && !treffer.contains(benannte_[i])) treffer << benannte_[i];
    }
    return treffer;
}

QString Nummernfeld::NummerZu(const QString& eingabe) const {
    const qsizetype i = nummern_->stringList().contains(eingabe) ? -1 : namen_.indexOf(eingabe);
    return i < 0 ? eingabe : benannte_[i];
}

std::optional<QString> Nummernfeld::FindeNummer(const QString& teil) const {
    const QStringList treffer = Treffer(teil, 1);
    return !treffer.isEmpty() ? std::optional(treffer.front()) : std::nullopt;
}

}  // namespace zrw
