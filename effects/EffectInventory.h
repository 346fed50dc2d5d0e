#pragma once

#include "document/MyDocument.h"

namespace vantrell
{

/// The list of all effects of a project, and those of it that are on show: what the type menu, the
/// show-defaults box and the search leave, sorted as the table is. Main thread unless a member says
/// otherwise. The document must be closed before the object goes away.
class EffectInventory
{
public:
    explicit EffectInventory(MyDocument &document);

    /// Rebuilds the document's list of effects, then the rows on show when the Effects tab is chosen.
    /// Leaves the list as it is when the document closes meanwhile. On a thread of its own, one run at a
    /// time.
    void populateEffectData();

    /// Rebuilds the rows on show and the status text; see MyDocument::rebuildRows(). Any thread.
    void populateFilteredEffectData();

    /// The actions of the type menu (and of the show-defaults box) and of the search field.
    void changeEffectFilter();
    void effectSearchAction();

    /// Sets the text under the effects table: how many rows are on show and how many are selected.
    void updateEffectStatusText();

private:
    void build();

    MyDocument &m_document;
};

} // namespace vantrell
