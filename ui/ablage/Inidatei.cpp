#include "ui/ablage/Inidatei.h"

#include <QByteArray>
#include <system_error>

#include "model/Zahlentext.h"
#include "ui/Umwandlung.h"

namespace zrw {
namespace {

/// A hundred times what the program writes.
constexpr std::size_t kGroessteInidatei = std::size_t{1} << 20U;

using Zeilen = std::vector<std::string>;

Zeilen ZerlegeInhalt(std::string_view inhalt) {
    Zeilen zeilen;
    while (!inhalt.empty()) {
        const std::size_t ende = inhalt.find('\n');
        std::string_view zeile = inhalt.substr(0, ende);
        inhalt.remove_prefix(ende == std::string_view::npos ? inhalt.size() : ende + 1);
        if (zeile.ends_with('\r')) zeile.remove_suffix(1);
        zeilen.emplace_back(zeile);
    }
    return zeilen;
}

/// Where a key stands, or where it would have to be put.
struct Stelle {
    std::size_t zeile = 0;
    bool abschnitt = false;                ///< the section is there
    std::optional<std::string_view> wert;  ///< as it stands in the file
};

Stelle SucheSchluessel(const Zeilen& zeilen, std::string_view abschnitt, std::string_view schluessel) {
    Stelle s{zeilen.size(), false, {}};
    bool darin = false;
    for (std::size_t i = 0; i < zeilen.size(); ++i) {
        const std::string_view zeile = OhneRand(zeilen[i]);
        if (zeile.starts_with('[') && zeile.ends_with(']')) {
            darin = zeile.substr(1, zeile.size() - 2) == abschnitt;
            s.abschnitt = s.abschnitt || darin;
            if (darin && !s.wert) s.zeile = i + 1;
        } else if (const std::size_t gleich = zeile.find('='); darin && gleich != std::string_view::npos) {
            if (OhneRand(zeile.substr(0, gleich)) == schluessel) {
                s.zeile = i;
                s.wert = zeile.substr(gleich + 1);  // of several the last one counts
            } else if (!s.wert) {
                s.zeile = i + 1;
            }
        }
    }
    return s;
}

void TrageWertEin(Zeilen& zeilen, const std::string& abschnitt, const std::string& schluessel,
                  const std::string& wert) {
    const Stelle s = SucheSchluessel(zeilen, abschnitt, schluessel);
    const std::string zeile = schluessel + '=' + wert;
    if (s.wert) {
        zeilen[s.zeile] = zeile;
        return;
    }
    if (!s.abschnitt) zeilen.push_back('[' + abschnitt + ']');
    zeilen.insert(s.abschnitt ? zeilen.begin() + static_cast<std::ptrdiff_t>(s.zeile) : zeilen.end(), zeile);
}

/// Letters behind a backslash, and what they stand for.
constexpr std::u16string_view kZeichen = u"nrt0";
constexpr std::u16string_view kBedeutung{u"\n\r\t\0", 4};

[[nodiscard]] bool IstHexziffer(QChar c) {
    return QStringLiteral("0123456789abcdefABCDEF").contains(c);
}

/// The character behind a backslash. @param i its place; afterwards that of the last character used
QChar EntschluesseleZeichen(const QString& text, qsizetype& i) {
    const char16_t c = text[i].unicode();
    if (c == u'x') {
        const qsizetype anfang = i + 1;
        while (i + 1 < text.size() && IstHexziffer(text[i + 1]))
            ++i;
        return text.mid(anfang, i + 1 - anfang).toUShort(nullptr, 16);
    }
    const std::size_t bekannt = kZeichen.find(c);
    return bekannt == std::u16string_view::npos ? c : kBedeutung[bekannt];
}

/// Appends one value, unless it is none of a text: "@Variant(...)" and its like stand for any type and size.
void HaengeTextAn(QStringList& texte, const QString& text) {
    if (text.startsWith(u"@@")) {
        texte << text.mid(1);
    } else if (!text.startsWith(u'@') || !text.endsWith(u')')) {
        texte << text;
    }
}

/// Texts separated by commas; quotes keep commas and blanks.
QStringList EntschluesseleTexte(const QString& wert) {
    QStringList texte;
    QString text;
    bool offen = false;       // inside quotes
    bool angefuehrt = false;  // some of the text was in quotes: blanks beside them do not count
    const auto schliesse = [&] {
        HaengeTextAn(texte, angefuehrt ? text : text.trimmed());
        text.clear();
        angefuehrt = false;
    };
    for (qsizetype i = 0; i < wert.size(); ++i) {
        const QChar c = wert[i];
        if (c == u'\\' && i + 1 < wert.size()) {
            text += EntschluesseleZeichen(wert, ++i);
        } else if (c == u'"') {
            offen = !offen;
            if (!angefuehrt) text = text.trimmed();
            angefuehrt = true;
        } else if (c == u',' && !offen) {
            schliesse();
        } else if (offen || !angefuehrt || !c.isSpace()) {
            text += c;
        }
    }
    schliesse();
    return texte;
}

QString VerschluesseleText(const QString& text) {
    QString aus = text.startsWith(u'@') ? QStringLiteral("@") : QString();
    bool anfuehren = text.isEmpty() || text.trimmed().size() != text.size();
    bool nachHex = false;  // a digit that follows would be taken for one more of the number
    for (const QChar c : text) {
        const bool hex =
            c.category() == QChar::Other_Control || c.isSurrogate() || (nachHex && IstHexziffer(c));
        const std::size_t bekannt = kBedeutung.find(c.unicode());
        nachHex = false;
        if (c == u'"' || c == u'\\') {
            (aus += u'\\') += c;
        } else if (bekannt != std::u16string_view::npos && c != u'\0') {
            (aus += u'\\') += QChar(kZeichen[bekannt]);
        } else if (hex) {
            aus += QStringLiteral("\\x") + QString::number(c.unicode(), 16);
            nachHex = true;
        } else {
            aus += c;
        }
        anfuehren = anfuehren || QStringLiteral(",;=").contains(c);
    }
    return anfuehren ? u'"' + aus + u'"' : aus;
}

}  // namespace

Inidatei::Inidatei(const QString& datei, std::string abschnitt)
    : datei_(NachPfad(datei)), abschnitt_(std::move(abschnitt)) {
    std::error_code fehler;
    if (std::filesystem::status(datei_, fehler).type() == std::filesystem::file_type::not_found) return;
    try {
        zeilen_ = ZerlegeInhalt(dateien_.LiesDatei(datei_, kGroessteInidatei));
    } catch (const Fehler& f) {
        lesefehler_ = f;
    }
}

QStringList Inidatei::LiesTexte(std::string_view schluessel) const {
    const Stelle s = SucheSchluessel(zeilen_, abschnitt_, schluessel);
    return s.wert ? EntschluesseleTexte(AusUtf8(*s.wert)) : QStringList();
}

void Inidatei::SetzeTexte(std::string_view schluessel, const QStringList& texte) {
    QStringList teile;
    for (const QString& text : texte)
        teile << VerschluesseleText(text);
    const std::string wert = NachUtf8(teile.join(QStringLiteral(", ")));
    neu_.insert_or_assign(std::string(schluessel), wert);
    TrageWertEin(zeilen_, abschnitt_, std::string(schluessel), wert);
}

void Inidatei::SichereDatei() {
    if (neu_.empty()) return;
    Zeilen zeilen = zeilen_;
    try {
        zeilen = ZerlegeInhalt(dateien_.LiesDatei(datei_, kGroessteInidatei));
    } catch (const Fehler&) {  // not there, or not readable before either: what is known here takes its place
    }
    for (const auto& [schluessel, wert] : neu_)
        TrageWertEin(zeilen, abschnitt_, schluessel, wert);
    std::string inhalt;
    for (const std::string& zeile : zeilen)
        inhalt += zeile + '\n';
    std::error_code fehler;  // writing tells what is wrong with the folder
    std::filesystem::create_directories(datei_.parent_path(), fehler);
    dateien_.ErsetzeDatei(datei_, inhalt);
    zeilen_ = std::move(zeilen);
    neu_.clear();
    lesefehler_.reset();
}

}  // namespace zrw
