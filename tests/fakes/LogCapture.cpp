#include "fakes/LogCapture.h"

#include "common/CLogManger.h"
#include "fakes/Patience.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

namespace {

const QString cLogFileName = QStringLiteral("captured.log");

} // namespace

LogCapture::LogCapture() : m_logger(cLogFileName)
{
    m_thread.setCustomLogger(&m_logger);
    context.setCustomLogger(&m_logger);
    context.setCustomLogThread(&m_thread);
    CLogManger::instance();
    m_thread.start();
}

LogCapture::~LogCapture()
{
    m_thread.stop();
    // The writer leaves only after one more record.
    m_thread.printLog(CustomLog::Debug, QString(), QString());
    m_thread.wait();
}

QString LogCapture::written()
{
    m_logger.flush();
    QFile file(cLogFileName);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QByteArray bytes = file.readAll();
    // With its length, as a record may hold a null character.
    return QString::fromUtf8(bytes.constData(), bytes.size());
}

QStringList LogCapture::take()
{
    const QString mark = QStringLiteral("take %1").arg(++m_takeCount);
    m_thread.printLog(CustomLog::Debug, QString(), mark);
    const QString lastLine = QStringLiteral("]: ") + mark + QLatin1Char('\n');
    if (!QTest::qWaitFor([this, &lastLine] { return written().endsWith(lastLine); }, cPatienceMs)) {
        return {QStringLiteral("the log writer does not write")};
    }
    QStringList lines = written().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    const int lineCount = lines.size();
    lines = lines.mid(m_readLines);
    m_readLines = lineCount;
    lines.removeLast();
    for (QString &line : lines) {
        line.remove(0, line.indexOf(QLatin1Char(']')) + 1);
    }
    return lines;
}

QStringList LogCapture::takeTexts()
{
    static const QRegularExpression prefix(QStringLiteral("^\\[(\\w+)\\]\\[[^\\]]*\\]: "));
    QStringList texts = take();
    for (QString &text : texts) {
        text.replace(prefix, QStringLiteral("\\1 "));
    }
    return texts;
}
