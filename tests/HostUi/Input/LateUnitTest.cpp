#include "Input/LateUnit.h"

#include "Support/TestValues.h"

#include <QKeyEvent>

using namespace vesk;

namespace
{

QKeyEvent Press(QChar character, Qt::KeyboardModifiers modifiers = {})
{
    return {QEvent::KeyPress, character.toUpper().unicode(), modifiers, QString(character)};
}

/// Types after a Space that committed a value, until a key cannot belong to a unit. Returns the
/// whole units, in order.
QStringList Type(LateUnit& unit, const QString& text)
{
    QStringList whole;
    unit.Begin();
    for (const QChar character : text)
    {
        const QKeyEvent press = Press(character);
        if (!unit.CanTake(press))
            break;
        if (unit.Take(press))
            whole << unit.GetText();
    }
    return whole;
}

QString TextOf(const std::vector<KeptKey>& keys)
{
    QString text;
    for (const KeptKey& key : keys)
        text += key.ToEvent().text();
    return text;
}

}

/// Which letters are dropped as a unit that comes too late, and which are handed back.
class LateUnitTest final : public QObject
{
    Q_OBJECT

private slots:
    void lettersAreKeptUntilTheyAreAUnit_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("whole");
        QTest::addColumn<QString>("kept");

        QTest::newRow("two letters") << "cm" << QStringList{"cm"} << "";
        QTest::newRow("half of it") << "c" << QStringList() << "c";
        QTest::newRow("another one") << "k" << QStringList() << "k";
        QTest::newRow("one that may grow") << "m" << QStringList{"m"} << "";
        QTest::newRow("one that has grown") << "mm" << QStringList{"m", "mm"} << "";
        QTest::newRow("inches") << "in" << QStringList{"in"} << "";
        QTest::newRow("inches, half in full") << "inc" << QStringList{"in"} << "c";
        QTest::newRow("inches in full") << "inch" << QStringList{"in", "inch"} << "";
        QTest::newRow("degrees in full") << "deg" << QStringList{"d", "deg"} << "";
        QTest::newRow("sign of a unit") << "\"" << QStringList{"\""} << "";
        QTest::newRow("foot") << "'" << QStringList{"'"} << "";
        QTest::newRow("capitals") << "CM" << QStringList{"CM"} << "";
        QTest::newRow("function") << "cos" << QStringList() << "c";
        QTest::newRow("no unit") << "x" << QStringList() << "";
        QTest::newRow("digit") << "5" << QStringList() << "";
    }

    void lettersAreKeptUntilTheyAreAUnit()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, whole);
        QFETCH(QString, kept);
        LateUnit unit;

        QCOMPARE(Type(unit, text), whole);

        QCOMPARE(TextOf(unit.End()), kept);
    }

    void keyWithAModifierIsNoPartOfAUnit_data()
    {
        QTest::addColumn<int>("modifier");
        QTest::addColumn<bool>("isTaken");

        QTest::newRow("none") << int(Qt::NoModifier) << true;
        QTest::newRow("Shift") << int(Qt::ShiftModifier) << true;
        QTest::newRow("Ctrl") << int(Qt::ControlModifier) << false;
        QTest::newRow("Alt") << int(Qt::AltModifier) << false;
        QTest::newRow("Meta") << int(Qt::MetaModifier) << false;
        QTest::newRow("keypad") << int(Qt::KeypadModifier) << false;
    }

    void keyWithAModifierIsNoPartOfAUnit()
    {
        QFETCH(int, modifier);
        QFETCH(bool, isTaken);
        LateUnit unit;
        unit.Begin();

        QCOMPARE(unit.CanTake(Press('m', Qt::KeyboardModifiers(modifier))), isTaken);
    }

    void keyWithoutATextIsNoPartOfAUnit()
    {
        LateUnit unit;
        unit.Begin();

        QVERIFY(!unit.CanTake(QKeyEvent(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier)));
    }

    void textOfSeveralCharactersIsNoPartOfAUnit()
    {
        LateUnit unit;
        unit.Begin();

        QVERIFY(!unit.CanTake(QKeyEvent(QEvent::KeyPress, Qt::Key_C, Qt::NoModifier, "cm")));
    }

    void keysComeBackOnceAndAsTheyWere()
    {
        LateUnit unit;
        unit.Begin();
        unit.Take(
            QKeyEvent(QEvent::KeyPress, Qt::Key_C, Qt::ShiftModifier, 54, 67, 1, "C", true, 2));

        const std::vector<KeptKey> keys = unit.End();

        QCOMPARE(keys.size(), std::size_t(1));
        const QKeyEvent key = keys[0].ToEvent();
        QCOMPARE(key.type(), QEvent::KeyPress);
        QCOMPARE(key.key(), int(Qt::Key_C));
        QCOMPARE(key.modifiers(), Qt::KeyboardModifiers(Qt::ShiftModifier));
        QCOMPARE(key.nativeScanCode(), quint32(54));
        QCOMPARE(key.nativeVirtualKey(), quint32(67));
        QCOMPARE(key.nativeModifiers(), quint32(1));
        QCOMPARE(key.text(), QString("C"));
        QVERIFY(key.isAutoRepeat());
        QCOMPARE(key.count(), 2);
        QVERIFY(unit.End().empty());
    }

    void noneIsAwaitedBeforeAndAfter()
    {
        LateUnit unit;

        QVERIFY(!unit.IsAwaited());
        QVERIFY(!unit.CanTake(Press('m')));
        Type(unit, "c");
        QVERIFY(unit.IsAwaited());
        unit.End();
        QCOMPARE(unit.GetText(), QString());
        QVERIFY(!unit.IsAwaited());
        QVERIFY(!unit.CanTake(Press('m')));
    }

    void eachBlankBeginsAnew()
    {
        LateUnit unit;
        Type(unit, "c");

        unit.Begin();

        QCOMPARE(unit.GetText(), QString());
        QCOMPARE(TextOf(unit.End()), QString());
    }
};

VESK_TESTS_WITHOUT_WINDOWS(LateUnitTest);
#include "LateUnitTest.moc"
