#pragma once

#include "table/widgets/TabPane.h"
#include "table/widgets/TableModel.h"

#include <cstdint>

class QCheckBox;
class QComboBox;

namespace vantrell
{

/// The effects of the project, with their filters and search.
class EffectsPane : public TabPane
{
    Q_OBJECT

public:
    EffectsPane(Workbench &workbench, UserDefaults &defaults, QWidget *parent = nullptr);

    void setEditingEnabled(bool enabled) override;

    /// Whether the Delete key has taken effects off the list that its filters leave.
    bool hidesEffects() const;

public Q_SLOTS:
    /// Makes the list anew, so that they are back.
    void showHiddenEffects();
    /// Removes the selected effects after a question.
    void removeEffects();

protected:
    void commitEdit(int row, const QString &column, const QString &text) override;
    void updateControls() override;
    void search() override { applyFilters(); }
    QString countText(const QString &number, std::size_t count) const override;
    QString loadingText(std::size_t found) const override;
    QString emptyText() const override { return tr("This project has no effects."); }
    QString filteredText() const override;

private:
    void applyFilters();
    /// Tells that nothing opens.
    Q_INVOKABLE void openEffect();
    void hideSelectedEffects();
    void noteReload();
    void keepHidden(RowList hidden);

    QComboBox *m_types;
    QCheckBox *m_showDefaults;
    QPushButton *m_remove;
    QPushButton *m_showHidden;
    RowList m_hidden;
    std::uint64_t m_generation = 0; ///< of the list that they belong to
};

/// The table of the effects.
class EffectTableModel : public TableModel
{
    Q_OBJECT

public:
    explicit EffectTableModel(MyDocument &document, QObject *parent = nullptr);

protected:
    QString text(const RowRecord &record, const Column &column) const override;
    QIcon icon(const RowRecord &record, const Column &column) const override;
};

} // namespace vantrell
