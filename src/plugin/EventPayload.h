#pragma once

// How the fields of an event's payload are written and read: a QDataStream over a QByteArray with the stream's default
// settings, on both sides. Values only; usable on any thread.

#include <QByteArray>
#include <QDataStream>
#include <QStringList>

/// The payload that holds `fields` in their order. A QStringList is written as a 32-bit count and the strings. Without
/// fields the payload is empty.
template <typename... Fields>
QByteArray packPayload(const Fields &...fields)
{
    QByteArray payload;
    QDataStream stream(&payload, QIODevice::WriteOnly);
    static_cast<void>((stream << ... << fields));
    return payload;
}

/// Reads the fields of a payload in their order. A payload that is too short gives default values (false, an empty
/// text, 0) and of a list of strings those that are there.
class PayloadReader
{
public:
    /// Reads `payload` from its start.
    explicit PayloadReader(const QByteArray &payload) : m_stream(payload) {}

    /// The next field.
    template <typename Field>
    Field take()
    {
        Field field{};
        m_stream >> field;
        return field;
    }

    /// The next list of strings. A count that promises more than there is, or a negative one, neither allocates nor
    /// loops: the list holds what was there.
    QStringList takeTexts();

    /// False once a field was asked for that the payload does not hold.
    bool isComplete() const { return m_stream.status() == QDataStream::Ok; }

private:
    QDataStream m_stream;
};

/// A copy of the record that stands at `address` in this process, where its owner keeps it valid. An address of zero
/// gives a default record.
template <typename Record>
Record recordAt(qint64 address)
{
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the host writes the address as a number.
    const auto *record = reinterpret_cast<const Record *>(static_cast<quintptr>(address));
    return record == nullptr ? Record() : *record;
}
