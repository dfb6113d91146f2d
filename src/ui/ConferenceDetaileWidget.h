#pragma once

// The conference centre's second page: who created a conference, when, how long it lasted, and a grid of its members.
// It only shows. Part of the conference centre, which owns it and drives it. GUI thread only.

#include "store/DBConfInfo.h"

#include <QWidget>

#include <memory>

struct ShownContact;

namespace Ui {
class CConferenceDetaileWidget;
}

class CConferenceDetaileWidget : public QWidget
{
    Q_OBJECT

public:
    /// An empty page. `parent` may be null.
    explicit CConferenceDetaileWidget(QWidget *parent = nullptr);
    ~CConferenceDetaileWidget() override;

    /// Shows the record; of an unknown creator the default head. What has no value in it stays from the record before:
    /// the creator's name, and the members. The caller clears first.
    void setConferenceDetail(ConfInfoData confInfo);

    /// Empties the page.
    void clearDetail();

protected:
    void changeEvent(QEvent *event) override;

private:
    void initWidget();
    void nameDirection();
    void showCreator(const ShownContact &creator);

    std::unique_ptr<Ui::CConferenceDetaileWidget> ui;
    ConfInfoData m_confInfoData;
};
