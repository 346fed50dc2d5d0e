#include "xml/XmlOutput.h"

#include <QIODevice>

namespace vantrell
{

namespace
{

int writeOutput(void *context, const char *buffer, int length)
{
    const auto &output = *static_cast<XmlOutput *>(context);
    if (output.cancelled && *output.cancelled)
        return -1;
    return output.device.write(buffer, length) == length ? length : -1;
}

} // namespace

XmlSavePointer openXmlOutput(XmlOutput &output, const char *encoding, int options)
{
    return XmlSavePointer(xmlSaveToIO(writeOutput, nullptr, &output, encoding, options));
}

} // namespace vantrell
