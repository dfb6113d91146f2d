#include "common/log/QtWarningFilter.h"

#include <QString>

#include <algorithm>
#include <atomic>
#include <iterator>

namespace {

struct KnownLine
{
    const char *start;
    const char *part;
    QtWarningFilter::Reason reason;
};

// The edit fields give their menus a sheet that Qt cannot read (widgets/LineEditEx.cpp). The call window's
// signal_ClearCallData is connected to an ordinary method, which Qt refuses in two lines. The X server answers about a
// window that has just gone, another program's too, or that it cannot give the focus at this moment.
constexpr KnownLine cKnownLines[] = {
    {"Could not parse stylesheet of object CLineEditEx(", "", QtWarningFilter::MenuSheet},
    {"QObject::connect: No such slot CVoipManage::clearLocalCallData()", "", QtWarningFilter::RefusedConnection},
    {"QObject::connect:  (sender name:   'CVoipWidget')", "", QtWarningFilter::RefusedConnection},
    {"QXcbConnection: XCB error: 3 (BadWindow)", "", QtWarningFilter::WindowGone},
    {"QXcbConnection: XCB error: 8 (BadMatch)", "(SetInputFocus)", QtWarningFilter::WindowGone},
};

std::atomic<QtMessageHandler> s_previous{nullptr};

void passOn(QtMsgType type, const QMessageLogContext &context, const QString &strText)
{
    if (!QtWarningFilter::isKnown(type, strText)) {
        s_previous.load()(type, context, strText);
    }
}

} // namespace

QtWarningFilter::Reason QtWarningFilter::reasonOf(QtMsgType type, const QString &strText)
{
    const auto *const known = std::find_if(std::begin(cKnownLines), std::end(cKnownLines), [&](const KnownLine &line) {
        return strText.startsWith(QLatin1String(line.start)) && strText.contains(QLatin1String(line.part));
    });
    return type == QtWarningMsg && known != std::end(cKnownLines) ? known->reason : Unknown;
}

bool QtWarningFilter::isKnown(QtMsgType type, const QString &strText)
{
    return reasonOf(type, strText) != Unknown;
}

QtWarningFilter::QtWarningFilter() : m_outer(s_previous)
{
    // Known before the first message comes.
    m_previous = qInstallMessageHandler(nullptr);
    if (m_previous != passOn) {
        s_previous = m_previous;
    }
    qInstallMessageHandler(passOn);
}

QtWarningFilter::~QtWarningFilter()
{
    qInstallMessageHandler(m_previous);
    // Another thread may still be in passOn, so there is always one to pass on to.
    if (m_outer != nullptr) {
        s_previous = m_outer;
    }
}
