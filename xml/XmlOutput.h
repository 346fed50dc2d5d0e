#pragma once

// For use inside xml/ only: it speaks the XML library's types.

#include <libxml/xmlsave.h>

#include <atomic>
#include <memory>

class QIODevice;

namespace vantrell
{

/// Where the XML library's output goes. It outlives what openXmlOutput() gives.
struct XmlOutput {
    QIODevice &device;
    const std::atomic<bool> *cancelled; ///< once true, writing fails; null: never
};

struct XmlSaveDeleter {
    void operator()(xmlSaveCtxt *context) const { xmlSaveClose(context); }
};
using XmlSavePointer = std::unique_ptr<xmlSaveCtxt, XmlSaveDeleter>;

/// Output in that encoding with the library's options for saving; null for an unknown encoding.
XmlSavePointer openXmlOutput(XmlOutput &output, const char *encoding, int options);

} // namespace vantrell
