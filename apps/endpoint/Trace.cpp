#include "endpoint/Trace.h"

#include "endpoint/Wire.h"

#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <utility>

namespace {

constexpr ushort cControlPictures = 0x2400;
constexpr ushort cDeletePicture = 0x2421;
// A pipe or a device, which standard error may be too, has no end to append at.
constexpr QIODevice::OpenMode cStreamed = QIODevice::WriteOnly | QIODevice::Unbuffered;

} // namespace

Trace::Trace()
{
    m_clock.start();
}

bool Trace::open(const QString &path, QString *error)
{
    if (path.isEmpty()) {
        return true;
    }
    m_onStandardError = path == QLatin1String("-");
    // Appended and unbuffered: a predecessor's records stay, and a killed process leaves all of its own.
    const QFileInfo place(path);
    m_file.setFileName(path);
    const bool open = m_onStandardError                   ? m_file.open(stderr, cStreamed)
                      : place.exists() && !place.isFile() ? openPipe(path)
                                                          : m_file.open(QIODevice::Append | QIODevice::Unbuffered);
    if (!open) {
        const QString why = m_file.error() == QFileDevice::NoError ? qt_error_string(errno) : m_file.errorString();
        *error = QStringLiteral("cannot write the trace %1: %2").arg(path, why);
    }
    return open;
}

/// A pipe that nobody reads is an error, and records that its reader has no room for are left out: the call process
/// waits for neither.
bool Trace::openPipe(const QString &path)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
    return descriptor >= 0 && m_file.open(descriptor, cStreamed, QFileDevice::AutoCloseHandle);
}

void Trace::setVeil(std::function<QByteArray(const QByteArray &line)> veil)
{
    m_veil = std::move(veil);
}

void Trace::received(const QByteArray &line)
{
    record('<', veiled(line));
}

void Trace::receivedHalf(const QByteArray &line)
{
    complaint(QStringLiteral("line without an end: ") + veiled(line));
}

void Trace::sent(const QByteArray &bytes)
{
    if (bytes.endsWith('\n')) {
        record('>', printable(bytes.left(bytes.size() - 1)));
    } else {
        record('>', printable(bytes) + QChar(0x2026));
    }
}

void Trace::event(const QString &text)
{
    record('=', text);
}

void Trace::complaint(const QString &text)
{
    record('!', text);
}

QString Trace::printable(const QByteArray &bytes)
{
    QString text;
    if (isUtf8(bytes)) {
        text = QString::fromUtf8(bytes.constData(), bytes.size());
    } else {
        for (const char byte : bytes) {
            const auto value = static_cast<uchar>(byte);
            text += value < 0x80 ? QString(QChar(value)) : QString::asprintf("\\x%02X", value);
        }
    }
    for (QChar &character : text) {
        if (character.unicode() < 0x20) {
            character = QChar(static_cast<ushort>(cControlPictures + character.unicode()));
        } else if (character.unicode() == 0x7F) {
            character = QChar(cDeletePicture);
        }
    }
    return text;
}

QString Trace::veiled(const QByteArray &line) const
{
    return printable(m_veil ? m_veil(line) : line);
}

void Trace::record(char direction, const QString &text)
{
    if (m_file.isOpen()) {
        const QString line = QStringLiteral("%1 %2 %3\n").arg(m_clock.elapsed()).arg(QLatin1Char(direction)).arg(text);
        m_file.write(line.toUtf8());
    }
}
