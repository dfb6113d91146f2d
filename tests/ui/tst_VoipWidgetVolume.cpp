// The call window's volume sliders, and its snapshot of the video.

#include "CallWindowTest.h"

#include "common/pictures/PictureNames.h"
#include "fakes/FileBytes.h"
#include "fakes/Patience.h"
#include "fakes/QtMessages.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QRegularExpression>
#include <QSlider>
#include <QStandardPaths>

#include <unistd.h>

class tst_VoipWidgetVolume : public CallWindowTest
{
    Q_OBJECT

private:
    /// Saves the dialog's picture under that name as soon as it is open; an empty name cancels.

    void answerDialog(const QString &strName, QStringList *pSeen = nullptr)
    {
        QTimer::singleShot(0, this, [this, strName, pSeen] {
            auto *pDialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            QVERIFY(pDialog != nullptr);
            auto *pName = pDialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
            if (pSeen != nullptr) {
                *pSeen = QStringList{pDialog->windowTitle(), pDialog->nameFilters().join(QStringLiteral(";;")),
                                     pDialog->directory().path(), pName->text()};
            }
            if (strName.isEmpty()) {
                pDialog->reject();
                return;
            }
            pName->setText(strName);
            // A file of that name brings up the question whether it may be replaced.
            if (QFile::exists(strName)) {
                QTimer::singleShot(0, this, [] {
                    auto *pQuestion = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
                    QVERIFY(pQuestion != nullptr);
                    pQuestion->button(QMessageBox::Yes)->click();
                });
            }
            QMetaObject::invokeMethod(pDialog, "accept");
        });
    }

    /// A red surface on the video page.

    QWidget *showVideo()
    {
        auto *pSurface = new QWidget;
        pSurface->setAutoFillBackground(true);
        pSurface->setPalette(QPalette(Qt::red));
        m_pWindow->addVoipWidget(pSurface);
        startCall(CVoipWidget::Video, true);
        showWindow();
        newRecords();
        return pSurface;
    }

private slots:
    void volumeGoesOutUnchanged_data()
    {
        QTest::addColumn<qlonglong>("volume");
        QTest::newRow("none") << Q_INT64_C(0);
        QTest::newRow("full") << Q_INT64_C(10);
        QTest::newRow("negative") << Q_INT64_C(-3);
        QTest::newRow("more than 32 bits") << Q_INT64_C(5000000000);
    }

    void volumeGoesOutUnchanged()
    {
        QFETCH(qlonglong, volume);
        m_pWindow->SetVoipMicVolume(volume);
        m_pWindow->SetVoipSpeakerVolume(volume);
        QCOMPARE(m_sent, (QStringList{QStringLiteral("micvolume=%1").arg(volume),
                                      QStringLiteral("speakervolume=%1").arg(volume)}));
    }

    void slidersSendTheirValue()
    {
        part<QSlider>("m_pMicSlider")->setValue(10);
        part<QSlider>("m_pMicSlider")->setValue(0);
        part<QSlider>("m_pSpeakerSlider")->setValue(7);
        part<QSlider>("m_pSpeakerSlider")->setValue(99);
        QCOMPARE(m_sent, (QStringList{"micvolume=10", "micvolume=0", "speakervolume=7", "speakervolume=10"}));
    }

    void clicksHideTheSliders()
    {
        startCall(CVoipWidget::Voice, true);
        showWindow();
        auto *pMic = part<QSlider>("m_pMicSlider");
        auto *pSpeaker = part<QSlider>("m_pSpeakerSlider");
        pMic->show();
        pSpeaker->show();
        press("btnMic");
        QVERIFY(pMic->isHidden());
        QVERIFY(!pSpeaker->isHidden());
        press("btnSpeaker");
        QVERIFY(pSpeaker->isHidden());
    }

    void hideSlotsHideTheSliders()
    {
        auto *pMic = part<QSlider>("m_pMicSlider");
        auto *pSpeaker = part<QSlider>("m_pSpeakerSlider");
        pMic->show();
        pSpeaker->show();
        call("slot_MicSilderHide");
        QVERIFY(pMic->isHidden());
        QVERIFY(!pSpeaker->isHidden());
        call("slot_SpeakerSilderHide");
        QVERIFY(pSpeaker->isHidden());
    }

    void timersHideTheirSliderOnce_data()
    {
        QTest::addColumn<QByteArray>("timer");
        QTest::newRow("m_pMicSlider") << QByteArray("m_micSliderTimer");
        QTest::newRow("m_pSpeakerSlider") << QByteArray("m_speakerSliderTimer");
    }

    void timersHideTheirSliderOnce()
    {
        QFETCH(QByteArray, timer);
        auto *pSlider = part<QSlider>(QTest::currentDataTag());
        auto *pTimer = m_pWindow->findChild<QTimer *>(QLatin1String(timer));
        QVERIFY(!pTimer->isActive());
        pSlider->show();
        pTimer->start(0);
        QTRY_VERIFY_WITH_TIMEOUT(pSlider->isHidden(), cPatienceMs);
        QVERIFY(!pTimer->isActive());
    }

    void enablesAndVolumesGoToTheDebugChannel()
    {
        const QtMessages messages;
        press("btnMic");
        press("btnSpeaker");
        press("btnSpeaker");
        press("btnCamera");
        m_pWindow->SetVoipMicVolume(7);
        m_pWindow->SetVoipSpeakerVolume(-8);
        // The speaker's line has the microphone's words.
        const QStringList expected{"SetMicEnable = false",     "SetMicEnable = false", "SetMicEnable = true",
                                   "SetCamreraEnable = false", "SetMicVolume = 7",     "SetSpeakerVolume = -8"};
        QCOMPARE(messages.debugLines, expected);
    }

    void snapshotIsSaved()
    {
        showVideo();
        QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::DesktopLocation));
        QStringList seen;
        const QString strPath = QDir::current().absoluteFilePath(QStringLiteral("shot.png"));
        answerDialog(strPath, &seen);
        call("slot_CaptureButtonClicked");

        const QImage picture(strPath);
        QCOMPARE(picture.size(), part<QWidget>("playFramWidget")->geometry().size());
        QCOMPARE(picture.pixelColor(200, 150), QColor(Qt::red));
        QCOMPARE(seen.at(0), QStringLiteral("savepic"));
        QCOMPARE(seen.at(1), PictureNames::getPicSaveSuffixes(QStringLiteral(".jpg")));
        QCOMPARE(seen.at(2), QStandardPaths::writableLocation(QStandardPaths::DesktopLocation));
        const QRegularExpression proposed(QStringLiteral("^tarvoPhoto\\d{17}\\.jpg$"));
        QVERIFY2(proposed.match(seen.at(3)).hasMatch(), qPrintable(seen.at(3)));
        QCOMPARE(newRecords(), QStringList{"VoipWidget.cpp: click capture button!"});
    }

    void snapshotTakesThePlaceInTheParent()
    {
        showVideo();
        part<QWidget>("videoDisplayPage")->layout()->setContentsMargins(30, 20, 0, 0);
        QTRY_COMPARE_WITH_TIMEOUT(part<QWidget>("playFramWidget")->pos(), QPoint(30, 20), cPatienceMs);
        const QString strPath = QDir::current().absoluteFilePath(QStringLiteral("moved.png"));
        answerDialog(strPath);
        call("slot_CaptureButtonClicked");
        const QImage picture(strPath);
        QCOMPARE(picture.size(), part<QWidget>("playFramWidget")->size());
        QCOMPARE(picture.pixelColor(0, 0), QColor(Qt::red));
        QCOMPARE(picture.pixelColor(picture.width() - 31, picture.height() - 21), QColor(Qt::red));
        // As far as the widget stands away from its parent's corner, there is nothing of it.
        QVERIFY(picture.pixelColor(picture.width() - 30, 50) != QColor(Qt::red));
        QVERIFY(picture.pixelColor(50, picture.height() - 20) != QColor(Qt::red));
    }

    void snapshotIsOfTheMomentBeforeTheDialog()
    {
        QWidget *pSurface = showVideo();
        const QString strPath = QDir::current().absoluteFilePath(QStringLiteral("before.png"));
        QTimer::singleShot(0, this, [pSurface] { pSurface->setPalette(QPalette(Qt::blue)); });
        answerDialog(strPath);
        call("slot_CaptureButtonClicked");
        QCOMPARE(QImage(strPath).pixelColor(200, 150), QColor(Qt::red));
        QCOMPARE(pSurface->palette().color(QPalette::Window), QPalette(Qt::blue).color(QPalette::Window));
    }

    void snapshotReplacesAFile()
    {
        showVideo();
        const QString strPath = QDir::current().absoluteFilePath(QStringLiteral("old.jpg"));
        QVERIFY(writeFile(strPath, "old"));
        // A second name of the old file: it is taken away, not written over.
        QCOMPARE(link("old.jpg", "kept.jpg"), 0);
        answerDialog(strPath);
        call("slot_CaptureButtonClicked");
        QCOMPARE(QImage(strPath).size(), part<QWidget>("playFramWidget")->geometry().size());
        QCOMPARE(readBytes(QStringLiteral("kept.jpg")), QByteArray("old"));
    }

    void cancelledSnapshotSavesNothing()
    {
        showVideo();
        const QStringList before = QDir::current().entryList();
        answerDialog(QString());
        call("slot_CaptureButtonClicked");
        QCOMPARE(QDir::current().entryList(), before);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_VoipWidgetVolume, Widgets)

#include "tst_VoipWidgetVolume.moc"
