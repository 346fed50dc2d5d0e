#pragma once

#include <memory>

namespace vantrell
{

class Workbench;

/// Destroys the documents of closed windows on a thread of its own, so that waiting for their workers and
/// freeing the tree of a large project blocks no window. Main thread.
class DocumentDisposal
{
public:
    DocumentDisposal() = delete;

    /// Takes ownership of a document that is used by its own workers only. `world` owns what these may still
    /// use, such as the document's interface; it is released on the main thread after the document.
    static void dispose(std::unique_ptr<Workbench> workbench, std::shared_ptr<void> world);
};

} // namespace vantrell
