#include "HostUi/InputFixture.h"

#include "Command/IActionManager.h"
#include "Input/KeptKey.h"
#include "Support/TestValues.h"

using namespace vesk;
using namespace vesk::test;

namespace
{

/// A user who types faster than the chosen command starts.
struct HeldFixture : InputFixture
{
    HeldFixture() : InputFixture(Linear()) {}

    /// Runs something while the same command waits for the running action to end.
    void DoMeanwhile(const std::function<void()>& act)
    {
        host.view.SetOnRedraw([act] {
            ActionManager::SendCommand(L"Test", {}, nullptr);
            act();
        });
        ActionManager::ProcessMouseMove(&host.view, Vector3d::Zero());
    }

    bool PressInView(int key, const QString& text = QString(), bool isAutoRepeat = false)
    {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text, isAutoRepeat);
        press.ignore();
        return controller.OnViewKey(press) && press.isAccepted();
    }

    void ReleaseInView(int key)
    {
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&host.view, &release);
    }
};

/// Records the last key pressed in an editor.
class KeyWatch final : public QObject
{
public:
    KeyWatch() { qApp->installEventFilter(this); }

    std::optional<KeptKey> last;

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override
    {
        if (pEvent->type() == QEvent::KeyPress && qobject_cast<QLineEdit*>(pWatched) != nullptr)
            last.emplace(static_cast<const QKeyEvent&>(*pEvent));
        return false;
    }
};

}

/// What is typed while a command waits belongs to the command.
class DimensionInputControllerHeldTest final : public QObject
{
    Q_OBJECT

private slots:
    void keysAreTypedInTheirOrderOnceTheCommandHasBegun()
    {
        HeldFixture f;

        f.DoMeanwhile([&f] {
            QVERIFY(f.PressInView(Qt::Key_5, "5"));
            QVERIFY(f.PressInView(Qt::Key_7, "7"));
            QVERIFY(f.script.heard.empty());
        });

        QCOMPARE(f.Editor()->text(), QString("57"));
        QCOMPARE(f.script.heard.size(), std::size_t(1));
    }

    void keyOfTheOpenEditorIsTheNextCommands()
    {
        HeldFixture f;
        f.Type("5");
        const QPointer<QLineEdit> pFormer = f.Editor();

        f.DoMeanwhile([pFormer] {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_7, Qt::NoModifier, "7");
            QCoreApplication::sendEvent(pFormer, &press);
            QCOMPARE(pFormer->text(), QString("5"));
        });

        QVERIFY(pFormer == nullptr);
        QCOMPARE(f.Editor()->text(), QString("7"));
    }

    void keyIsHandedOnAsItWas()
    {
        HeldFixture f;
        KeyWatch watch;

        f.DoMeanwhile([&f] {
            f.PressInView(Qt::Key_5, "5");
            QKeyEvent press(QEvent::KeyPress, Qt::Key_B, Qt::ShiftModifier, "B", true, 3);
            f.controller.OnViewKey(press);
        });

        QVERIFY(watch.last.has_value());
        const QKeyEvent last = watch.last->ToEvent();
        QCOMPARE(last.key(), int(Qt::Key_B));
        QCOMPARE(last.modifiers(), Qt::KeyboardModifiers(Qt::ShiftModifier));
        QCOMPARE(last.text(), QString("B"));
        QVERIFY(last.isAutoRepeat());
        QCOMPARE(last.count(), 3);
    }

    void escapeIsTheNextActionsToo()
    {
        HeldFixture f;

        f.DoMeanwhile([&f] {
            QVERIFY(f.PressInView(Qt::Key_Escape));
            f.ReleaseInView(Qt::Key_Escape);
        });

        QVERIFY(IActionManager::CurrentAction() == nullptr);
    }

    void escapeAfterADigitEndsTheInputAndNothingElse()
    {
        HeldFixture f;

        f.DoMeanwhile([&f] {
            f.PressInView(Qt::Key_5, "5");
            f.PressInView(Qt::Key_Escape);
            f.ReleaseInView(Qt::Key_Escape);
        });

        QCOMPARE(f.script.heard.size(), std::size_t(1));
        QVERIFY(!TemporaryDimensionMgr::GetInstance()->IsInputting());
        QVERIFY(IActionManager::CurrentAction() != nullptr);
    }

    void heldEscapeCountsOnce()
    {
        HeldFixture f;

        f.DoMeanwhile([&f] {
            f.PressInView(Qt::Key_5, "5");
            f.PressInView(Qt::Key_Escape);
            QVERIFY(f.PressInView(Qt::Key_Escape, {}, true));
            f.ReleaseInView(Qt::Key_Escape);
        });

        QVERIFY(!TemporaryDimensionMgr::GetInstance()->IsInputting());
        QVERIFY(IActionManager::CurrentAction() != nullptr);
    }

    void digitAfterEscapeBeginsAnew()
    {
        HeldFixture f;

        f.DoMeanwhile([&f] {
            f.PressInView(Qt::Key_5, "5");
            f.PressInView(Qt::Key_Escape);
            f.ReleaseInView(Qt::Key_Escape);
            f.PressInView(Qt::Key_7, "7");
        });

        QCOMPARE(f.Editor()->text(), QString("7"));
        QVERIFY(TemporaryDimensionMgr::GetInstance()->IsInputting());
    }
};

VESK_TESTS(DimensionInputControllerHeldTest);
#include "DimensionInputControllerHeldTest.moc"
