#include "xml/XmlLibrary.h"

#include <libxml/parser.h>

#include <mutex>

namespace vantrell::XmlLibrary
{

namespace
{

void ignoreError(void *, ErrorPointer) {}

void ignoreMessage(void *, const char *, ...) {}

} // namespace

void prepare()
{
    static std::once_flag once;
    xmlSetStructuredErrorFunc(nullptr, ignoreError);
    xmlSetGenericErrorFunc(nullptr, ignoreMessage);
    std::call_once(once, [] { xmlInitParser(); });
}

} // namespace vantrell::XmlLibrary
