#pragma once

// How the fields of an event's payload are written and read: a QDataStream over a QByteArray with the stream's default
// settings, on both sides. Values only; usable on any thread.

#include <QByteArray>
#include <QDataStream>
#include <QStringList>
#include <QtEndian>

/// Adds a field to a payload as a stream with default settings writes it. The kinds of which events are made, one for
/// each member of a conference, are written without one: making and unmaking a stream costs ten times the writing.
template <typename Field>
void appendField(QByteArray &payload, const Field &field)
{
    QDataStream stream(&payload, QIODevice::WriteOnly | QIODevice::Append);
    stream << field;
}
inline void appendField(QByteArray &payload, bool field)
{
    payload.append(field ? '\1' : '\0');
}
inline void appendField(QByteArray &payload, qint32 field)
{
    const qint32 bytes = qToBigEndian(field);
    payload.append(reinterpret_cast<const char *>(&bytes), sizeof bytes);
}
inline void appendField(QByteArray &payload, qint64 field)
{
    const qint64 bytes = qToBigEndian(field);
    payload.append(reinterpret_cast<const char *>(&bytes), sizeof bytes);
}
inline void appendField(QByteArray &payload, const QString &field)
{
    const int lengthAt = payload.size();
    const int textAt = lengthAt + static_cast<int>(sizeof(qint32));
    const int bytes = field.size() * static_cast<int>(sizeof(QChar));
    payload.resize(textAt + bytes);
    // A null text has no length, but is told from an empty one.
    qToBigEndian<qint32>(field.isNull() ? -1 : bytes, payload.data() + lengthAt);
    qToBigEndian<char16_t>(field.constData(), field.size(), payload.data() + textAt);
}
inline void appendField(QByteArray &payload, const QStringList &field)
{
    appendField(payload, qint32(field.size()));
    for (const QString &text : field) {
        appendField(payload, text);
    }
}

/// The payload that holds `fields` in their order. A QStringList is written as a 32-bit count and the strings. Without
/// fields the payload is empty.
template <typename... Fields>
QByteArray packPayload(const Fields &...fields)
{
    QByteArray payload;
    (appendField(payload, fields), ...);
    return payload;
}

/// The first field of a payload as a PayloadReader takes it when it is a bool, false when there is none: for an answer
/// that is read for each member of a conference.
inline bool firstFlag(const QByteArray &payload)
{
    return !payload.isEmpty() && payload.front() != '\0';
}

/// The first field of a payload as a PayloadReader takes it when it is an int64, 0 when there is less: as above.
inline qint64 firstNumber(const QByteArray &payload)
{
    return payload.size() < int(sizeof(qint64)) ? 0 : qFromBigEndian<qint64>(payload.constData());
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
