#pragma once

// What painting costs: how much of a widget is painted how often, and whether files are opened for it. GUI thread.

#include <QCoreApplication>
#include <QFile>
#include <QPaintEvent>
#include <QRegion>
#include <QStringList>
#include <QWidget>

#include <sys/inotify.h>
#include <unistd.h>

/// The repaints of a widget and what they covered.
class Repaints : public QObject
{
public:
    /// Counts from here on, with nothing due.
    explicit Repaints(QWidget *pWidget) : m_pWidget(pWidget)
    {
        pWidget->repaint();
        pWidget->installEventFilter(this);
    }
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            m_regions.append(static_cast<QPaintEvent *>(event)->region());
        }
        return false;
    }
    int count() const { return m_regions.size(); }
    QRegion last() const { return m_regions.last(); }

    /// Whether anything waits to be painted: a repaint of one pixel takes along what is due.
    bool isAnyDue() const
    {
        const QRect pixel(0, 0, 1, 1);
        m_pWidget->repaint(pixel);
        return last() != QRegion(pixel);
    }

private:
    QWidget *m_pWidget;
    QList<QRegion> m_regions;
};

/// Whether the files that are watched have been opened since the last look.
class OpenedFiles
{
public:
    explicit OpenedFiles(const QStringList &files) : m_iQueue(inotify_init1(IN_NONBLOCK))
    {
        for (const QString &strFile : files) {
            inotify_add_watch(m_iQueue, QFile::encodeName(strFile).constData(), IN_OPEN);
        }
    }
    ~OpenedFiles() { close(m_iQueue); }
    OpenedFiles(const OpenedFiles &) = delete;
    OpenedFiles &operator=(const OpenedFiles &) = delete;
    bool any() const
    {
        char events[4096];
        return read(m_iQueue, events, sizeof events) > 0;
    }

private:
    int m_iQueue;
};
