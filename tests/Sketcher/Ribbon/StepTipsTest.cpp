#include "Ribbon/StepTips.h"

#include "Model/Sketch.h"
#include "Support/TestValues.h"

#include <QToolButton>

namespace
{

/// A ribbon with the two buttons.
struct Fixture
{
    Fixture()
    {
        undo.setObjectName("Sketcher.Undo");
        redo.setObjectName("Sketcher.Redo");
    }

    static CommandEntry Entry(const std::wstring& id, const std::wstring& caption,
                              const std::wstring& keys)
    {
        return CommandEntry::Plain(id, caption, [] {}).WithToolTip(L"tip").WithKeys(keys);
    }

    Sketch sketch;
    QWidget ribbon;
    QToolButton undo{&ribbon};
    QToolButton redo{&ribbon};
    StepTips tips{
        {Entry(L"Sketcher.Undo", L"撤销", L"Ctrl+Z"), Entry(L"Sketcher.Redo", L"重做", L"Ctrl+Y")},
        sketch,
        ribbon};
};

}

/// What undo and redo say that they will do.
class StepTipsTest final : public QObject
{
    Q_OBJECT

private slots:
    void withoutAStepTheTipIsTheCommands()
    {
        Fixture f;

        QCOMPARE(f.undo.toolTip(), QString("tip (Ctrl+Z)"));
        QCOMPARE(f.redo.toolTip(), QString("tip (Ctrl+Y)"));
    }

    void undoNamesTheLastStep()
    {
        Fixture f;

        f.sketch.AddLine({0, 0, 0}, {1, 0, 0});

        QCOMPARE(f.undo.toolTip(), QStringLiteral("撤销：直线 (Ctrl+Z)"));
        QCOMPARE(f.redo.toolTip(), QString("tip (Ctrl+Y)"));
    }

    void redoNamesWhatWasUndone()
    {
        Fixture f;
        f.sketch.AddLine({0, 0, 0}, {1, 0, 0});

        f.sketch.Undo();

        QCOMPARE(f.undo.toolTip(), QString("tip (Ctrl+Z)"));
        QCOMPARE(f.redo.toolTip(), QStringLiteral("重做：直线 (Ctrl+Y)"));
    }
};

VESK_TESTS(StepTipsTest);
#include "StepTipsTest.moc"
