#include "ui/fenster/Massstabfeld.h"

#include <QValidator>
#include <algorithm>

#include "output/Export.h"
#include "ui/Umwandlung.h"

namespace zrw {
namespace {

class Massstabpruefer final : public QValidator {
  public:
    Massstabpruefer(QString zuletzt, QObject* eltern) : QValidator(eltern), zuletzt_(std::move(zuletzt)) {}

    State validate(QString& text, int& /*stelle*/) const override {
        // Digits with at most one point; what is no positive number yet may become one.
        const auto passt = [](QChar c) { return (c >= u'0' && c <= u'9') || c == u'.'; };
        if (!std::all_of(text.begin(), text.end(), passt) || text.count(u'.') > 1) return Invalid;
        return LiesMassstab(NachUtf8(text)) ? Acceptable : Intermediate;
    }
    /// Called where the user leaves the field in between.
    void fixup(QString& text) const override { text = zuletzt_; }
    void MerkeText(const QString& text) { zuletzt_ = text; }

  private:
    QString zuletzt_;
};

}  // namespace

Massstabfeld::Massstabfeld(QWidget* eltern) : QLineEdit(eltern) {
    constexpr int kStellen = 12;
    const QString anfang = AusUtf8(kUeblicherMassstab);
    auto* pruefer = new Massstabpruefer(anfang, this);
    setText(anfang);
    setMaxLength(kStellen);
    setValidator(pruefer);
    connect(this, &QLineEdit::editingFinished, this, [this, pruefer] { pruefer->MerkeText(text()); });
}

std::optional<double> Massstabfeld::Massstab() const {
    return LiesMassstab(NachUtf8(text()));
}

}  // namespace zrw
