#pragma once

#include "cli/EditScript.h"
#include "cli/ProjectSession.h"
#include "support/alerts/HeadlessAlertPresenter.h"

namespace vantrell::cli
{

/// Applies a script to a loaded project as the window would with everything on show: all colours of
/// markers, all types of effects and the defaults. Main thread.
class EditRun
{
public:
    /// The presenter is the one installed for alerts.
    EditRun(ProjectSession &session, const HeadlessAlertPresenter &presenter);

    /// Applies the operations in order. False, after a message on standard error, as soon as a row is out of
    /// range or a question was refused; earlier operations stay applied.
    bool apply(const EditScript &script);

private:
    struct Applier;

    bool selectRows(Tab tab, const RowIndexes &rows);
    void showMarkers();
    void showEffects();
    const MenuItem *sequenceItem(std::optional<std::int64_t> index);

    ProjectSession &m_session;
    const HeadlessAlertPresenter &m_presenter;
    MenuPtr m_sequenceMenu;
};

} // namespace vantrell::cli
