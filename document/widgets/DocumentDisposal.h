#pragma once

#include <memory>

namespace vantrell
{

class Workbench;

/// Ends documents whose windows have closed, on a thread of its own: waiting for their workers and taking
/// the tree of a large project apart holds up no window. Main thread.
class DocumentDisposal
{
public:
    DocumentDisposal() = delete;

    /// Takes a document that nobody uses any more but its own workers. `world` is what they may still ask
    /// for, the document's interface foremost; it is let go on the main thread, after the document.
    static void dispose(std::unique_ptr<Workbench> workbench, std::shared_ptr<void> world);
};

} // namespace vantrell
