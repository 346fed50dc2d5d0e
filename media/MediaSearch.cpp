#include "media/MediaSearch.h"

#include "media/MediaFile.h"
#include "media/MediaKeys.h"

#include <utility>

namespace vantrell
{

namespace
{

bool isInState(const RowRecord &file, MediaSearch::State state, const MediaUseIndex &uses)
{
    switch (state) {
    case MediaSearch::State::Missing:
        return file.get(MediaKey::missing);
    case MediaSearch::State::Unused: {
        const std::optional<MediaUseFacts> facts = uses.find(file);
        return facts && facts->uses == 0;
    }
    case MediaSearch::State::UnknownKind:
        return file.get(MediaKey::filetype) == MediaKind::unknown;
    case MediaSearch::State::Any:
        break;
    }
    return true;
}

} // namespace

MediaSearch::MediaSearch(MyDocument &document, MediaFilter &filter, std::shared_ptr<const MediaUseIndex> uses)
    : m_document(document)
    , m_filter(filter)
    , m_uses(std::move(uses))
    , m_search([](const RowRecord &file, QStringList &texts) {
        texts.append(MediaFile::joinedPath(file.get(MediaKey::directory), file.get(MediaKey::filename)));
    })
{
    // Relinking gives files other paths.
    QObject::connect(&m_document, &MyDocument::historyChanged, &m_context, [this] { m_search.forget(); });
    RowView *const view = &m_document.rowView(Tab::Media);
    QObject::connect(view, &RowView::populatingChanged, &m_context, [this] { m_search.forget(); });
}

MediaSearch::~MediaSearch()
{
    m_filter.setCondition({});
}

void MediaSearch::setConditions(const Conditions &conditions)
{
    if (conditions == m_conditions)
        return;
    forgetOtherList();
    m_conditions = conditions;
    m_search.setText(conditions.text);
    const RowSearch::Condition holds = m_search.isEmpty() ? RowSearch::Condition() : m_search.condition();
    if (!holds && conditions.state == State::Any)
        m_filter.setCondition({});
    else
        m_filter.setCondition([holds, state = conditions.state, uses = m_uses](const RowRecord &file) {
            return isInState(file, state, *uses) && (!holds || holds(file));
        });
    const RowView &view = m_document.rowView(Tab::Media);
    if (holds && !view.isPopulating())
        m_search.prepare(view.list());
    if (view.isVisible())
        m_filter.populateFilteredMediaData();
}

bool MediaSearch::prepare(std::chrono::milliseconds time)
{
    forgetOtherList();
    const RowView &view = m_document.rowView(Tab::Media);
    return view.isPopulating() || m_search.prepare(view.list(), time);
}

void MediaSearch::forgetOtherList()
{
    const std::uint64_t generation = m_document.rowView(Tab::Media).generation();
    if (std::exchange(m_generation, generation) != generation)
        m_search.forget();
}

} // namespace vantrell
