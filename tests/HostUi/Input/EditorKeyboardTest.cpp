#include "HostUi/InputFixture.h"

#include "Support/TestValues.h"

using namespace vesk;
using namespace vesk::test;

namespace
{

/// An open editor into which two digits were typed after the one that opened it.
struct Fixture : InputFixture
{
    Fixture() : InputFixture(Linear())
    {
        Type("7");
        PressInEditor(Qt::Key_8, "8");
        PressInEditor(Qt::Key_Left);
        PressInEditor(Qt::Key_9, "9");
    }

    void PressInEditor(int key, const QString& text = QString(),
                       Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
        QCoreApplication::sendEvent(Editor(), &press);
    }

    /// Whether the editor wants a key for itself that is a shortcut elsewhere.
    bool Claims(int key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) const
    {
        QKeyEvent shortcut(QEvent::ShortcutOverride, key, modifiers);
        shortcut.ignore();
        QCoreApplication::sendEvent(Editor(), &shortcut);
        return shortcut.isAccepted();
    }

    void UndoAll() const
    {
        while (Editor()->isUndoAvailable())
            PressInEditor(Qt::Key_Z, QString(), Qt::ControlModifier);
    }
};

}

class EditorKeyboardTest final : public QObject
{
    Q_OBJECT

private slots:
    void theTextIsUndoneWhileThereIsSomethingToUndo()
    {
        Fixture f;
        QVERIFY(f.Claims(Qt::Key_Z));

        f.UndoAll();

        QCOMPARE(f.Editor()->text(), QString("7"));
        QVERIFY(!f.Claims(Qt::Key_Z));
    }

    void theTextIsRedoneWhileThereIsSomethingToRedo_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");

        QTest::newRow("Ctrl+Y") << int(Qt::Key_Y) << Qt::KeyboardModifiers(Qt::ControlModifier);
        QTest::newRow("Ctrl+Shift+Z")
            << int(Qt::Key_Z) << (Qt::ControlModifier | Qt::ShiftModifier);
    }

    void theTextIsRedoneWhileThereIsSomethingToRedo()
    {
        QFETCH(int, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        Fixture f;
        const QString text = f.Editor()->text();
        QVERIFY(!f.Claims(key, modifiers));
        f.UndoAll();
        QVERIFY(f.Claims(key, modifiers));

        while (f.Editor()->isRedoAvailable())
            f.PressInEditor(key, QString(), modifiers);

        QCOMPARE(f.Editor()->text(), text);
        QVERIFY(!f.Claims(key, modifiers));
    }

    void otherKeysAreClaimedAsEver()
    {
        Fixture f;
        f.UndoAll();

        QVERIFY(f.Claims(Qt::Key_A));
        QVERIFY(f.Claims(Qt::Key_Delete, Qt::NoModifier));
        QVERIFY(!f.Claims(Qt::Key_L));
    }
};

VESK_TESTS(EditorKeyboardTest);
#include "EditorKeyboardTest.moc"
