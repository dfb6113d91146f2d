#pragma once

// The detail page of the conference centre, which owns it and drives it. GUI thread only.

#include "store/DBConfInfo.h"

#include <QWidget>

class CConferenceDetaileWidget : public QWidget
{
    Q_OBJECT

public:
    /// An empty page. `parent` may be null.
    explicit CConferenceDetaileWidget(QWidget *parent = nullptr) : QWidget(parent) {}

    /// Shows this record.
    void setConferenceDetail(ConfInfoData confInfo) { m_confInfoData = confInfo; }

    /// Shows nothing.
    void clearDetail() { m_confInfoData = ConfInfoData(); }

private:
    ConfInfoData m_confInfoData;
};
