#include "callcheck/RecordingRelay.h"

#include "callcheck/Subject.h"
#include "endpoint/Channel.h"
#include "endpoint/Wire.h"

#include <QLocalSocket>

#include <utility>

namespace {

constexpr int cLookMs = 10;
constexpr int cConnectMs = 1000;
/// A process that ends closes its sockets first, so it takes a while to tell an end from what only looks so.
constexpr int cEndShowsMs = 2000;
constexpr int cLooksToBelieve = 3;

} // namespace

RecordingRelay::RecordingRelay(Subject &subject, Channel &channel, ScenarioWriter &writer, QObject *parent)
    : QObject(parent), m_subject(subject), m_channel(channel), m_writer(writer)
{
    m_clock.start();
    m_lookTimer.setInterval(cLookMs);
    m_doubtTimer.setInterval(cEndShowsMs);
    m_doubtTimer.setSingleShot(true);
    connect(&m_lookTimer, &QTimer::timeout, this, &RecordingRelay::look);
    connect(&m_doubtTimer, &QTimer::timeout, this, &RecordingRelay::settleDoubts);
    connect(&m_channel, &Channel::clientArrived, this, &RecordingRelay::clientArrives);
    connect(&m_channel, &Channel::clientGone, this, &RecordingRelay::clientGoes);
    connect(&m_channel, &Channel::bytesReceived, this, &RecordingRelay::passOn);
    connect(&m_channel, &Channel::allWritten, this, [this] {
        dropClient();
        settleEnd();
    });
    connect(&m_channel, &Channel::lineReceived, this, [this](const QByteArray &line) {
        settleDoubts();
        m_quit = m_quit || line == Wire::cQuitLine;
        m_writer.said(m_heardTime, line);
    });
}

void RecordingRelay::start()
{
    m_writer.begin();
    if (m_subject.isChild()) {
        connect(&m_subject.process(), qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
                &RecordingRelay::subjectEnds);
        if (m_subject.process().state() == QProcess::NotRunning) {
            QTimer::singleShot(0, this, &RecordingRelay::subjectEnds);
            return;
        }
    }
    m_lookTimer.start();
    look();
}

void RecordingRelay::stop()
{
    m_stopped = true;
    if (m_subject.isChild()) {
        m_subject.process().terminate();
    } else {
        subjectEnds();
    }
}

void RecordingRelay::look()
{
    const bool listening = m_subject.isListening();
    if (!listening && m_looksUnanswered == 0) {
        m_silentTime = m_clock.elapsed();
    }
    m_looksUnanswered = listening ? 0 : m_looksUnanswered + 1;
    if (listening && !m_open) {
        openServer();
    } else if (m_open && m_looksUnanswered >= cLooksToBelieve) {
        if (m_subject.isChild() || !m_quit) {
            closeServer();
        } else {
            subjectEnds();
        }
    }
}

void RecordingRelay::openServer()
{
    QString error;
    if (m_channel.listen(&error) != Channel::Listen::Listening) {
        m_lookTimer.stop();
        emit failed(QStringLiteral("cannot listen for the plug-in: %1").arg(error));
        return;
    }
    m_open = true;
    if (m_wasOpen) {
        settleDoubts();
        m_writer.happened(m_clock.elapsed(), "restart-listen");
    }
    m_wasOpen = true;
}

void RecordingRelay::closeServer()
{
    m_open = false;
    m_channel.stopListening();
    doubt(m_silentTime, "stop-listen");
}

void RecordingRelay::clientArrives()
{
    settleDoubts();
    releaseFarEnd();
    m_closing = false;
    m_farEnd = new QLocalSocket(this);
    connect(m_farEnd, &QLocalSocket::readyRead, this, &RecordingRelay::takeAnswer);
    connect(m_farEnd, &QLocalSocket::disconnected, this, &RecordingRelay::subjectCloses);
    m_farEnd->connectToServer(m_subject.socketPath(), QIODevice::ReadWrite);
    if (m_farEnd->waitForConnected(cConnectMs)) {
        m_writer.pluginDid(m_clock.elapsed(), "await-client");
    } else {
        releaseFarEnd();
        m_channel.drop();
    }
}

/// The plug-in has gone, or has been sent away here.
void RecordingRelay::clientGoes()
{
    if (m_farEnd != nullptr && !m_closing) {
        settleDoubts();
        m_writer.pluginDid(m_clock.elapsed(), "await-gone");
    }
    releaseFarEnd();
    settleEnd();
}

void RecordingRelay::passOn(const QByteArray &bytes)
{
    // The time is taken before the bytes go on: the call process counts its pauses from their arrival, so no recorded
    // pause is shorter than it was.
    m_heardTime = m_clock.elapsed();
    if (m_farEnd != nullptr) {
        m_farEnd->write(bytes);
        m_farEnd->flush();
    }
}

void RecordingRelay::takeAnswer()
{
    const QByteArray bytes = m_farEnd->readAll();
    if (!bytes.isEmpty()) {
        settleDoubts();
        m_writer.written(m_clock.elapsed(), bytes);
        m_channel.write(bytes);
    }
}

void RecordingRelay::subjectCloses()
{
    takeAnswer();
    m_closing = true;
    doubt(m_clock.elapsed(), "drop");
    dropClient();
    settleEnd();
}

/// Closes the plug-in's connection when the call process has closed its own and all it wrote has been passed on.
void RecordingRelay::dropClient()
{
    if (m_closing && m_channel.isAllWritten()) {
        m_channel.drop();
    }
}

/// What may be the beginning of the end is told when it has shown to be none.
void RecordingRelay::doubt(qint64 time, const char *statement)
{
    if (m_quit) {
        return;
    }
    if (m_doubts.empty()) {
        m_doubtTimer.start();
    }
    m_doubts.emplace_back(time, statement);
}

void RecordingRelay::settleDoubts()
{
    m_doubtTimer.stop();
    for (const auto &[time, statement] : std::exchange(m_doubts, {})) {
        m_writer.happened(time, statement);
    }
}

void RecordingRelay::subjectEnds()
{
    m_lookTimer.stop();
    m_doubtTimer.stop();
    m_ended = true;
    settleEnd();
}

/// The end is told when all that the call process wrote before it has been passed on.
void RecordingRelay::settleEnd()
{
    const bool heardOut = m_farEnd == nullptr || m_closing || !m_subject.isChild();
    if (!m_ended || m_told || !heardOut || !m_channel.isAllWritten()) {
        return;
    }
    m_told = true;
    if (!m_wasOpen) {
        emit failed(m_subject.isChild()
                        ? QStringLiteral("the call process ended with %1 before it listened").arg(m_subject.ending())
                        : QStringLiteral("nothing listened at %1").arg(m_subject.socketPath()));
        return;
    }
    tellEnd();
}

void RecordingRelay::tellEnd()
{
    if (m_stopped || !m_subject.isChild()) {
        m_writer.end(m_stopped ? QStringLiteral("The recording was stopped.") : QString());
        emit finished(0, false);
        return;
    }
    const bool killed = m_subject.process().exitStatus() != QProcess::NormalExit;
    const int exitCode = m_subject.process().exitCode();
    const bool failed = killed || exitCode != 0;
    if (!m_quit) {
        m_writer.happened(m_doubts.empty() ? m_clock.elapsed() : m_doubts.front().first, failed ? "die" : "end");
    }
    m_writer.end(failed ? QStringLiteral("The call process ended with %1.").arg(m_subject.ending()) : QString());
    emit finished(exitCode, killed || (failed && !m_quit));
}

void RecordingRelay::releaseFarEnd()
{
    QLocalSocket *farEnd = std::exchange(m_farEnd, nullptr);
    if (farEnd != nullptr) {
        farEnd->disconnect(this);
        farEnd->disconnectFromServer();
        farEnd->deleteLater();
    }
}
