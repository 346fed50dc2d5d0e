#pragma once

#include "tests/support/RandomProject.h"

#include <QByteArray>
#include <QByteArrayList>

namespace vantrell
{

/// Files as they come out of broken disks, transfers and editors: projects with one to three faults, each
/// bytes changed, cut, doubled or put in, a tag broken, or an encoding other than the declared one. The same
/// for the same seed.
class Damage
{
public:
    explicit Damage(quint64 seed)
        : m_random(seed)
    {
    }

    QByteArray damaged(QByteArray file);

    /// Small projects to damage: what is in no sample, in several encodings.
    static QByteArrayList smallProjects();

private:
    void changeBytes(QByteArray &file);
    void cut(QByteArray &file);
    void duplicate(QByteArray &file);
    void breakTag(QByteArray &file);
    void insertMarkup(QByteArray &file);
    void mislabel(QByteArray &file);
    qsizetype placeIn(const QByteArray &file);

    RandomNumbers m_random;
};

} // namespace vantrell
