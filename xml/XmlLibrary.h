#pragma once

// For use inside xml/ only.

#include <libxml/xmlerror.h>

#include <type_traits>

namespace vantrell::XmlLibrary
{

/// How the XML library passes an error; const in newer versions.
using ErrorPointer = std::conditional_t<std::is_invocable_v<xmlStructuredErrorFunc, void *, const xmlError *>,
                                        const xmlError *, xmlError *>;

/// To be called before a thread first uses the library. From then on the library writes nothing to standard
/// error in that thread. Any thread, any number of times.
void prepare();

} // namespace vantrell::XmlLibrary
