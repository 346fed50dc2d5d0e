#pragma once

#include <QByteArray>
#include <QByteArrayList>

#include <cstdint>

namespace vantrell
{

/// The same numbers for the same seed on every system.
class RandomNumbers
{
public:
    explicit RandomNumbers(quint64 seed)
        : m_state(seed * 0x9E3779B97F4A7C15U + 1)
    {
    }

    /// A number below the bound, which is above 0.
    int below(int bound);
    bool oneIn(int chances) { return below(chances) == 0; }
    const QByteArray &pick(const QByteArrayList &texts) { return texts.at(below(int(texts.size()))); }

private:
    quint64 m_state;
};

/// A small odd project: nested bins and sequences, clips and multiclips with markers everywhere, filters,
/// generators and files, and unlikely values of every kind. Well-formed XML, determined by the seed.
class RandomProject
{
public:
    explicit RandomProject(quint64 seed)
        : m_random(seed)
    {
    }

    QByteArray xml();

private:
    QByteArray children(int depth);
    QByteArray sequence(int depth);
    QByteArray track(int depth);
    QByteArray trackItem(int depth);
    QByteArray multiclip(int depth);
    QByteArray markers();
    QByteArray marker();
    QByteArray effect();
    QByteArray file();
    QByteArray timecode();
    QByteArray names();
    QByteArray color();
    /// The element with one of the texts; sometimes none, an empty one or two.
    QByteArray maybe(const QByteArray &name, const QByteArrayList &texts);
    QByteArray idAttribute();

    RandomNumbers m_random;
    int m_items = 0;
};

} // namespace vantrell
