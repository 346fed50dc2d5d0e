#pragma once

#include "cli/EditScript.h"
#include "cli/ProjectSession.h"
#include "support/alerts/HeadlessAlertPresenter.h"

namespace vantrell::cli
{

/// Applies a script to a loaded project. The rows that it names are those of the whole lists. Main thread.
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

    ProjectSession &m_session;
    const HeadlessAlertPresenter &m_presenter;
};

} // namespace vantrell::cli
