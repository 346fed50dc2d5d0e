#include "document/EditHistory.h"

#include <utility>

namespace vantrell
{

void EditHistory::push(EditStep step)
{
    m_steps.resize(m_done);
    const bool continues = step.group != 0 && canUndo() && toUndo().group == step.group &&
                           toUndo().generations == step.generations &&
                           toUndo().marks.after == step.marks.before;
    if (continues) {
        EditStep &last = toUndo();
        last.tree.append(std::move(step.tree));
        last.rows.append(std::move(step.rows));
        last.marks.append(step.marks);
        return;
    }
    m_steps.push_back(std::move(step));
    ++m_done;
}

void EditHistory::clear()
{
    m_steps.clear();
    m_done = 0;
}

} // namespace vantrell
