#include "interchange/notes/NoteHeaders.h"

#include <QHash>
#include <QStringList>

namespace vantrell
{

namespace
{

struct Titles {
    NoteRole::Kind kind;
    int rank;
    const char16_t *titles; ///< separated by "|", as normalized() leaves them
};

constexpr Titles table[] = {
    {NoteRole::Time, 0,
     u"timecode in|tc in|in timecode|record in|rec in|start tc|start timecode|timecode start|tc start|"
     u"record tc in|rec tc in|timecode-in|in tc|marker in"},
    {NoteRole::Time, 1,
     u"in|in point|start|start time|time in|begin|timecode|tc|time code|record tc|record timecode|"
     u"start position|marker start|"
     u"anfang|beginn|in-point|startzeit|startpunkt|einstieg|zeitcode|"
     u"début|debut|entrée|entree|point d'entrée|code temporel|entrada|inicio|punto de entrada|"
     u"código de tiempo|codigo de tiempo|inizio|attacco|ingresso|entrata|punto di attacco|início|"
     u"ponto de entrada|código de tempo|begintijd|"
     u"イン|インポイント|開始|開始時間|タイムコード|入点|入點|开始|开始时间|時間碼|时间码|시작|인|인 "
     u"지점|시작 시간|"
     u"타임코드|вход|начало|точка входа|тайм-код|таймкод"},
    {NoteRole::Time, 2,
     u"time|position|location|zeit|temps|tiempo|tempo|tijd|時間|时间|시간|время|timestamp|at"},
    {NoteRole::Time, 3,
     u"frame in|in frame|start frame|frame start|frame|frames|frame number|bild|einzelbild|image|fotograma|"
     u"fotogramma|quadro|フレーム|帧|프레임|кадр"},
    {NoteRole::End, 0,
     u"timecode out|tc out|out timecode|record out|rec out|end tc|end timecode|timecode end|tc end|out tc|"
     u"marker out"},
    {NoteRole::End, 1,
     u"out|out point|end|end time|time out|stop|finish|marker end|ende|out-point|endzeit|ausstieg|endpunkt|"
     u"fin|sortie|point de sortie|salida|final|punto de salida|fine|uscita|stacco|punto di "
     u"stacco|saída|saida|"
     u"fim|ponto de saída|einde|eindtijd|"
     u"アウト|アウトポイント|終了|終了時間|出点|出點|结束|结束时间|종료|아웃|끝|종료 시간|выход|конец|точка "
     u"выхода"},
    {NoteRole::End, 3, u"frame out|out frame|end frame|frame end"},
    {NoteRole::Duration, 0,
     u"duration|dur|length|len|marker duration|dauer|länge|durée|duree|longueur|duración|duracion|durata|"
     u"lunghezza|duração|duracao|duur|lengte|デュレーション|長さ|期間|持续时间|時長|时长|长度|지속 시간|길이|"
     u"длительность|продолжительность"},
    {NoteRole::Duration, 1, u"frame count|frame count duration|duration frames|length in frames"},
    {NoteRole::Name, 0,
     u"marker name|marker title|markername|marker-name|nom du marqueur|nombre del marcador|nombre de "
     u"marcador|"
     u"nome marcatore|nome do marcador|マーカー名|标记名称|標記名稱|마커 이름|имя маркера|название маркера"},
    {NoteRole::Name, 1,
     u"name|title|label|titel|nom|titre|nombre|título|titulo|nome|titolo|naam|名前|名称|名稱|이름|имя|"
     u"название"},
    {NoteRole::Name, 2, u"marker|subject|shot|vfx id|shot name|marqueur|marcador|marcatore"},
    {NoteRole::Comment, 0,
     u"comment|comments|kommentar|kommentare|commentaire|commentaires|comentario|comentarios|commento|"
     u"commenti|"
     u"comentário|comentários|opmerking|opmerkingen|コメント|评论|評論|注释|备注|코멘트|댓글|комментарий|"
     u"комментарии"},
    {NoteRole::Comment, 1,
     u"note|notes|description|text|remark|remarks|message|feedback|body|comment text|marker notes|"
     u"marker comment|notiz|notizen|anmerkung|anmerkungen|bemerkung|hinweis|beschreibung|remarque|nota|notas|"
     u"descripción|descripcion|descrizione|descrição|descricao|beschrijving|説明|ノート|描述|说明|說明|설명|"
     u"메모|"
     u"описание|заметка|заметки"},
    {NoteRole::Color, 0,
     u"color|colour|marker color|marker "
     u"colour|farbe|markerfarbe|couleur|colore|cor|kleur|色|カラー|颜色|顏色|"
     u"색상|цвет"},
    {NoteRole::User, 0,
     u"commenter|user|username|user name|author|reviewer|commented by|created by|posted by|by|owner|"
     u"benutzer|autor|autorin|verfasser|kommentator|auteur|utilisateur|usuario|utente|autore|usuário|"
     u"gebruiker|作成者|ユーザー|作者|用户|評論者|评论者|작성자|사용자|автор|пользователь|commenter "
     u"name|from"},
    {NoteRole::Track, 0,
     u"track|tracks|track name|spur|piste|pista|traccia|faixa|spoor|トラック|轨道|軌道|트랙|дорожка"},
    {NoteRole::Type, 0,
     u"type|marker type|typ|markertyp|marker-typ|type de marqueur|tipo|tipo de marcador|tipo marcatore|"
     u"tipo di "
     u"marcatore|markeringstype|マーカーの種類|マーカータイプ|種類|タイプ|标记类型|标记类型|類型|类型|마커 "
     u"유형|유형|"
     u"тип|тип маркера"},
    {NoteRole::Ignore, 0, u"#|no|nr|num|number|id|index|n°|№|row|line|event"},
};

/// Lower case, without what stands in brackets and quotes around it, and with single blanks between words.
QString normalized(QStringView title)
{
    QString text;
    title = title.trimmed();
    while (title.size() > 1 && title.front() == u'"' && title.back() == u'"')
        title = title.sliced(1).chopped(1);
    for (const QChar c : title) {
        if (c == u'(' || c == u'[')
            break;
        text += c == u'_' || c == u'\ufeff' ? QChar(u' ') : c == u'’' ? QChar(u'\'') : c.toLower();
    }
    text = text.simplified();
    while (text.endsWith(u':') || text.endsWith(u'.'))
        text.chop(1);
    return text;
}

const QHash<QString, NoteHeader> &knownTitles()
{
    static const QHash<QString, NoteHeader> known = [] {
        QHash<QString, NoteHeader> titles;
        for (const Titles &entry : table) {
            for (const QString &title : QString::fromUtf16(entry.titles).split(QLatin1Char('|')))
                titles.insert(title, {entry.kind, entry.rank, std::nullopt});
        }
        return titles;
    }();
    return known;
}

std::optional<NoteUnit> unitOf(QStringView title)
{
    const QString lower = title.toString().toLower();
    for (const QString &word :
         {QStringLiteral("frame"), QStringLiteral("bild"), QStringLiteral("fotogram")}) {
        if (lower.contains(word))
            return NoteUnit::Frames;
    }
    if (lower.contains(QStringLiteral("(ms)")) || lower.contains(QStringLiteral("millisec")) ||
        lower.endsWith(QStringLiteral("_ms")))
        return NoteUnit::Milliseconds;
    if (lower.contains(QStringLiteral("sec")) || lower.contains(QStringLiteral("(s)")) ||
        lower.contains(QStringLiteral("[s]")) || lower.contains(QStringLiteral("sek")))
        return NoteUnit::Seconds;
    return std::nullopt;
}

} // namespace

std::optional<NoteHeader> NoteHeader::ofTitle(QStringView title)
{
    if (title.size() > 100)
        return std::nullopt;
    QString normal = normalized(title);
    auto found = knownTitles().constFind(normal);
    const std::optional<NoteUnit> unit = unitOf(title);
    if (found == knownTitles().cend() && unit && normal.contains(QLatin1Char(' '))) {
        // "Start seconds", "Duration sec"
        normal.truncate(normal.lastIndexOf(QLatin1Char(' ')));
        found = knownTitles().constFind(normal);
    }
    if (found == knownTitles().cend()) {
        if (normal == QStringLiteral("seconds") || normal == QStringLiteral("sec") ||
            normal == QStringLiteral("secs"))
            return NoteHeader{NoteRole::Time, 2, NoteUnit::Seconds};
        return std::nullopt;
    }
    NoteHeader header = *found;
    header.unit = unit;
    return header;
}

} // namespace vantrell
