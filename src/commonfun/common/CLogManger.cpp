#include "common/CLogManger.h"

#include "common/CLogThread.h"
#include "common/CustomLogger.h"
#include "model/SharedContext.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <utility>

namespace {

/// Room for the text of a record. Most are shorter, so that adding an item need not find room for it anew.
constexpr int cBufferLength = 1000;

bool isAscii(QLatin1String text)
{
    return std::all_of(text.begin(), text.end(), [](char character) { return (character & 0x80) == 0; });
}

/// Whether a number comes out of the stream as plain digits, as it does until someone sets the stream otherwise. The
/// stream is public and a record's text is what it would write, so each setting that changes a number's text is looked
/// at: base, sign and prefix, padding, the locale's digits and groups. All of them together cost a small part of what
/// the stream takes for one number.
bool writesPlainDigits(const QTextStream &stream)
{
    static const QLocale s_plain = QLocale::c();
    return stream.integerBase() == 0 && stream.numberFlags() == 0 && stream.fieldWidth() == 0 &&
           stream.locale() == s_plain;
}

} // namespace

CLogManger *CLogManger::m_pInstance = nullptr;

CLogManger *CLogManger::instance()
{
    if (!m_pInstance) {
        m_pInstance = new CLogManger;
    }
    return m_pInstance;
}

CLogManger::CLogManger()
    : m_pTextStream(std::make_unique<QTextStream>(&m_strMessage, QIODevice::ReadWrite)),
      m_pLogger(SharedContext::getCustomLogger()), m_pLogThread(SharedContext::getLogThread())
{
    m_strMessage.reserve(cBufferLength);
    if (m_pLogThread) {
        m_pLogThread->setCustomLogger(m_pLogger);
    }
}

CustomLogger *CLogManger::getLogger() const
{
    return m_pLogger;
}

void CLogManger::printLog(CustomLog::LogLevel level, const QString &strLocation, const QString &strMessage)
{
    if (m_pLogThread) {
        m_pLogThread->printLog(level, strLocation, strMessage);
    }
}

void CLogManger::flushLog()
{
    if (m_pLogger) {
        m_pLogger->flush();
    }
}

void CLogManger::clearLog()
{
    if (m_pLogger) {
        m_pLogger->clear();
    }
}

CLogManger &CLogManger::startRecord(CustomLog::LogLevel level, const QString &strLocation)
{
    m_level = level;
    m_strLocation = strLocation;
    return *this;
}

/// Adds text to the record: directly where the stream would add it unchanged, else through the stream.
template <typename Text>
void CLogManger::add(const Text &text)
{
    if (m_pTextStream->fieldWidth() == 0 && m_pTextStream->string() == &m_strMessage) {
        m_strMessage += text;
    } else {
        *m_pTextStream << text;
    }
}

CLogManger &CLogManger::operator<<(const QString &strText)
{
    add(strText);
    return *this;
}

CLogManger &CLogManger::operator<<(const char *szText)
{
    if (!szText) {
        return *this;
    }
    // Deliberate, UTF-8: the sources' own Chinese texts come this way, and a text stream alone would read Latin-1.
    const QLatin1String text(szText);
    if (text == QLatin1String("\n")) {
        closeRecord();
    } else if (isAscii(text)) {
        add(text);
    } else {
        add(QString::fromUtf8(szText));
    }
    return *this;
}

void CLogManger::closeRecord()
{
    // The queue may grow long, so it gets a copy that takes no more room than its text, and the buffer keeps its room.
    // A text that has outgrown the buffer is handed over itself.
    const bool bUsual = m_strMessage.size() < cBufferLength;
    if (m_pLogThread) {
        m_pLogThread->printLog(
            CustomLogData{m_level, m_strLocation,
                          bUsual ? QString(m_strMessage.constData(), m_strMessage.size()) : std::move(m_strMessage)});
    }
    if (bUsual) {
        m_strMessage.resize(0);
    } else {
        m_strMessage = QString();
        m_strMessage.reserve(cBufferLength);
    }
}

CLogManger &CLogManger::operator<<(int iNumber)
{
    // The stream goes by the locale's rules for each number, which would be a third of the statement's time.
    if (!writesPlainDigits(*m_pTextStream)) {
        *m_pTextStream << iNumber;
        return *this;
    }
    std::array<char, std::numeric_limits<int>::digits10 + 2> digits{};
    const auto end = std::to_chars(digits.begin(), digits.end(), iNumber).ptr;
    add(QLatin1String(digits.data(), static_cast<int>(end - digits.data())));
    return *this;
}
