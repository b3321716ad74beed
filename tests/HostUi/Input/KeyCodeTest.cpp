#include "Input/KeyCode.h"

#include "Dimension/InputField.h"

#include "Support/TestValues.h"

#include <QKeyEvent>

Q_DECLARE_METATYPE(Qt::KeyboardModifiers)

class KeyCodeTest final : public QObject
{
    Q_OBJECT

private slots:
    void keysBecomeTheCodesOfDimensionHandlers_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<int>("code");

        const Qt::KeyboardModifiers none = Qt::NoModifier;
        const Qt::KeyboardModifiers keypad = Qt::KeypadModifier;
        const Qt::KeyboardModifiers shift = Qt::ShiftModifier;
        const Qt::KeyboardModifiers ctrl = Qt::ControlModifier;
        const Qt::KeyboardModifiers meta = Qt::MetaModifier;
        const Qt::KeyboardModifiers alt = Qt::AltModifier;
        QTest::newRow("0") << int(Qt::Key_0) << none << 48;
        QTest::newRow("9") << int(Qt::Key_9) << none << 57;
        QTest::newRow("a") << int(Qt::Key_A) << none << 65;
        QTest::newRow("Z") << int(Qt::Key_Z) << shift << 90;
        QTest::newRow("keypad 0") << int(Qt::Key_0) << keypad << 96;
        QTest::newRow("keypad 9") << int(Qt::Key_9) << keypad << 105;
        QTest::newRow("keypad minus") << int(Qt::Key_Minus) << keypad << 109;
        QTest::newRow("keypad Return") << int(Qt::Key_Enter) << keypad << 0;
        QTest::newRow("minus") << int(Qt::Key_Minus) << none << 189;
        QTest::newRow("comma") << int(Qt::Key_Comma) << none << 188;
        QTest::newRow("shifted comma") << int(Qt::Key_Less) << shift << 188;
        QTest::newRow("German shifted comma") << int(Qt::Key_Semicolon) << shift << 188;
        QTest::newRow("less alone") << int(Qt::Key_Less) << none << 0;
        QTest::newRow("semicolon alone") << int(Qt::Key_Semicolon) << none << 0;
        QTest::newRow("back quote") << int(Qt::Key_QuoteLeft) << none << 0;
        QTest::newRow("Ctrl+1") << int(Qt::Key_1) << ctrl << 0;
        QTest::newRow("Meta+1") << int(Qt::Key_1) << meta << 0;
        QTest::newRow("Alt+P") << int(Qt::Key_P) << alt << 80;
        QTest::newRow("F1") << int(Qt::Key_F1) << none << 0;
        QTest::newRow("Return") << int(Qt::Key_Return) << none << 0;
    }

    void keysBecomeTheCodesOfDimensionHandlers()
    {
        QFETCH(int, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);

        const QKeyEvent event(QEvent::KeyPress, key, modifiers);

        QTEST(vesk::ToVirtualKey(event), "code");
    }

    void printableCharactersCanBeginAValue_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<bool>("canBegin");

        const Qt::KeyboardModifiers none = Qt::NoModifier;
        const Qt::KeyboardModifiers alt = Qt::AltModifier;
        QTest::newRow("point") << "." << none << true;
        QTest::newRow("minus") << "-" << none << true;
        QTest::newRow("plus") << "+" << none << true;
        QTest::newRow("bracket") << "(" << none << true;
        QTest::newRow("letter") << "s" << none << true;
        QTest::newRow("digit") << "5" << none << true;
        QTest::newRow("decimal comma") << "," << none << true;
        QTest::newRow("Shift+comma") << "<" << Qt::KeyboardModifiers(Qt::ShiftModifier) << false;
        QTest::newRow("blank") << " " << none << false;
        QTest::newRow("control") << "\r" << none << false;
        QTest::newRow("none") << "" << none << false;
        QTest::newRow("two characters") << "ab" << none << false;
        QTest::newRow("Alt+point") << "." << alt << false;
        QTest::newRow("Ctrl+letter") << "s" << Qt::KeyboardModifiers(Qt::ControlModifier) << false;
        QTest::newRow("Meta+letter") << "s" << Qt::KeyboardModifiers(Qt::MetaModifier) << false;
    }

    void printableCharactersCanBeginAValue()
    {
        QFETCH(QString, text);
        QFETCH(Qt::KeyboardModifiers, modifiers);

        const QKeyEvent event(QEvent::KeyPress, Qt::Key_unknown, modifiers, text);

        QTEST(vesk::CanBeginValue(event), "canBegin");
    }

    void keysThatOnlyModifyOthersAreTold_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("isModifier");

        QTest::newRow("Shift") << int(Qt::Key_Shift) << true;
        QTest::newRow("Ctrl") << int(Qt::Key_Control) << true;
        QTest::newRow("Meta") << int(Qt::Key_Meta) << true;
        QTest::newRow("Alt") << int(Qt::Key_Alt) << true;
        QTest::newRow("Caps Lock") << int(Qt::Key_CapsLock) << true;
        QTest::newRow("Num Lock") << int(Qt::Key_NumLock) << true;
        QTest::newRow("Scroll Lock") << int(Qt::Key_ScrollLock) << true;
        QTest::newRow("AltGr") << int(Qt::Key_AltGr) << true;
        QTest::newRow("letter") << int(Qt::Key_A) << false;
        QTest::newRow("Page Down") << int(Qt::Key_PageDown) << false;
        QTest::newRow("F1") << int(Qt::Key_F1) << false;
    }

    void keysThatOnlyModifyOthersAreTold()
    {
        QFETCH(int, key);

        const QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);

        QTEST(vesk::IsModifierKey(event), "isModifier");
    }

    void keysThatTakeAValueAreTheFields_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("takesAlways");
        QTest::addColumn<bool>("takesWithSpace");
        QTest::addColumn<bool>("takesWithTab");

        QTest::newRow("Return") << int(Qt::Key_Return) << true << true << true;
        QTest::newRow("Enter") << int(Qt::Key_Enter) << true << true << true;
        QTest::newRow("Space") << int(Qt::Key_Space) << false << true << false;
        QTest::newRow("Tab") << int(Qt::Key_Tab) << false << false << true;
        QTest::newRow("Shift+Tab") << int(Qt::Key_Backtab) << false << false << false;
        QTest::newRow("Escape") << int(Qt::Key_Escape) << false << false << false;
        QTest::newRow("digit") << int(Qt::Key_5) << false << false << false;
    }

    void keysThatTakeAValueAreTheFields()
    {
        QFETCH(int, key);
        vesk::InputField withSpace;
        withSpace.takesWithSpace = true;
        vesk::InputField withTab;
        withTab.next = vesk::InputState::IS_Angle;

        QTEST(vesk::TakesValue(vesk::InputField(), key), "takesAlways");
        QTEST(vesk::TakesValue(withSpace, key), "takesWithSpace");
        QTEST(vesk::TakesValue(withTab, key), "takesWithTab");
    }
};

VESK_TESTS_WITHOUT_WINDOWS(KeyCodeTest);
#include "KeyCodeTest.moc"
