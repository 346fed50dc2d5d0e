#include "xml/XmlQueryParse.h"

namespace vantrell
{

namespace
{

bool isNameStart(QChar c)
{
    return c.isLetter() || c == QLatin1Char('_');
}

bool isNamePart(QChar c)
{
    return c.isLetterOrNumber() || c == QLatin1Char('_') || c == QLatin1Char('-') || c == QLatin1Char('.');
}

} // namespace

std::optional<std::vector<XmlQuery::Path>> XmlQueryParser::parse()
{
    std::vector<XmlQuery::Path> paths;
    int steps = 0;
    do {
        XmlQuery::Path path;
        if (!parsePath(path))
            return std::nullopt;
        steps += int(path.steps.size());
        paths.push_back(std::move(path));
        skipSpace();
    } while (accept(u"|"));
    // The walk keeps the steps in the bits of one word.
    if (m_at != m_text.size() || steps > 63)
        return std::nullopt;
    return paths;
}

bool XmlQueryParser::parsePath(XmlQuery::Path &path)
{
    skipSpace();
    bool anywhere = false;
    if (accept(u"//")) {
        path.absolute = anywhere = true;
    } else if (accept(u"/")) {
        path.absolute = true;
        skipSpace();
        if (m_at == m_text.size())
            return false;
    } else {
        bool leading = true;
        while (leading) {
            if (accept(u".."))
                ++path.parents;
            else if (!accept(u"."))
                break;
            skipSpace();
            if (accept(u"//")) {
                anywhere = true;
                leading = false;
            } else if (!accept(u"/")) {
                return true; // the context or an ancestor, without further steps
            }
            skipSpace();
        }
    }
    while (true) {
        skipSpace();
        if (!anywhere && !path.steps.empty() && accept(u"..")) {
            ++path.trailingParents;
            skipSpace();
            if (!accept(u"/"))
                return true;
            continue;
        }
        XmlQuery::Step step;
        step.anywhere = anywhere;
        if (path.trailingParents > 0 || !parseStep(step))
            return false;
        const bool last = step.axis == XmlQuery::Axis::Attribute;
        path.steps.push_back(std::move(step));
        skipSpace();
        if (accept(u"//"))
            anywhere = true;
        else if (accept(u"/"))
            anywhere = false;
        else
            return true;
        if (last)
            return false;
    }
}

bool XmlQueryParser::parseStep(XmlQuery::Step &step)
{
    skipSpace();
    if (accept(u"@")) {
        step.axis = XmlQuery::Axis::Attribute;
        step.names.push_back(parseName());
        return !step.names.front().empty() && parsePredicates(step);
    }
    if (accept(u"(")) {
        do {
            skipSpace();
            step.names.push_back(parseName());
            if (step.names.back().empty())
                return false;
            skipSpace();
        } while (accept(u"|"));
        return accept(u")") && parsePredicates(step);
    }
    return parseNames(step) && parsePredicates(step);
}

bool XmlQueryParser::parseNames(XmlQuery::Step &step)
{
    if (accept(u"*")) {
        step.test = XmlQuery::Test::AnyElement;
        return true;
    }
    const std::string name = parseName();
    if (name.empty())
        return false;
    skipSpace();
    if (accept(u"(")) {
        skipSpace();
        step.test = name == "text" ? XmlQuery::Test::Text : XmlQuery::Test::AnyNode;
        return accept(u")") && (name == "text" || name == "node");
    }
    // An axis or a prefix.
    if (accept(u":"))
        return false;
    step.names.push_back(name);
    return true;
}

bool XmlQueryParser::parsePredicates(XmlQuery::Step &step)
{
    using Kind = XmlQuery::Predicate::Kind;
    while (true) {
        skipSpace();
        if (!accept(u"["))
            return true;
        skipSpace();
        XmlQuery::Predicate predicate{Kind::Position, 0, {}, {}};
        if (m_at < m_text.size() && m_text.at(m_at).isDigit()) {
            const qsizetype start = m_at;
            while (m_at < m_text.size() && m_text.at(m_at).isDigit())
                ++m_at;
            bool ok = false;
            predicate.position = m_text.sliced(start, m_at - start).toLongLong(&ok);
            if (!ok)
                return false;
        } else {
            if (accept(u"@")) {
                predicate.kind = Kind::AttributeEquals;
                predicate.name = parseName();
                if (predicate.name.empty())
                    return false;
            } else if (accept(u"text()")) {
                predicate.kind = Kind::TextEquals;
            } else {
                return false;
            }
            skipSpace();
            if (!accept(u"=") || !parseLiteral(predicate.literal))
                return false;
        }
        skipSpace();
        if (!accept(u"]"))
            return false;
        step.predicates.push_back(std::move(predicate));
    }
}

bool XmlQueryParser::parseLiteral(std::string &literal)
{
    skipSpace();
    if (m_at == m_text.size())
        return false;
    const QChar quote = m_text.at(m_at);
    if (quote != QLatin1Char('"') && quote != QLatin1Char('\''))
        return false;
    const qsizetype end = m_text.indexOf(quote, m_at + 1);
    if (end < 0)
        return false;
    literal = m_text.sliced(m_at + 1, end - m_at - 1).toUtf8().toStdString();
    m_at = end + 1;
    return true;
}

std::string XmlQueryParser::parseName()
{
    const qsizetype start = m_at;
    if (m_at < m_text.size() && isNameStart(m_text.at(m_at))) {
        while (m_at < m_text.size() && isNamePart(m_text.at(m_at)))
            ++m_at;
    }
    return m_text.sliced(start, m_at - start).toUtf8().toStdString();
}

void XmlQueryParser::skipSpace()
{
    while (m_at < m_text.size() && m_text.at(m_at).isSpace())
        ++m_at;
}

bool XmlQueryParser::accept(QStringView token)
{
    if (!m_text.sliced(m_at).startsWith(token))
        return false;
    m_at += token.size();
    return true;
}

} // namespace vantrell
