// Whether a key becomes text in the editor of a dimension for as little as in a line edit with the
// same sheet, a filter that knows the keys of the editor, and a mark for what is no number in
// range; and what the program adds, which judges the text and shows its value and the keys.

#include "Editors.h"
#include "Harness/Question.h"
#include "SketcherDesk.h"

#include "Dimension/ITemporaryDimensionHandler.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/TemporaryDimensionHandlerFactory.h"

#include <QKeyEvent>

using namespace vesk;

namespace
{

constexpr int Texts = 20;

void Type(QLineEdit& editor, const QString& text)
{
    for (const QChar character : text)
    {
        QKeyEvent press(QEvent::KeyPress, character.unicode(), Qt::NoModifier, QString(character));
        QCoreApplication::sendEvent(&editor, &press);
    }
}

/// Types a text again and again, each time over the one before. The first time is not measured: it
/// makes what is made once. Nothing is painted meanwhile: what the windows look like is no question
/// here, and a large one would take the caches of the processor.
void TypeOften(Stopwatch& stopwatch, QLineEdit& editor, const QString& text)
{
    Type(editor, text);
    EditorDesk::Settle();
    for (int i = 0; i < Texts; ++i)
    {
        editor.selectAll();
        stopwatch.Time([&] { Type(editor, text); });
        if (editor.text() != text)
            qFatal("typed %s, got %s", qPrintable(text), qPrintable(editor.text()));
    }
    EditorDesk::Settle();
}

/// What a program written by hand does with the keys of an editor.
class PlainKeys final : public QObject
{
public:
    bool eventFilter(QObject*, QEvent* pEvent) override
    {
        if (pEvent->type() == QEvent::KeyRelease)
            return true;
        if (pEvent->type() != QEvent::KeyPress)
            return false;
        const int key = static_cast<QKeyEvent*>(pEvent)->key();
        const bool isCommand = key == Qt::Key_Return || key == Qt::Key_Enter ||
                               key == Qt::Key_Space || key == Qt::Key_Tab || key == Qt::Key_Escape;
        m_commands += isCommand ? 1 : 0;
        return isCommand;
    }

private:
    int m_commands = 0;
};

/// Shows a red line in an editor whose text is no number in range.
class PlainMark final : public QWidget
{
public:
    explicit PlainMark(QLineEdit& editor) : QWidget(&editor), m_editor(editor)
    {
        setStyleSheet(QStringLiteral("background: #d64541"));
        setAutoFillBackground(true);
        setGeometry(3, editor.height() - 5, editor.width() - 6, 2);
        connect(&editor, &QLineEdit::textChanged, this, &PlainMark::Judge);
        Judge(editor.text());
    }

private:
    void Judge(const QString& text)
    {
        bool isNumber = false;
        const double value = text.toDouble(&isNumber);
        const bool isRefused = !isNumber || !(value >= 0.001 && value <= 1e9);
        if (isRefused != isHidden())
            return;
        m_editor.setToolTip(isRefused ? QStringLiteral("0.001 to 1000000000") : QString());
        setVisible(isRefused);
    }

    QLineEdit& m_editor;
};

/// The editor that is written by hand, in which a text is typed.
Side ByHand(const QString& text)
{
    return [text](Stopwatch& stopwatch) {
        EditorDesk desk;
        PlainKeys keys;
        PlainEditor editor(desk.view, keys);
        editor.Open(QStringLiteral("x"), {96, 28}, {400, 300});
        const PlainMark mark(editor);
        EditorDesk::Settle();
        TypeOften(stopwatch, editor, text);
    };
}

/// The editor of a handler that has refused a text, and so marks what it would refuse.
Side InTheLibrary(const QString& text)
{
    return [text](Stopwatch& stopwatch) {
        const EditorDesk desk;
        const LinearTemporaryDimensionContext context = EditorDesk::Context();
        const auto opHandler =
            TemporaryDimensionHandlerFactory::GetInstance()->UpdateOrCreateHandler(&context,
                                                                                   nullptr);
        opHandler->OnKeyDown('5', false, false, false);
        auto& editor = *desk.view.findChild<QLineEdit*>("ViewInputLineEdit");
        editor.setText(QStringLiteral("x"));
        opHandler->OnEditorReturnPressed();
        EditorDesk::Settle();
        TypeOften(stopwatch, editor, text);
    };
}

/// The length of a line that is being drawn.
Side InTheProgram(const QString& text)
{
    return [text](Stopwatch& stopwatch) {
        SketcherDesk desk;
        SketcherDesk::Run(L"Sketcher.Line");
        desk.Click({700, 400});
        desk.Move({800, 500});
        TemporaryDimensionMgr::GetInstance()->OnKeyDown('5', false, false, false);
        desk.Settle();
        auto& editor = *desk.window.GetView().findChild<QLineEdit*>("ViewInputLineEdit");
        TypeOften(stopwatch, editor, text);
        ActionManager::Reset();
        desk.Settle();
    };
}

}

void AskQuestions()
{
    const QString number = QStringLiteral("1250.75");
    const QString formula = QStringLiteral("900+50");
    Ask("P15 a number is typed: filter, sheet, validator")
        .Ours(InTheLibrary(number))
        .Limit(ByHand(number))
        .TimeAtMost(1.12);
    Ask("P15 a formula is typed: filter, sheet, validator")
        .Ours(InTheLibrary(formula))
        .Limit(ByHand(formula))
        .TimeAtMost(1.12);
    Ask("P15 a number is typed in the program: judge, value, keys too")
        .Ours(InTheProgram(number))
        .Limit(ByHand(number))
        .TimeAtMost(1.5)
        .Rounds(21);
    Ask("P15 a formula is typed in the program: judge, value, keys too")
        .Ours(InTheProgram(formula))
        .Limit(ByHand(formula))
        .TimeAtMost(1.5)
        .Rounds(21);
}
