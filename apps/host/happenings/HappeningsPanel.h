#pragma once

#include "happenings/HappeningsFeed.h"
#include "happenings/HappeningsModel.h"

#include <QPersistentModelIndex>
#include <QWidget>

#include <memory>

class CallService;
class HostSession;

namespace Ui {
class HappeningsPanel;
}

/// The side panel "What happens": every event between client and plug-in and every line between plug-in and call
/// process, as they come, in words; with a filter, a pause, the raw text of the row one stands on, and a way to copy it
/// all. It collects while it is hidden too. GUI thread; the session must outlive it.
class HappeningsPanel : public QWidget
{
    Q_OBJECT

public:
    /// `strTraceFile` is where the call process that is about to be started writes its trace; empty for none. Another
    /// one that the plug-in is connected to is followed where it writes its own; where it writes none, the panel says
    /// so, and how to get one, and only events show.
    HappeningsPanel(HostSession &session, const QString &strTraceFile, QWidget *parent = nullptr);
    ~HappeningsPanel() override;

    /// Wide enough for most sentences.
    QSize sizeHint() const override;

    /// All rows, whatever the filter shows.
    const HappeningsModel &model() const { return m_model; }

    /// Where the rows come from. For tests.
    HappeningsFeed &feed() { return m_feed; }

protected:
    /// Says everything anew when the language changes.
    void changeEvent(QEvent *event) override;

private:
    void setUpView();
    void takeTrace();
    void setUpActions();
    void connectFilter();
    void setFollowing(bool bFollow);
    void noteScrolled(int iValue);
    void rememberPlace();
    void restorePlace();
    void showDetail();
    void showCount();
    void clear();
    void copy();
    void copyRows(const QModelIndexList &rows);
    QModelIndexList selectedRows() const;
    QModelIndexList shownRows() const;

    std::unique_ptr<Ui::HappeningsPanel> ui;
    const CallService &m_service;
    HappeningsModel m_model;
    HappeningsFilter m_filter;
    HappeningsFeed m_feed;
    QPersistentModelIndex m_top;
    bool m_bTaking = false;
};
