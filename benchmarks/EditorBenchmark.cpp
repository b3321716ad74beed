// Whether the editor of a dimension opens for as little as a line edit that is styled, filled and
// shown by hand, in the order that costs least.

#include "Editors.h"
#include "Harness/Question.h"

#include "Dimension/ITemporaryDimensionHandler.h"
#include "Dimension/TemporaryDimensionStyle.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/TemporaryDimensionHandlerFactory.h"

#include <QImage>

#include <memory>

using namespace vesk;

namespace
{

constexpr int Openings = 20;

OwnerPtr<ITemporaryDimensionHandler> MakeHandler()
{
    const LinearTemporaryDimensionContext context = EditorDesk::Context();
    auto opHandler =
        TemporaryDimensionHandlerFactory::GetInstance()->UpdateOrCreateHandler(&context, nullptr);
    opHandler->GenerateGraphics(&context);
    return opHandler;
}

QLineEdit& EditorOf(const EditorDesk& desk)
{
    return *desk.view.findChild<QLineEdit*>("ViewInputLineEdit");
}

/// What the user sees of an open editor.
struct Appearance
{
    explicit Appearance(QLineEdit& editor)
        : picture(editor.grab().toImage()), place(editor.geometry()), flags(editor.windowFlags()),
          hasFocus(editor.hasFocus())
    {}

    bool operator==(const Appearance& other) const
    {
        return picture == other.picture && place == other.place && flags == other.flags &&
               hasFocus == other.hasFocus;
    }

    QImage picture;
    QRect place;
    Qt::WindowFlags flags;
    bool hasFocus;
};

/// Where the handler puts the centre of its editor.
QPoint Centre()
{
    const EditorDesk desk;
    const auto opHandler = MakeHandler();
    opHandler->OnKeyDown('5', false, false, false);
    const QLineEdit& editor = EditorOf(desk);
    return editor.pos() - desk.view.mapToGlobal(QPoint(0, 0)) +
           QPoint(editor.width() / 2, editor.height() / 2);
}

QSize EditorSize()
{
    const TemporaryDimensionStyle style;
    return {style.GetEditorWidth(), style.GetEditorHeight()};
}

void OpenByHandler(Stopwatch& stopwatch, bool isFirst)
{
    EditorDesk desk;
    const auto opHandler = MakeHandler();
    const auto open = [&opHandler] { opHandler->OnKeyDown('5', false, false, false); };
    open();
    for (int i = 0; i < Openings; ++i)
    {
        opHandler->EndInput();
        if (isFirst)
            delete &EditorOf(desk);
        desk.Return();
        stopwatch.Time(open);
        EditorDesk::Settle();
    }
}

void OpenByHand(Stopwatch& stopwatch, bool isFirst, const QPoint& centre)
{
    EditorDesk desk;
    QObject filter;
    std::unique_ptr<PlainEditor> pEditor;
    const auto open = [&] {
        if (pEditor == nullptr)
            pEditor = std::make_unique<PlainEditor>(desk.view, filter);
        pEditor->Open(QStringLiteral("5"), EditorSize(), centre);
    };
    open();
    for (int i = 0; i < Openings; ++i)
    {
        pEditor->Close();
        if (isFirst)
            pEditor.reset();
        desk.Return();
        stopwatch.Time(open);
        EditorDesk::Settle();
    }
}

/// Ends the program if the two editors do not look alike: then the limit is none.
void CompareAppearances(const QPoint& centre)
{
    EditorDesk desk;
    QObject filter;
    PlainEditor plain(desk.view, filter);
    plain.Open(QStringLiteral("5"), EditorSize(), centre);
    EditorDesk::Settle();
    const Appearance byHand(plain);
    plain.Close();
    plain.setObjectName(QString());
    desk.Return();

    const auto opHandler = MakeHandler();
    opHandler->OnKeyDown('5', false, false, false);
    EditorDesk::Settle();
    if (!byHand.hasFocus || !(Appearance(EditorOf(desk)) == byHand))
        qFatal("the editors differ");
}

}

void AskQuestions()
{
    const QPoint centre = Centre();
    CompareAppearances(centre);
    const auto ask = [&centre](const std::string& name, bool isFirst, double bar) {
        Ask(name)
            .Ours([isFirst](Stopwatch& stopwatch) { OpenByHandler(stopwatch, isFirst); })
            .Limit(
                [isFirst, centre](Stopwatch& stopwatch) { OpenByHand(stopwatch, isFirst, centre); })
            .TimeAtMost(bar);
    };
    ask("P13 the editor of a view is opened again", false, 1.10);
    ask("P14 the editor of a view is opened first", true, 1.05);
}
