#pragma once

#include "tests/support/RandomProject.h"

#include <QByteArray>
#include <QByteArrayList>

namespace vantrell
{

/// Files as left by broken disks, transfers and editors: projects with one to three faults: bytes changed,
/// cut, duplicated or inserted, a broken tag, or a wrong encoding declaration. Determined by the seed.
class Damage
{
public:
    explicit Damage(quint64 seed)
        : m_random(seed)
    {
    }

    QByteArray damaged(QByteArray file);

    /// Small projects to damage: cases missing in the samples, in several encodings.
    static QByteArrayList smallProjects();

private:
    void changeBytes(QByteArray &file);
    void cut(QByteArray &file);
    void duplicate(QByteArray &file);
    void breakTag(QByteArray &file);
    void insertMarkup(QByteArray &file);
    void mislabel(QByteArray &file);
    qsizetype offsetIn(const QByteArray &file);

    RandomNumbers m_random;
};

} // namespace vantrell
