#pragma once

#include "xml/XmlQuery.h"

#include <QStringView>

namespace vantrell
{

/// Parses the text of a query into the steps of an XmlQuery.
class XmlQueryParser
{
public:
    explicit XmlQueryParser(QStringView text)
        : m_text(text)
    {
    }

    /// The paths; nullopt when the walk cannot answer the query.
    std::optional<std::vector<XmlQuery::Path>> parse();

private:
    bool parsePath(XmlQuery::Path &path);
    bool parseStep(XmlQuery::Step &step);
    bool parseNames(XmlQuery::Step &step);
    bool parsePredicates(XmlQuery::Step &step);
    bool parseLiteral(std::string &literal);
    std::string parseName();
    void skipSpace();
    bool accept(QStringView token);

    QStringView m_text;
    qsizetype m_at = 0;
};

} // namespace vantrell
