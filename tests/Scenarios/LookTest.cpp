#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "SketcherWindow.h"
#include "View/SketchView.h"

#include "Support/TestValues.h"

/// The window of a replay that stays on screen.
class LookTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void theWindowOfAReplaySaysThatNothingIsSaved()
    {
        Draw();
        QString title;
        QString state;
        bool isModified = true;
        ScriptedUser user;
        user.Until([] { return ScriptedUser::FindWindow()->isVisible(); }).Do([&] {
            title = ScriptedUser::FindWindow()->windowTitle();
            isModified = ScriptedUser::FindWindow()->isWindowModified();
            state = ScriptedUser::States();
        });

        QCOMPARE(user.Run(Look()), 0);

        QCOMPARE(title, QStringLiteral("未命名（查看）[*] - Sketcher"));
        QVERIFY(!isModified);
        QCOMPARE(state, QStringLiteral("仅供查看"));
    }

    void allOfTheDrawingIsShown()
    {
        Draw();
        double shown = 0.0;
        ScriptedUser user;
        user.Until([] { return ScriptedUser::FindWindow()->isVisible(); }).Do([&shown] {
            const SketchView& view = *ScriptedUser::FindView();
            shown = view.GetCamera().GetWorldPerPixel() * view.width();
        });

        QCOMPARE(user.Run(Look()), 0);

        QVERIFY2(shown >= 5000.0, qPrintable(QString::number(shown)));
    }

    void withAJournalWhatIsDoneIsKept()
    {
        Draw();
        Options options = Look();
        options.journal = m_pFixture->File("again");
        QString state = QStringLiteral("?");
        ScriptedUser user;
        user.Until([] { return ScriptedUser::FindWindow()->isVisible(); });
        user.Do([&state] { state = ScriptedUser::States(); });

        QCOMPARE(user.Run(options), 0);

        QCOMPARE(state, QString());
    }

private:
    /// A session that draws a line of 5 m.
    void Draw() const
    {
        ScriptedUser user;
        user.Click("Sketcher.Line").ClickAt(0, 0).MoveTo(100, 0);
        user.Type("5000").Press(Qt::Key_Return).Press(Qt::Key_Escape);
        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

    Options Look() const
    {
        Options options = m_pFixture->Replay(Journal(), m_pFixture->File("replayed"));
        options.repetition.isStaying = true;
        return options;
    }
};

VESK_TESTS(LookTest);
#include "LookTest.moc"
