#pragma once

// For use inside xml/ only.

#include <libxml/xmlerror.h>

#include <type_traits>

namespace vantrell::XmlLibrary
{

/// How the XML library hands over an error: newer versions as a constant.
using ErrorPointer = std::conditional_t<std::is_invocable_v<xmlStructuredErrorFunc, void *, const xmlError *>,
                                        const xmlError *, xmlError *>;

/// Must come before a thread's first use of the library. From then on the library writes nothing to standard
/// error by itself in that thread. Any thread, any number of times.
void prepare();

} // namespace vantrell::XmlLibrary
