#include "Panes/PropertyPaneFixture.h"

#include "Command/ICommandManager.h"

using namespace vesk;
using namespace vesk::test;
using Fixture = PropertyPaneFixture;

/// The values of the selected entities, shown and edited.
class PropertyPaneTest final : public QObject
{
    Q_OBJECT

private slots:
    void eachKindHasItsFields_data()
    {
        QTest::addColumn<QVector<int>>("ids");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("fields");

        QTest::newRow("nothing") << QVector<int>{} << "未选图元"
                                 << "";
        QTest::newRow("line") << QVector<int>{LineId} << "直线 #1"
                              << "start.x start.y end.x end.y length angle";
        QTest::newRow("circle") << QVector<int>{CircleId} << "圆 #2"
                                << "centre.x centre.y radius";
        QTest::newRow("arc") << QVector<int>{ArcId} << "圆弧 #3"
                             << "centre.x centre.y radius";
        QTest::newRow("rectangle") << QVector<int>{RectangleId} << "矩形 #4"
                                   << "corner.x corner.y width height";
        QTest::newRow("circle and arc") << QVector<int>{ArcId, CircleId} << "已选 2 个图元"
                                        << "centre.x centre.y radius";
        QTest::newRow("nothing in common") << QVector<int>{LineId, CircleId} << "已选 2 个图元"
                                           << "";
    }

    void eachKindHasItsFields()
    {
        QFETCH(QVector<int>, ids);
        QFETCH(QString, title);
        QFETCH(QString, fields);
        Fixture f;
        f.Select({RectangleId});

        f.Select(Ids(ids.begin(), ids.end()));
        f.controls->RefreshControls();

        QCOMPARE(f.Title(), title);
        QCOMPARE(f.Fields(), fields);
    }

    void aFieldIsAsVisibleAsItsCaption()
    {
        Fixture f;
        f.Select({CircleId});

        for (const QLabel* pCaption : f.pPane->findChildren<QLabel*>())
        {
            if (pCaption->buddy() != nullptr)
                QCOMPARE(pCaption->isVisible(), pCaption->buddy()->isVisible());
        }
    }

    void valuesAreShown_data()
    {
        QTest::addColumn<int>("id");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");

        QTest::newRow("coordinate") << LineId << "end.x"
                                    << "30.000";
        QTest::newRow("length") << LineId << "length"
                                << "50.000";
        QTest::newRow("angle") << LineId << "angle"
                               << "53.13";
        QTest::newRow("radius") << ArcId << "radius"
                                << "5.000";
        QTest::newRow("centre") << CircleId << "centre.y"
                                << "2.000";
        QTest::newRow("width") << RectangleId << "width"
                               << "4.000";
        QTest::newRow("height") << RectangleId << "height"
                                << "3.000";
    }

    void valuesAreShown()
    {
        QFETCH(int, id);
        QFETCH(QString, name);
        QFETCH(QString, text);
        Fixture f;

        f.Select({id});

        QCOMPARE(f.Text(name), text);
    }

    void whatDiffersIsEmptyAndWhatDoesNotIsShown()
    {
        Fixture f;

        f.Select({CircleId, OtherCircleId});

        QCOMPARE(f.Text("centre.x"), QStringLiteral("1.000"));
        QCOMPARE(f.Text("centre.y"), QString());
        QCOMPARE(f.Text(s_radius), QString());
    }

    void lengthsAreInTheUnitShownAndAnglesAreNot()
    {
        Fixture f;
        LengthUnit::SetCurrent(LengthUnit::Centimetre());
        f.Select({LineId});
        QCOMPARE(f.Text("length"), QStringLiteral("5.000"));
        QCOMPARE(f.Text("angle"), QStringLiteral("53.13"));

        f.Select({CircleId});
        f.Enter(s_radius, "2.5");

        QCOMPARE(f.Radius(CircleId), 25.0);
    }

    void anEditIsOneCommandThatIsRecordedBeforeItRuns()
    {
        Fixture f;
        f.Select({CircleId});

        f.Enter(s_radius, "12.5");

        QCOMPARE(f.Radius(CircleId), 12.5);
        QCOMPARE(f.Commands().size(), std::size_t{1});
        QCOMPARE(f.Commands()[0].commandId, std::wstring(L"Sketcher.SetProperty"));
        QCOMPARE(f.Commands()[0].parameters,
                 (EntityEdit{{CircleId}, L"radius", 12.5}.ToParameters()));
        QCOMPARE(f.recordedAtRun, std::vector<std::size_t>{1});
    }

    void leavingTheFieldEditsToo()
    {
        Fixture f;
        f.Select({CircleId});

        f.Type(s_radius, " 12.5 ");
        f.LeaveField();

        QCOMPARE(f.Radius(CircleId), 12.5);
    }

    void returnAndLeavingAtOnceIsOneCommand()
    {
        Fixture f;
        f.Select({CircleId});

        f.Enter(s_radius, "12.5");
        f.LeaveField();
        f.pPane->UpdateStatus();

        QCOMPARE(f.Commands().size(), std::size_t{1});
        QCOMPARE(f.Text(s_radius), QStringLiteral("12.500"));
    }

    void severalGetTheValueInOneStep()
    {
        Fixture f;
        f.Select({OtherCircleId, CircleId});

        f.Enter(s_radius, "7");
        QCOMPARE(f.Radius(CircleId), 7.0);
        QCOMPARE(f.Radius(OtherCircleId), 7.0);
        QCOMPARE(f.Commands().size(), std::size_t{1});

        f.workspace.sketch.Undo();
        f.pPane->UpdateStatus();
        QCOMPARE(f.Radius(CircleId), 10.0);
        QCOMPARE(f.Radius(OtherCircleId), 20.0);
        QCOMPARE(f.Text(s_radius), QString());
    }

    void undoTakesTheEditBack()
    {
        Fixture f;
        f.Select({LineId});
        f.Enter("length", "100");
        f.pPane->UpdateStatus();
        QCOMPARE(f.Text("length"), QStringLiteral("100.000"));
        QCOMPARE(f.Text("end.x"), QStringLiteral("60.000"));

        f.workspace.sketch.Undo();
        f.pPane->UpdateStatus();

        QCOMPARE(f.Text("length"), QStringLiteral("50.000"));
        QCOMPARE(f.Text("end.x"), QStringLiteral("30.000"));
    }

    void anUnchangedFieldSendsNothing_data()
    {
        QTest::addColumn<QString>("text");

        QTest::newRow("as shown") << "10.000";
        QTest::newRow("the same number") << "10";
        QTest::newRow("with an exponent") << "1e1";
    }

    void anUnchangedFieldSendsNothing()
    {
        QFETCH(QString, text);
        Fixture f;
        f.Select({CircleId});

        f.Enter(s_radius, text);
        f.LeaveField();

        QCOMPARE(f.Commands().size(), std::size_t{0});
        QCOMPARE(f.Text(s_radius), QStringLiteral("10.000"));
        QCOMPARE(f.Message(), QString());
    }

    void aRoundedValueIsNotMeantAsANewOne()
    {
        Fixture f;
        f.workspace.sketch.Replace({{CircleId, CircleShape{{1, 2, 0}, 10.0001}}});
        f.Select({CircleId});

        f.Enter(s_radius, "10.000");
        QCOMPARE(f.Radius(CircleId), 10.0001);

        f.Enter(s_radius, "10");
        QCOMPARE(f.Radius(CircleId), 10.0);
    }

    void anEmptyFieldOfDifferentValuesSendsNothing()
    {
        Fixture f;
        f.Select({CircleId, OtherCircleId});

        f.Enter(s_radius, "");
        f.LeaveField();

        QCOMPARE(f.Commands().size(), std::size_t{0});
        QCOMPARE(f.Message(), QString());
    }

    void anotherSelectionReplacesAWrongText_data()
    {
        QTest::addColumn<QVector<int>>("ids");
        QTest::addColumn<QString>("text");

        QTest::newRow("of the same kind") << QVector<int>{OtherCircleId} << "20.000";
        QTest::newRow("of the same value") << QVector<int>{CircleId, CircleId} << "10.000";
        QTest::newRow("both") << QVector<int>{CircleId, OtherCircleId} << "";
    }

    void anotherSelectionReplacesAWrongText()
    {
        QFETCH(QVector<int>, ids);
        QFETCH(QString, text);
        Fixture f;
        f.Select({CircleId});
        f.Enter(s_radius, "abc");

        f.Select(Ids(ids.begin(), ids.end()));

        QCOMPARE(f.Text(s_radius), text);
        QCOMPARE(f.Message(), QString());
    }

    void aNewValueReplacesAWrongTextAndItsMessage()
    {
        Fixture f;
        f.Select({CircleId});
        f.Enter(s_radius, "abc");

        f.workspace.sketch.Replace({{CircleId, CircleShape{{1, 2, 0}, 33}}});
        f.pPane->UpdateStatus();

        QCOMPARE(f.Text(s_radius), QStringLiteral("33.000"));
        QCOMPARE(f.Message(), QString());
    }

    void whatIsBeingTypedIsNotOverwrittenByAnotherChange()
    {
        Fixture f;
        f.Select({CircleId});
        f.Type(s_radius, "1");

        f.workspace.sketch.AddLine({0, 0, 0}, {1, 0, 0});
        f.workspace.sketch.Replace({{CircleId, CircleShape{{5, 2, 0}, 10}}});
        f.pPane->UpdateStatus();
        QTest::keyClicks(f.Field(s_radius), "7");

        QCOMPARE(f.Text(s_radius), QStringLiteral("17"));
        QCOMPARE(f.Text("centre.x"), QStringLiteral("5.000"));
        QCOMPARE(f.Field(s_radius)->cursorPosition(), 2);
        QCOMPARE(f.Commands().size(), std::size_t{0});
    }

    void anErasedEntityIsNotEdited()
    {
        Fixture f;
        f.Select({CircleId, OtherCircleId});
        f.Type(s_radius, "5");

        f.workspace.sketch.Erase(OtherCircleId);
        QTest::keyClick(f.Field(s_radius), Qt::Key_Return);

        QCOMPARE(f.Commands().size(), std::size_t{0});
        QCOMPARE(f.Radius(CircleId), 10.0);
    }

    void whatWasTypedForOneEntityIsNotGivenToTheNext()
    {
        Fixture f;
        f.Select({CircleId});
        f.Type(s_radius, "5");

        f.Select({RectangleId});
        f.LeaveField();

        QCOMPARE(f.Commands().size(), std::size_t{0});
        QCOMPARE(f.Message(), QString());
    }

    void aRefusedCommandLeavesTheValueThatStands()
    {
        Fixture f;
        ICommandManager::Get()->RemoveCommand(EntityEdit::CommandId);
        f.host.AddCommand(EntityEdit::CommandId, [](const CommandParameters&) {});
        f.Select({CircleId});

        f.Enter(s_radius, "12.5");
        f.pPane->UpdateStatus();

        QCOMPARE(f.Text(s_radius), QStringLiteral("10.000"));
    }
};

VESK_TESTS(PropertyPaneTest);
#include "PropertyPaneTest.moc"
