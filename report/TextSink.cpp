#include "report/TextSink.h"

#include <QIODevice>

namespace vantrell
{

namespace
{

constexpr qsizetype blockBytes = 64 * 1024;

} // namespace

Utf8Output::Utf8Output(QIODevice &device)
    : m_device(device)
{
}

void Utf8Output::append(QStringView text)
{
    const qsizetype used = m_block.size();
    m_block.resize(used + m_encoder.requiredSpace(text.size()));
    const char *end = m_encoder.appendToBuffer(m_block.data() + used, text);
    m_block.resize(end - m_block.constData());
    if (m_block.size() >= blockBytes)
        flush();
}

Result<void> Utf8Output::finish()
{
    flush();
    if (m_hasFailed)
        return Failure{m_device.errorString()};
    return {};
}

TextSink Utf8Output::sink()
{
    return [this](QStringView text) { append(text); };
}

void Utf8Output::flush()
{
    if (!m_hasFailed)
        m_hasFailed = m_device.write(m_block) != m_block.size();
    m_block.resize(0);
}

} // namespace vantrell
