#include "tests/support/Damage.h"
#include "tests/support/TemporaryHome.h"
#include "xml/XmlDocument.h"

#include <libxml/parser.h>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QTest>

#include <memory>

using namespace vantrell;

namespace
{

/// Whether the XML library considers the bytes well-formed.
bool isWellFormed(const QByteArray &xml)
{
    const std::unique_ptr<xmlDoc, void (*)(xmlDoc *)> parsed(
        xmlReadMemory(xml.constData(), int(xml.size()), nullptr, nullptr,
                      XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_HUGE),
        xmlFreeDoc);
    return parsed != nullptr;
}

} // namespace

class DamageTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

private Q_SLOTS:
    /// A share of what tools/damage tries.
    void opensOrTellsWhyNot()
    {
        QByteArrayList projects = Damage::smallProjects();
        QFile sample(QDir(qEnvironmentVariable("VANTRELL_SOURCE_DIR"))
                         .filePath(QStringLiteral("samples/Harbour Lights.xml")));
        QVERIFY(sample.open(QIODevice::ReadOnly));
        projects.append(sample.readAll());
        int opened = 0;
        int refused = 0;
        for (quint64 seed = 0; seed < 400; ++seed) {
            const QByteArray &project = projects.at(qsizetype(seed) % projects.size());
            const QByteArray damaged = Damage(seed).damaged(project);
            const auto document = XmlDocument::fromData(damaged, {});
            if (!document) {
                ++refused;
                QVERIFY2(document.message().size() > 20, qPrintable(QString::number(seed)));
                continue;
            }
            ++opened;
            QBuffer saved;
            saved.open(QIODevice::WriteOnly);
            QVERIFY2(document.value()->write(saved), qPrintable(QString::number(seed)));
            QVERIFY2(isWellFormed(saved.data()), qPrintable(QString::number(seed)));
            const auto again = XmlDocument::fromData(saved.data(), {.tolerant = false});
            QVERIFY2(again, qPrintable(QString::number(seed) + again.message()));
        }
        QVERIFY2(opened > 250 && refused > 10, qPrintable(QString::number(opened)));
    }
};

QTEST_GUILESS_MAIN(DamageTest)
#include "tst_damage.moc"
