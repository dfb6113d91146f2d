#pragma once

// The conference centre: the window in which the user sees past conferences, their details, and starts new ones.
//
// It reads all records once, when it is made, and keeps them. The call manager creates it without a parent, owns it,
// tells it of new records, deletes a record from the store on its signal, and destroys it when it is closed. Lives on
// the GUI thread. It does not count for Qt's quit-on-last-window-closed, so that its close never ends a host that has
// no other window open.

#include "store/DBConfInfo.h"

#include <QMap>
#include <QPoint>
#include <QWidget>

#include <memory>

namespace Ui {
class CVoiceConferenceWidget;
}

class CVoiceConferenceWidget : public QWidget
{
    Q_OBJECT

public:
    /// Builds the hidden window with all records of the user's store. `parent` may be null; Qt's ownership applies.
    explicit CVoiceConferenceWidget(QWidget *parent = nullptr);
    ~CVoiceConferenceWidget() override;

    /// Shows a new record on top of the others. An empty conference id, or a known one, does nothing.
    void addConferenceInfo(ConfInfoData confInfo);

signals:
    /// The window is closing.
    void signal_VoiceConfWidgetClose();
    /// The user has deleted a record. It is gone from the window; the store is the receiver's business.
    void signal_DeleteConfInfoData(QString strConfID);

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

    /// Escape leads from the details to the list, and from there out of the window.
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private slots:
    void slot_close();
    void slot_ShowConfDetail(QString strConfID);
    void slot_BackToConfListPage();
    void slot_CreatConferencePage();
    void slot_ReCallConf(QString strConfID);
    void slot_DeleteConfInfo(QString strConfID);

private:
    void initWidget();
    void initTitle();
    void initButtons();
    void setTips();
    void setUpKeys();
    void nameParts();
    bool isFocusShown() const;
    void showFocus();
    void insetDetailPage();
    void connectParts();
    void initListView();
    void showPage(int iPage);

    std::unique_ptr<Ui::CVoiceConferenceWidget> ui;
    QPoint m_dragOffset;                       ///< of the cursor from the window's corner; (0,0) while no drag is on
    QMap<QString, ConfInfoData> m_confInfoMap; ///< all records by conference id
};
