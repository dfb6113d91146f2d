#pragma once

// The parts of a call window by the names of its form.

#include "ui/ConferenceListView.h"
#include "ui/VoipWidget.h"

#include <QLabel>
#include <QStackedWidget>

struct ShownCall
{
    explicit ShownCall(CVoipWidget &window) : w(window) {}

    QLabel *label(const char *name) const { return w.findChild<QLabel *>(QLatin1String(name)); }
    QString text(const char *name) const { return label(name)->text(); }
    /// The page that a stack shows.
    int page(const char *name) const { return w.findChild<QStackedWidget *>(QLatin1String(name))->currentIndex(); }
    QWidget *part(const char *name) const { return w.findChild<QWidget *>(QLatin1String(name)); }
    /// The rows of the member list.
    QAbstractItemModel *rows() const { return w.findChild<CConferenceListView *>()->model(); }

    CVoipWidget &w;
};
