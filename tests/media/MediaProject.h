#pragma once

#include "media/MediaFilter.h"
#include "media/MediaInventory.h"
#include "media/MediaKeys.h"
#include "tests/support/LoadedProject.h"

namespace vantrell
{

/// A document with its media inventory.
struct MediaProject : LoadedProject {
    MediaProject()
    {
        builders = {[this] { inventory.populateMediaData(); }};
    }
    ~MediaProject() { document.close(); }

    MediaFilter filter{document};
    MediaInventory inventory{document, filter};
};

} // namespace vantrell
