#include "tests/support/LongSeries.h"
#include "xml/XmlChanges.h"
#include "xml/XmlDocument.h"
#include "xml/XmlEdit.h"
#include "xml/XmlQuery.h"

#include <QBuffer>
#include <QTest>

#include <random>

using namespace vantrell;

class XmlChangesTest : public QObject
{
    Q_OBJECT

private:
    static QByteArray written(const XmlDocument &document)
    {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        return document.write(buffer) ? buffer.data() : QByteArray();
    }

    XmlNode any()
    {
        const XmlNodeList nodes = XmlQuery(QStringLiteral("//*")).evaluate(m_document->node()).nodes;
        return nodes[std::uniform_int_distribution<std::size_t>(0, nodes.size() - 1)(m_random)];
    }

    void editOnce()
    {
        switch (std::uniform_int_distribution<int>(0, 5)(m_random)) {
        case 0:
            XmlEdit::setText(any(), QStringLiteral("text & more"));
            break;
        case 1:
            XmlEdit::setText(any(), QString());
            break;
        case 2:
            XmlEdit::appendElement(any(), QStringLiteral("added"), QStringLiteral("new"));
            break;
        case 3:
            if (const XmlNode element = any(); element != m_document->rootElement())
                m_document->remove(element);
            break;
        case 4:
            m_document->moveTo(any(), any());
            break;
        default: {
            const Result<XmlNode> made = m_document->elementFromText(QStringLiteral("<m><a>1</a>x<b/></m>"));
            QVERIFY(made.isOk());
            m_document->moveTo(made.value(), any());
        }
        }
    }

    std::mt19937 m_random;
    std::unique_ptr<XmlDocument> m_document;

private Q_SLOTS:
    void undoesAndRedoesRandomEdits()
    {
        const QByteArray project = "<?xml version=\"1.0\"?><xmeml><a>one<!-- c --><b x=\"1\"/>two</a>"
                                   "<list><i>1</i><i>2</i><i><j/><k>deep</k></i></list><![CDATA[c]]></xmeml>";
        for (int seed = 0; seed < seriesLength(400); ++seed) {
            m_random.seed(std::mt19937::result_type(seed));
            Result<std::unique_ptr<XmlDocument>> loaded = XmlDocument::fromData(project, {});
            QVERIFY(loaded.isOk());
            m_document = std::move(loaded.value());
            std::vector<QByteArray> states{written(*m_document)};
            std::vector<XmlChanges> steps;
            for (int step = 0; step < 6; ++step) {
                XmlChanges changes;
                m_document->recordChanges(&changes);
                for (int edit = 0; edit < 4; ++edit)
                    editOnce();
                m_document->recordChanges(nullptr);
                steps.push_back(std::move(changes));
                states.push_back(written(*m_document));
            }
            // Back, forth and back again: what undoes a step then does it again.
            for (int round = 0; round < 2; ++round) {
                for (std::size_t step = steps.size(); step-- > 0;) {
                    m_document->revert(steps[step]);
                    QVERIFY2(written(*m_document) == states[step], qPrintable(QString::number(seed)));
                }
                for (std::size_t step = 0; step < steps.size(); ++step) {
                    m_document->revert(steps[step]);
                    QVERIFY2(written(*m_document) == states[step + 1], qPrintable(QString::number(seed)));
                }
            }
        }
    }
};

QTEST_GUILESS_MAIN(XmlChangesTest)
#include "tst_xmlchanges.moc"
