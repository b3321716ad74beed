#include "Ribbon/StepTips.h"

#include "Model/Sketch.h"
#include "Support/TestValues.h"

#include <memory>

namespace
{

/// A window with the two buttons as the ribbon makes them.
struct Fixture
{
    Fixture()
    {
        Prepare(*pUndo, "Sketcher.Undo", "撤销", "撤销上一步 (Ctrl+Z)");
        Prepare(*pRedo, "Sketcher.Redo", "重做", "重做上一步 (Ctrl+Y)");
    }

    static void Prepare(QToolButton& button, const char* id, const char* text, const char* tip)
    {
        button.setObjectName(QString::fromUtf8(id));
        button.setText(QString::fromUtf8(text));
        button.setToolTip(QString::fromUtf8(tip));
    }

    Sketch sketch;
    QWidget window;
    QToolButton* pUndo = new QToolButton(&window);
    QToolButton* pRedo = new QToolButton(&window);
};

/// Counts how often an object is told another tool tip.
class ToolTipChanges final : public QObject
{
public:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override
    {
        count += pEvent->type() == QEvent::ToolTipChange ? 1 : 0;
        return QObject::eventFilter(pWatched, pEvent);
    }

    int count = 0;
};

}

/// The tool tips of undo and redo.
class StepTipsTest final : public QObject
{
    Q_OBJECT

private slots:
    void aTipNamesTheStep()
    {
        Fixture f;
        const StepTips tips(f.sketch, f.window);

        f.sketch.SetName(L"plan");
        const QString step = QString::fromStdWString(f.sketch.GetUndoText());
        QCOMPARE(f.pUndo->toolTip(), QStringLiteral("撤销：%1 (Ctrl+Z)").arg(step));
        QCOMPARE(f.pRedo->toolTip(), QStringLiteral("重做上一步 (Ctrl+Y)"));

        f.sketch.Undo();
        QCOMPARE(f.pUndo->toolTip(), QStringLiteral("撤销上一步 (Ctrl+Z)"));
        QCOMPARE(f.pRedo->toolTip(), QStringLiteral("重做：%1 (Ctrl+Y)").arg(step));
    }

    void aStepThatIsThereAlreadyIsNamed()
    {
        Fixture f;
        f.sketch.SetName(L"plan");

        const StepTips tips(f.sketch, f.window);

        QVERIFY(f.pUndo->toolTip().startsWith(QStringLiteral("撤销：")));
    }

    void anEqualTipIsNotToldAgain()
    {
        Fixture f;
        const StepTips tips(f.sketch, f.window);
        f.sketch.AddLine({0, 0, 0}, {1, 0, 0});
        ToolTipChanges changes;
        f.pUndo->installEventFilter(&changes);

        f.sketch.AddLine({0, 0, 0}, {1, 0, 0});
        QCOMPARE(changes.count, 0);
        f.pUndo->setToolTip(QStringLiteral("another"));
        f.sketch.AddLine({0, 0, 0}, {1, 0, 0});

        QCOMPARE(changes.count, 2);
        QVERIFY(f.pUndo->toolTip().startsWith(QStringLiteral("撤销：")));
    }

    void withoutButtonsThereIsNothingToName()
    {
        Sketch sketch;
        const QWidget window;
        const StepTips tips(sketch, window);

        sketch.SetName(L"plan");

        QVERIFY(sketch.CanUndo());
    }

    void aButtonThatIsGoneIsLeftAlone()
    {
        Fixture f;
        const StepTips tips(f.sketch, f.window);
        delete f.pRedo;

        f.sketch.SetName(L"plan");

        QVERIFY(f.pUndo->toolTip().startsWith(QStringLiteral("撤销：")));
    }
};

VESK_TESTS(StepTipsTest);
#include "StepTipsTest.moc"
