#include "Recovery/RecoveryBar.h"

#include "Recovery/UnsavedWork.h"

#include "Support/TestValues.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QWidget>

namespace
{

UnsavedWork WorkAt(const QDateTime& time)
{
    UnsavedWork work;
    work.time = time;
    work.steps = 37;
    return work;
}

QDateTime TodayAt(int hours, int minutes)
{
    return {QDate::currentDate(), QTime(hours, minutes)};
}

}

/// The bar that offers unsaved work.
class RecoveryBarTest final : public QObject
{
    Q_OBJECT

private slots:
    void theOfferSaysWhatWhenAndHowMuch_data()
    {
        QTest::addColumn<QDateTime>("time");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<int>("others");
        QTest::addColumn<QString>("text");

        const QDateTime old(QDate(2026, 3, 4), QTime(9, 5));
        QTest::newRow("today") << TodayAt(14, 32) << "直线" << 0
                               << "上次未正常结束：直线，14:32，37 步";
        QTest::newRow("another day")
            << old << "直线" << 0 << "上次未正常结束：直线，2026-03-04 09:05，37 步";
        QTest::newRow("no command")
            << TodayAt(0, 1) << QString() << 0 << "上次未正常结束：00:01，37 步";
        QTest::newRow("several") << TodayAt(14, 32) << "圆" << 2
                                 << "上次未正常结束：圆，14:32，37 步；另有 2 个";
    }

    void theOfferSaysWhatWhenAndHowMuch()
    {
        QFETCH(QDateTime, time);
        QFETCH(QString, caption);
        QFETCH(int, others);
        RecoveryBar bar;

        bar.Offer(WorkAt(time), caption, others);

        QFETCH(QString, text);
        QCOMPARE(bar.findChild<QLabel*>("RecoveryText")->text(), text);
        QCOMPARE(bar.findChild<QLabel*>("RecoveryText")->toolTip(), text);
        QCOMPARE(bar.accessibleName(), text);
    }

    void damageIsSaid()
    {
        RecoveryBar bar;
        UnsavedWork work = WorkAt(TodayAt(1, 2));
        work.isReadInFull = false;

        bar.Offer(work, "圆", 0);

        QCOMPARE(
            bar.findChild<QLabel*>("RecoveryText")->text(),
            QStringLiteral("上次未正常结束：圆，01:02，37 步（日志有损坏，可恢复损坏之前的部分）"));
    }

    void eachButtonIsOneChoice_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QByteArray>("choice");

        QTest::newRow("go on") << "RecoveryGoOn" << QByteArray(SIGNAL(goOnRequested()));
        QTest::newRow("look") << "RecoveryLook" << QByteArray(SIGNAL(lookRequested()));
        QTest::newRow("leave") << "RecoveryLeave" << QByteArray(SIGNAL(leaveRequested()));
        QTest::newRow("postpone") << "RecoveryPostpone" << QByteArray(SIGNAL(postponed()));
    }

    void eachButtonIsOneChoice()
    {
        QFETCH(QString, button);
        QFETCH(QByteArray, choice);
        RecoveryBar bar;
        QSignalSpy goOn(&bar, SIGNAL(goOnRequested()));
        QSignalSpy look(&bar, SIGNAL(lookRequested()));
        QSignalSpy leave(&bar, SIGNAL(leaveRequested()));
        QSignalSpy postpone(&bar, SIGNAL(postponed()));
        const QSignalSpy chosen(&bar, choice.constData());

        bar.findChild<QPushButton*>(button)->click();

        QCOMPARE(chosen.count(), 1);
        QCOMPARE(goOn.count() + look.count() + leave.count() + postpone.count(), 1);
    }

    void theFocusComesOnlyByKeys()
    {
        QWidget window;
        auto* pView = new QPushButton("view");
        auto* pBar = new RecoveryBar;
        auto* pLayout = new QVBoxLayout(&window);
        pLayout->addWidget(pView);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        pView->setFocus();

        pLayout->addWidget(pBar);
        pBar->show();
        QCoreApplication::processEvents();
        QTest::mouseClick(pBar->findChild<QPushButton*>("RecoveryLook"), Qt::LeftButton);
        QCOMPARE(QApplication::focusWidget(), pView);

        QTest::keyClick(pView, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), pBar->findChild<QPushButton*>("RecoveryGoOn"));
    }
};

VESK_TESTS(RecoveryBarTest);
#include "RecoveryBarTest.moc"
