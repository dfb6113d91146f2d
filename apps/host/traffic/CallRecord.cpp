#include "traffic/CallRecord.h"

#include <QCoreApplication>

namespace {

struct OutcomeRow
{
    int result;
    const char *word;
};

constexpr OutcomeRow cOutcomes[] = {
    {resultCancelled, QT_TRANSLATE_NOOP("CallRecord", "cancelled")},
    {resultFailed, QT_TRANSLATE_NOOP("CallRecord", "failed")},
    {resultHungUp, QT_TRANSLATE_NOOP("CallRecord", "hung up")},
    {resultBusy, QT_TRANSLATE_NOOP("CallRecord", "busy")},
    {resultRejected, QT_TRANSLATE_NOOP("CallRecord", "rejected")},
};

} // namespace

QString outcomeWord(int iResult)
{
    for (const OutcomeRow &row : cOutcomes) {
        if (row.result == iResult) {
            return QCoreApplication::translate("CallRecord", row.word);
        }
    }
    return QString::number(iResult);
}

QString durationText(qint64 iSeconds)
{
    const qint64 all = qMax<qint64>(0, iSeconds);
    QString tail = QStringLiteral("%1:%2").arg(all / 60 % 60).arg(all % 60, 2, 10, QLatin1Char('0'));
    if (all < 3600) {
        return tail;
    }
    return QStringLiteral("%1:%2").arg(all / 3600).arg(tail.rightJustified(5, QLatin1Char('0')));
}
