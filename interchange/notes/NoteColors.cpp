#include "interchange/notes/NoteColors.h"

#include "markers/MarkerColors.h"
#include "support/text/TextNumbers.h"

#include <QHash>
#include <QStringList>

namespace vantrell::NoteColors
{

namespace
{

/// The names of each colour of MarkerColors::table(), separated by "|".
constexpr const char16_t *names[MarkerColors::count] = {
    u"red|rot|rouge|rojo|rosso|vermelho|rood|cherry|crimson|scarlet|赤|红|紅|빨강|красный|black|white|gray|"
    u"grey|"
    u"schwarz|weiß|weiss|noir|blanc|negro|blanco|nero|bianco|preto|branco",
    u"orange|naranja|arancione|laranja|oranje|オレンジ|橙|橙色|주황|оранжевый|sand|cocoa|brown|braun|mango|"
    u"gold",
    u"yellow|gelb|jaune|amarillo|giallo|amarelo|geel|黄|黄色|黃|노랑|желтый|жёлтый|lemon|cream",
    u"green|grün|gruen|vert|verde|groen|緑|绿|绿色|綠|초록|녹색|зеленый|зелёный|mint|forest|lime|olive",
    u"turquoise|türkis|cyan|teal|aqua|turquesa|turchese|ciano|シアン|青色|青绿|голубой|бирюзовый|caribbean",
    u"blue|blau|bleu|azul|blu|blauw|青|蓝|蓝色|藍|파랑|синий|sky|denim|navy|cerulean",
    u"purple|violet|lila|violett|pourpre|morado|púrpura|viola|roxo|paars|紫|紫色|보라|фиолетовый|пурпурный|"
    u"lavender|iris|plum|violeta",
    u"pink|magenta|fuchsia|rose|rosa|roze|ピンク|粉|粉色|粉红|분홍|розовый|マゼンタ|洋红|hot pink",
};

const QHash<QString, int> &knownNames()
{
    static const QHash<QString, int> known = [] {
        QHash<QString, int> indexes;
        for (std::size_t i = 0; i < MarkerColors::count; ++i) {
            for (const QString &name : QString::fromUtf16(names[i]).split(QLatin1Char('|')))
                indexes.insert(name, int(i));
        }
        return indexes;
    }();
    return known;
}

int nearest(int red, int green, int blue)
{
    int best = 0;
    int bestDistance = -1;
    for (std::size_t i = 0; i < MarkerColors::count; ++i) {
        const MarkerColor &color = MarkerColors::table()[i];
        const int distance = (color.red - red) * (color.red - red) +
                             (color.green - green) * (color.green - green) +
                             (color.blue - blue) * (color.blue - blue);
        if (bestDistance < 0 || distance < bestDistance) {
            best = int(i);
            bestDistance = distance;
        }
    }
    return best;
}

std::optional<int> ofValue(QStringView text)
{
    if (text.startsWith(u'#') || text.startsWith(u"0x", Qt::CaseInsensitive)) {
        const QStringView digits = text.sliced(text.startsWith(u'#') ? 1 : 2);
        bool isNumber = false;
        const uint value = digits.toUInt(&isNumber, 16);
        if (!isNumber || digits.size() != 6)
            return std::nullopt;
        return nearest(int(value >> 16), int((value >> 8) & 255), int(value & 255));
    }
    const QList<QStringView> parts = text.split(u',');
    if (parts.size() != 3)
        return std::nullopt;
    int channels[3];
    for (qsizetype i = 0; i < 3; ++i) {
        const QStringView part = parts[i].trimmed();
        if (part.isEmpty() || part.size() > 3 || !isDigit(part.front()) || intValue(part) > 255)
            return std::nullopt;
        channels[i] = intValue(part);
    }
    return nearest(channels[0], channels[1], channels[2]);
}

} // namespace

std::optional<int> find(QStringView text)
{
    text = text.trimmed();
    if (text.isEmpty() || text.size() > 40)
        return std::nullopt;
    QString lower = text.toString().toLower();
    if (lower.startsWith(QStringLiteral("resolvecolor")))
        lower.remove(0, 12);
    const auto known = knownNames().constFind(lower);
    return known != knownNames().cend() ? std::optional<int>(*known) : ofValue(text);
}

int indexOf(QStringView color, QStringView value)
{
    if (const std::optional<int> exact = find(value))
        return *exact;
    return find(color).value_or(0);
}

} // namespace vantrell::NoteColors
