#include "Panes/PropertyPaneFixture.h"

#include <cstddef>

using namespace vesk;
using namespace vesk::test;
using Fixture = PropertyPaneFixture;

/// Texts typed into a field of the pane: how they are read, and what happens to them.
class PropertyPaneTextTest final : public QObject
{
    Q_OBJECT

private slots:
    void aTextIsReadAsInTheEditorOfADimension_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("radius");

        QTest::newRow("number") << "12.5" << 12.5;
        QTest::newRow("between blanks") << " 12.5 " << 12.5;
        QTest::newRow("decimal comma") << "3,5" << 3.5;
        QTest::newRow("unit") << "5cm" << 50.0;
        QTest::newRow("unit after a blank") << "5 cm" << 50.0;
        QTest::newRow("formula") << "900+50" << 950.0;
        QTest::newRow("formula with units") << "1m-5cm" << 950.0;
        QTest::newRow("inches") << "2in" << 50.8;
    }

    void aTextIsReadAsInTheEditorOfADimension()
    {
        QFETCH(QString, text);
        QFETCH(double, radius);
        Fixture f;
        f.Select({CircleId});

        f.Enter(s_radius, text);
        f.pPane->UpdateStatus();

        QCOMPARE(f.Radius(CircleId), radius);
        QCOMPARE(f.Text(s_radius), QString::number(radius, 'f', 3));
        QCOMPARE(f.Message(), QString());
    }

    void anAngleIsReadAsAnAngle()
    {
        Fixture f;
        f.Select({LineId});

        f.Enter("angle", "2*45");
        f.pPane->UpdateStatus();
        QCOMPARE(f.Text("angle"), QStringLiteral("90.00"));

        f.Enter("angle", "5mm");
        QCOMPARE(f.Message(), QStringLiteral("角度：单位与此处的量不符"));
        QCOMPARE(f.Commands().size(), std::size_t{1});
    }

    void aUnitThatIsTypedIsNotTheOneShown()
    {
        Fixture f;
        LengthUnit::SetCurrent(LengthUnit::Centimetre());
        f.Select({CircleId});

        f.Enter(s_radius, "25mm");
        f.pPane->UpdateStatus();

        QCOMPARE(f.Radius(CircleId), 25.0);
        QCOMPARE(f.Text(s_radius), QStringLiteral("2.500"));
    }

    void aValueIsRoundedOnceInTheModel()
    {
        Fixture f;
        LengthUnit::SetCurrent(LengthUnit::Inch());
        f.Select({CircleId});

        f.Enter(s_radius, "1.2");

        QCOMPARE_EXACTLY(f.Radius(CircleId), 30.48);
    }

    void noValueIsANegativeZero()
    {
        Fixture f;
        const int id = f.workspace.sketch.Add(CircleShape{{-0.0001, 0, 0}, 3});

        f.Select({id});

        QCOMPARE(f.Text("centre.x"), QStringLiteral("0.000"));
    }

    void escapeGivesTheFormerTextBack()
    {
        Fixture f;
        f.Select({CircleId});
        f.Type(s_radius, "33");

        QTest::keyClick(f.Field(s_radius), Qt::Key_Escape);
        QCOMPARE(f.Text(s_radius), QStringLiteral("10.000"));
        QVERIFY(f.Field(s_radius)->hasFocus());

        QTest::keyClick(f.Field(s_radius), Qt::Key_Return);
        f.LeaveField();
        QCOMPARE(f.Commands().size(), std::size_t{0});
        QCOMPARE(f.Radius(CircleId), 10.0);
    }

    void escapeGivesTheFormerTextBackAfterARefusal()
    {
        Fixture f;
        f.Select({CircleId});
        f.Enter(s_radius, "-3");
        QVERIFY(!f.Message().isEmpty());

        QTest::keyClick(f.Field(s_radius), Qt::Key_Escape);

        QCOMPARE(f.Text(s_radius), QStringLiteral("10.000"));
        QCOMPARE(f.Message(), QString());
    }

    void escapeLeavesTheMessageOfAnotherFieldAlone()
    {
        Fixture f;
        f.Select({CircleId});
        f.Enter(s_radius, "abc");
        f.Type("centre.x", "3");

        QTest::keyClick(f.Field("centre.x"), Qt::Key_Escape);

        QCOMPARE(f.Text("centre.x"), QStringLiteral("1.000"));
        QCOMPARE(f.Text(s_radius), QStringLiteral("abc"));
        QVERIFY(!f.Message().isEmpty());
    }

    void escapeEmptiesAFieldOfDifferentValues()
    {
        Fixture f;
        f.Select({CircleId, OtherCircleId});
        f.Type(s_radius, "33");

        QTest::keyClick(f.Field(s_radius), Qt::Key_Escape);

        QCOMPARE(f.Text(s_radius), QString());
    }

    void escapeGivesBackWhatWasEnteredLast()
    {
        Fixture f;
        f.Select({CircleId});
        f.Enter(s_radius, "900+50");
        f.pPane->UpdateStatus();
        f.Type(s_radius, "7");

        QTest::keyClick(f.Field(s_radius), Qt::Key_Escape);

        QCOMPARE(f.Text(s_radius), QStringLiteral("950.000"));
        QCOMPARE(f.Radius(CircleId), 950.0);
    }

    void aTextThatMakesNoSenseStaysAndAMessageTells_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("message");

        const QString noNumber = QStringLiteral("半径：这不是一个数，也不是算式");
        const QString unknown = QStringLiteral("半径：含有不认识的名称或单位");
        const QString comma = QStringLiteral("半径：逗号有歧义，小数点请用“.”");
        const QString notDrawable = QStringLiteral("半径：以此值无法绘制图元");
        QTest::newRow("word") << "abc" << unknown;
        QTest::newRow("empty") << "" << noNumber;
        QTest::newRow("two numbers") << "1 2" << noNumber;
        QTest::newRow("thousands") << "1,500" << comma;
        QTest::newRow("an angle") << "5d" << QStringLiteral("半径：单位与此处的量不符");
        QTest::newRow("not a number") << "nan" << unknown;
        QTest::newRow("infinite") << "inf" << unknown;
        QTest::newRow("beyond all numbers") << "1e999" << QStringLiteral("半径：算不出确定的值");
        QTest::newRow("zero") << "0" << notDrawable;
        QTest::newRow("negative") << "-5" << notDrawable;
        QTest::newRow("too great") << "1e12" << notDrawable;
    }

    void aTextThatMakesNoSenseStaysAndAMessageTells()
    {
        QFETCH(QString, text);
        QFETCH(QString, message);
        Fixture f;
        f.Select({CircleId});

        f.Enter(s_radius, text);
        f.LeaveField();
        f.pPane->UpdateStatus();

        QCOMPARE(f.Text(s_radius), text);
        QCOMPARE(f.Message(), message);
        QCOMPARE(f.Radius(CircleId), 10.0);
        QCOMPARE(f.Commands().size(), std::size_t{0});
    }

    void theMessageGoesWhenTheTextIsMended_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("commands");

        QTest::newRow("another value") << "11" << 1;
        QTest::newRow("the value that stood there") << "10.000" << 0;
        QTest::newRow("the same number") << "10" << 0;
    }

    void theMessageGoesWhenTheTextIsMended()
    {
        QFETCH(QString, text);
        QFETCH(int, commands);
        Fixture f;
        f.Select({CircleId});
        f.Enter(s_radius, "abc");

        f.Enter(s_radius, text);

        QCOMPARE(f.Message(), QString());
        QCOMPARE(static_cast<int>(f.Commands().size()), commands);
    }

    void theMessageStaysWhileItsTextDoes_data()
    {
        QTest::addColumn<QString>("otherText");

        QTest::newRow("another field unchanged") << "1.000";
        QTest::newRow("another field edited") << "3";
    }

    void theMessageStaysWhileItsTextDoes()
    {
        QFETCH(QString, otherText);
        Fixture f;
        f.Select({CircleId});
        f.Enter(s_radius, "abc");

        f.Enter("centre.x", otherText);
        f.pPane->UpdateStatus();

        QCOMPARE(f.Text(s_radius), QStringLiteral("abc"));
        QCOMPARE(f.Message(), QStringLiteral("半径：含有不认识的名称或单位"));
    }
};

VESK_TESTS(PropertyPaneTextTest);
#include "PropertyPaneTextTest.moc"
